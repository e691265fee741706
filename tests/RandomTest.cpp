// Random operations on lines and on all that holds members and, side by side, on a plain model of their
// members and reference counts.  After each step all objects must agree with it.
#include <random>
#include <set>

#include "Fields.h"

namespace {

using Object = VEKBaseUnknown;
using Base = VEKPrtGraphicPrimitiveElt;

// What a class can do, with its objects untyped.
struct Kind {
    const std::type_info& type;
    bool keepsLast = false; // whether an assignment passes over the last of the old members
    std::function<Object*()> make = {};
    std::function<Object*(Object&)> copy = {};
    std::function<Object*(Object&)> duplicate = {};
    std::function<void(Object&, Object&)> assign = {};
    std::function<const VEKRawCollPV*(const Object&)> list = {};
    std::function<bool(const Object&)> accepts = {};
    std::function<void(Object&, Object*)> add = {}, remove = {};
};

template <class Class>
Kind KindOf() {
    Kind kind{typeid(Class)};
    const auto typed = [](Object& ioObject) -> Class& { return static_cast<Class&>(ioObject); };
    kind.make = [] { return new Class; };
    kind.copy = [=](Object& iSource) { return new Class(typed(iSource)); };
    kind.assign = [=](Object& ioTarget, Object& iSource) { typed(ioTarget) = typed(iSource); };
    if constexpr (!isModel<Class>)
        kind.duplicate = [=](Object& ioSource) { return Duplicated(typed(ioSource)).Detach(); };
    if constexpr (HasMembers<Class>::value) {
        using Member = MemberOf<Class>;
        kind.keepsLast = HasChildren<Class>::value;
        kind.list = [](const Object& iHolder) { return ListOf(static_cast<const Class&>(iHolder)); };
        kind.accepts = [](const Object& iMember) { return dynamic_cast<const Member*>(&iMember) != nullptr; };
        kind.add = [=](Object& ioHolder, Object* iMember) {
            AddTo(typed(ioHolder), static_cast<Member*>(iMember));
        };
        kind.remove = [=](Object& ioHolder, Object* iMember) {
            if constexpr (isModel<Class>)
                typed(ioHolder).RemoveImage(static_cast<Member*>(iMember));
            else
                typed(ioHolder).RemoveChild(static_cast<Member*>(iMember));
        };
    }
    return kind;
}
template <class... Classes>
std::vector<Kind> KindsOf(testing::Types<Classes...>) {
    return {KindOf<Classes>()...};
}

// The plain side of an object.
struct Node {
    const Kind* kind;
    Object* real = nullptr;
    long references = 1;
    bool hasList = false;
    std::vector<Node*> members = {};

    bool Contains(const Node* iNode) const {
        const auto contains = [=](const Node* iMember) { return iMember->Contains(iNode); };
        return this == iNode || std::any_of(members.begin(), members.end(), contains);
    }
    int Size() const {
        const auto add = [](int iSize, const Node* iMember) { return iSize + iMember->Size(); };
        return std::accumulate(members.begin(), members.end(), 1, add);
    }
};

class World {
public:
    explicit World(unsigned iSeed) : _random(iSeed) {}
    ~World() {
        for (const auto* const references : {&_held, &_lost})
            for (Node* const node : *references)
                GiveBack(node);
    }

    void Step() {
        const std::size_t operation = _held.size() > 20 ? 9 : Any(9);
        if (operation < 2 || _held.empty())
            Create();
        else if (operation < 6)
            AddOrRemove(*AnyOf(_held));
        else if (operation < 8)
            CopyOrAssign(*AnyOf(_held));
        else
            Release();
    }

    void Verify() const {
        for (const Node* const node : _alive) {
            const Kind& kind = *node->kind;
            EXPECT_EQ(Count(node->real), static_cast<unsigned long>(node->references)) << kind.type.name();
            std::vector<const void*> expected, found;
            for (const Node* const member : node->members)
                expected.push_back(member->real);
            const auto* const list = kind.list ? kind.list(*node->real) : nullptr;
            for (int position = 1; list && position <= list->Size(); ++position)
                found.push_back((*list)[position]);
            EXPECT_EQ(found, expected) << "the members of a " << kind.type.name();
            EXPECT_EQ(list != nullptr, node->hasList) << kind.type.name();
        }
    }

private:
    std::size_t Any(std::size_t iCount) { return _random() % iCount; }
    Node* AnyOf(const std::vector<Node*>& iNodes) {
        return iNodes.empty() ? nullptr : iNodes[Any(iNodes.size())];
    }

    // The plain operations.

