// Random operations on objects of all classes and, side by side, on a plain model of their contents and
// reference counts.  After each step all objects must agree with it.
//
// VEKPRT_RANDOM_STEPS and VEKPRT_RANDOM_SEED in the environment say how many steps, and which.
#include <iostream>
#include <random>
#include <set>

#include "Rows.h"

namespace {

using Object = VEKBaseUnknown;
using Base = VEKPrtGraphicPrimitiveElt;
const std::string g_parameters = "Parameters";

// What a class can do, with its objects untyped.
struct Kind {
    const char* name;
    Fields<Object> fields = {}; // of an element the identity strings first
    std::size_t identity = 0;   // how many of them copies do not carry
    bool duplicatesIdentity = false;
    bool keepsLast = false; // whether an assignment passes over the last of the old members
    std::function<Object*()> make = {};
    std::function<Object*(Object&)> copy = {};
    std::function<Object*(Object&)> duplicate = {};
    std::function<void(Object&, Object&)> assign = {};
    std::function<const VEKRawCollPV*(const Object&)> list = {};
    std::function<bool(const Object&)> accepts = {};
    std::function<void(Object&, Object*)> add = {}, remove = {};
};

template <class Class, class Fielded>
void AddFields(Kind& ioKind) {
    for (const Field<Fielded>& field : FieldsOf<Fielded>())
        if (field.count > 0)
            ioKind.fields.push_back({field.name,
                                     {},
                                     field.count,
                                     [=](Object& ioObject, std::size_t iValue) {
                                         field.set(static_cast<Class&>(ioObject), iValue);
                                     },
                                     {},
                                     [=](const Object& iObject, std::size_t iValue) {
                                         return field.has(static_cast<const Class&>(iObject), iValue);
                                     }});
}

template <class Class>
Kind KindOf() {
    Kind kind{Row<Class>::name};
    const auto typed = [](Object& ioObject) -> Class& { return static_cast<Class&>(ioObject); };
    kind.make = [] { return new Class; };
    kind.copy = [=](Object& iSource) { return new Class(typed(iSource)); };
    kind.assign = [=](Object& ioTarget, Object& iSource) { typed(ioTarget) = typed(iSource); };
    if constexpr (!isModel<Class>) {
        constexpr bool isBase = std::is_same_v<Class, Base>;
        kind.duplicate = [=](Object& ioSource) { return Duplicated(typed(ioSource)).Detach(); };
        kind.duplicatesIdentity = isBase || Row<Class>::recipe != Duplication::ByConstruction;
        AddFields<Class, Base>(kind);
        if (!isBase) kind.identity = kind.fields.size();
        if (!isBase) AddFields<Class, Class>(kind);
    }
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
    return {KindOf<Classes>()..., KindOf<VEKPrtModel>()};
}

// The plain side of an object.
struct Node {
    const Kind* kind;
    Object* real = nullptr;
    long references = 1;
    std::vector<std::size_t> values = std::vector<std::size_t>(kind->fields.size());
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

    /// Says what it did.
    std::string Step() {
        const std::size_t operation = _held.size() > 20 ? 9 : Any(10);
        if (operation < 2 || _held.empty()) return Create();
        Node& node = *AnyOf(_held);
        if (operation < 5) return Change(node);
        if (operation < 7) return AddOrRemove();
        if (operation < 9) return CopyOrAssign(node);
        return Release();
    }