    Node* Born(const Kind& iKind) { return *_alive.insert(new Node{&iKind}).first; }
    void Drop(Node* ioNode) {
        if (--ioNode->references > 0) return;
        for (Node* const member : ioNode->members)
            Drop(member);
        _alive.erase(ioNode);
        delete ioNode;
    }
    static void Share(Node& ioHolder, const std::vector<Node*>& iMembers) {
        ioHolder.hasList = true;
        ioHolder.members = iMembers;
        for (Node* const member : iMembers)
            ++member->references;
    }
    Node* Copied(const Node& iSource) {
        Node* const copy = Born(*iSource.kind);
        if (iSource.hasList) Share(*copy, iSource.members);
        return copy;
    }
    Node* DuplicateOf(const Node& iSource) {
        Node* const copy = Born(*iSource.kind);
        copy->hasList = iSource.hasList;
        for (const Node* const member : iSource.members)
            copy->members.push_back(DuplicateOf(*member));
        return copy;
    }
    void Assign(Node& ioTarget, Node& ioSource) {
        if (&ioTarget == &ioSource) return;
        if (!ioTarget.hasList && !ioSource.hasList) return;
        ++ioSource.references; // it may be one of the old members
        std::vector<Node*> old;
        old.swap(ioTarget.members);
        if (ioTarget.kind->keepsLast && !old.empty()) {
            _lost.push_back(old.back());
            old.pop_back();
        }
        for (Node* const member : old)
            Drop(member);
        Share(ioTarget, ioSource.members);
        Drop(&ioSource);
    }

    // Both sides.

    void Hold(Node* ioNode, Object* iReal) {
        _held.push_back(ioNode);
        Bind(*ioNode, iReal);
    }
    // Tells new nodes which object they are the plain side of.
    static void Bind(Node& ioNode, Object* iReal) {
        if (ioNode.real) return;
        ioNode.real = iReal;
        int position = 0;
        for (Node* const member : ioNode.members)
            Bind(*member, static_cast<Base*>((*ioNode.kind->list(*iReal))[++position]));
    }
    void GiveBack(Node* ioNode) {
        ioNode->real->Release();
        Drop(ioNode);
    }

    void Create() {
        const Kind& kind = _kinds[Any(_kinds.size())];
        Hold(Born(kind), kind.make());
    }
    void AddOrRemove(Node& ioHolder) {
        if (!ioHolder.kind->list) return;
        const bool adds = Any(3) > 0;
        Node* const member = Any(10) == 0          ? nullptr
                             : adds || Any(4) == 0 ? AnyOf(_held)
                                                   : AnyOf(ioHolder.members);
        if (member && !ioHolder.kind->accepts(*member->real)) return;
        const bool isOwn = member == &ioHolder;
        if (adds && member && !isOwn && (member->Contains(&ioHolder) || ioHolder.members.size() > 9)) return;
        (adds ? ioHolder.kind->add : ioHolder.kind->remove)(*ioHolder.real, member ? member->real : nullptr);
        const auto at = std::find(ioHolder.members.begin(), ioHolder.members.end(), member);
        if (adds && member && !isOwn) {
            ioHolder.hasList = true;
            ioHolder.members.push_back(member);
            ++member->references;
        } else if (!adds && at != ioHolder.members.end()) {
            ioHolder.members.erase(at);
            Drop(member);
        }
    }
    void CopyOrAssign(Node& ioNode) {
        if (ioNode.Size() > 20) return;
        const Kind& kind = *ioNode.kind;
        const std::size_t operation = Any(3);
        if (operation == 0) {
            Object* const copy = kind.copy(*ioNode.real);
            Hold(Copied(ioNode), copy);
        } else if (operation == 1 && kind.duplicate) {
            Object* const copy = kind.duplicate(*ioNode.real);
            Hold(DuplicateOf(ioNode), copy);
        } else {
            // From one of its own class, itself included, or from a member that perhaps nobody else holds.
            Node* source = Any(3) == 0 ? AnyOf(ioNode.members) : AnyOf(_held);
            if (!source || source->kind != &kind) source = &ioNode;
            const auto contains = [&](const Node* iMember) { return iMember->Contains(&ioNode); };
            if (source != &ioNode && std::any_of(source->members.begin(), source->members.end(), contains))
                return;
            kind.assign(*ioNode.real, *source->real);
            Assign(ioNode, *source);
        }
    }
    // Gives back what got lost as well, so that the world stays small.
    void Release() {
        _lost.push_back(AnyOf(_held));
        _held.erase(std::find(_held.begin(), _held.end(), _lost.back()));
        for (Node* const node : std::exchange(_lost, {}))
            GiveBack(node);
    }

    const std::vector<Kind> _kinds = KindsOf(Join<Holders, testing::Types<VEKPrtLineElt>>::Result());
    std::mt19937 _random;
    std::set<Node*> _alive;
    std::vector<Node*> _held; // one reference of the client's each
    std::vector<Node*> _lost; // references that an assignment left behind
};

} // namespace

TEST(Random, AgreesWithAPlainModel) {
    constexpr unsigned seed = 1;
    World world(seed);
    for (int step = 0; step < 10000; ++step) {
        world.Step();
        world.Verify();
        if (HasFailure()) FAIL() << "step " << step << ", seed " << seed;
    }
}