    void Verify() const {
        for (const Node* const node : _alive) {
            const Kind& kind = *node->kind;
            EXPECT_EQ(Count(node->real), static_cast<unsigned long>(node->references)) << kind.name;
            for (std::size_t i = 0; i < node->values.size(); ++i)
                if (kind.fields[i].name != g_parameters) { // several fields, which are looked at alone
                    EXPECT_TRUE(kind.fields[i].has(*node->real, node->values[i])) << kind.name;
                }
            std::vector<const void*> expected, found;
            for (const Node* const member : node->members)
                expected.push_back(member->real);
            const auto* const list = kind.list ? kind.list(*node->real) : nullptr;
            for (int position = 1; list && position <= list->Size(); ++position)
                found.push_back((*list)[position]);
            EXPECT_EQ(found, expected) << "the members of a " << kind.name;
            EXPECT_EQ(list != nullptr, node->hasList) << kind.name;
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
        copy->values = iSource.values;
        std::fill_n(copy->values.begin(), iSource.kind->identity, 0);
        if (iSource.hasList) Share(*copy, iSource.members);
        return copy;
    }
    Node* DuplicateOf(const Node& iSource) {
        Node* const copy = Born(*iSource.kind);
        copy->values = iSource.values;
        if (!iSource.kind->duplicatesIdentity) std::fill_n(copy->values.begin(), iSource.kind->identity, 0);
        copy->hasList = iSource.hasList;
        for (const Node* const member : iSource.members)
            copy->members.push_back(DuplicateOf(*member));
        return copy;
    }
    void Assign(Node& ioTarget, Node& ioSource) {
        if (&ioTarget == &ioSource) return;
        ioTarget.values = ioSource.values;
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

    std::string Create() {
        const Kind& kind = _kinds[Any(_kinds.size())];
        Hold(Born(kind), kind.make());
        return std::string("new ") + kind.name;
    }
    std::string Change(Node& ioNode) {
        const Fields<Object>& fields = ioNode.kind->fields;
        if (fields.empty()) return "nothing";
        const std::size_t at = Any(fields.size()), value = Any(fields[at].count);
        fields[at].set(*ioNode.real, value);
        // Parameters are all the fields of its own that come before.
        for (std::size_t i = fields[at].name == g_parameters ? 3 : at; i <= at; ++i)
            ioNode.values[i] = value;
        return ioNode.kind->name + (std::string(" set ") + fields[at].name);
    }
    std::string AddOrRemove() {
        Node& holder = *AnyOf(_held);
        if (!holder.kind->list) return "nothing";
        const bool adds = Any(3) > 0;
        Node* const member = Any(10) == 0          ? nullptr
                             : adds || Any(4) == 0 ? AnyOf(_held)
                                                   : AnyOf(holder.members);
        if (member && !holder.kind->accepts(*member->real)) return "nothing";
        const bool isOwn = member == &holder;
        if (adds && member && !isOwn && (member->Contains(&holder) || holder.members.size() > 9))
            return "nothing";
        (adds ? holder.kind->add : holder.kind->remove)(*holder.real, member ? member->real : nullptr);
        const auto at = std::find(holder.members.begin(), holder.members.end(), member);
        if (adds && member && !isOwn) {
            holder.hasList = true;
            holder.members.push_back(member);
            ++member->references;
        } else if (!adds && at != holder.members.end()) {
            holder.members.erase(at);
            Drop(member);
        }
        return holder.kind->name + std::string(adds ? " add" : " remove");
    }
    std::string CopyOrAssign(Node& ioNode) {
        if (ioNode.Size() > 20) return "nothing";
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
                return "nothing";
            kind.assign(*ioNode.real, *source->real);
            Assign(ioNode, *source);
        }
        return kind.name + (" copy " + std::to_string(operation));
    }
    // Gives back what got lost as well, so that the world stays small.
    std::string Release() {
        _lost.push_back(AnyOf(_held));
        _held.erase(std::find(_held.begin(), _held.end(), _lost.back()));
        for (Node* const node : std::exchange(_lost, {}))
            GiveBack(node);
        return "release";
    }

    const std::vector<Kind> _kinds = KindsOf(AllElements());
    std::mt19937 _random;
    std::set<Node*> _alive;
    std::vector<Node*> _held; // one reference of the client's each
    std::vector<Node*> _lost; // references that an assignment left behind
};

long FromEnvironment(const char* iName, long iDefault) {
    const char* const value = std::getenv(iName);
    return value ? std::atol(value) : iDefault;
}

} // namespace

TEST(Random, AgreesWithAPlainModel) {
    const long steps = FromEnvironment("VEKPRT_RANDOM_STEPS", 10000);
    const long seed = FromEnvironment("VEKPRT_RANDOM_SEED", 1);
    std::cout << steps << " steps, seed " << seed << '\n';
    World world(static_cast<unsigned>(seed));
    for (long step = 0; step < steps; ++step) {
        const std::string done = world.Step();
        world.Verify();
        if (HasFailure()) FAIL() << "step " << step << " (" << done << "), seed " << seed;
    }
}
