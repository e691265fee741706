// All operations of all classes.  At random, side by side with a plain model of contents and reference
// counts: after each step all objects must agree with it.  And each operation by itself, with every
// allocation failing in turn, alone and from there on.
//
// VEKPRT_RANDOM_STEPS and VEKPRT_RANDOM_SEED in the environment say how many random steps, and which.
#include <iostream>
#include <random>
#include <set>

#include "Rows.h"

namespace {

using Object = VEKBaseUnknown;
using Ref = VEKRef<Object>;
using Base = VEKPrtGraphicPrimitiveElt;
const std::string g_parameters = "Parameters";

// What a class can do, with its objects untyped.
struct Kind {
    const char* name;
    Fields<Object> fields = {
        FieldBy<Object, void*>("Impl", &Object::SetImpl, &Object::GetImpl, {{nullptr}, {&g_font}})};
    std::size_t uncopied = 1; // how many of them copies do not carry: an element's identity, too
    bool duplicatesAll = false;
    bool keepsLast = false; // whether an assignment passes over the last of the old members
    long mayLose = 0;       // arrays of a page's colour table: those that came before or after a failed one
    std::function<Object*()> make = {};
    std::function<Object*(Object&)> copy = {};
    std::function<Object*(Object&)> duplicate = {};
    std::function<Object*(Object&, Object&)> assign = {};
    std::function<const VEKRawCollPV*(const Object&)> list = [](const Object&) { return nullptr; };
    std::function<bool(const Object&)> accepts = [](const Object&) { return false; };
    std::function<void(Object&, Object*)> add = {}, remove = {};
};

template <class Class>
Kind KindOf() {
    Kind kind{Row<Class>::name};
    const auto typed = [](Object& ioObject) -> Class& { return static_cast<Class&>(ioObject); };
    kind.mayLose = std::is_same_v<Class, VEKPrtImageElt> ? 2 : 0;
    kind.make = [] { return new Class; };
    kind.copy = [=](Object& iSource) { return new Class(typed(iSource)); };
    kind.assign = [=](Object& ioTarget, Object& iSource) { return &(typed(ioTarget) = typed(iSource)); };
    if constexpr (!isModel<Class>) {
        kind.duplicate = [=](Object& ioSource) { return Duplicated(typed(ioSource)).Detach(); };
        kind.duplicatesAll = Row<Class>::recipe != Duplication::ByConstruction;
        constexpr bool isBase = std::is_same_v<Class, Base>;
        if (!isBase) kind.uncopied += FieldsOf<Base>().size();
        for (const auto& fields : {FieldsOf<Base>(), isBase ? Fields<Object>() : FieldsOf<Class>()})
            std::copy_if(fields.begin(), fields.end(), std::back_inserter(kind.fields),
                         [](const Field<Object>& iField) { return iField.count > 0; });
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
        while (!_held.empty())
            Release();
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
            const auto* const list = kind.list(*node->real);
            EXPECT_EQ(list != nullptr, node->hasList) << kind.name;
            ASSERT_EQ(list ? list->Size() : 0, static_cast<int>(node->members.size())) << kind.name;
            int position = 0;
            for (const Node* const member : node->members)
                EXPECT_EQ((*list)[++position], member->real) << "member of a " << kind.name;
        }
    }

private:
    std::size_t Any(std::size_t iCount) { return _random() % iCount; }
    Node* AnyOf(const std::vector<Node*>& iNodes) { return iNodes[Any(iNodes.size())]; }

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
    Node* CopyOf(const Node& iSource, bool iDuplicates) {
        Node* const copy = Born(*iSource.kind);
        copy->values = iSource.values;
        if (!iDuplicates || !iSource.kind->duplicatesAll)
            std::fill_n(copy->values.begin(), iSource.kind->uncopied, 0);
        if (!iSource.hasList) return copy;
        Share(*copy, iDuplicates ? std::vector<Node*>() : iSource.members);
        for (const Node* const member : iSource.members)
            if (iDuplicates) copy->members.push_back(CopyOf(*member, true));
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
    std::string Create() {
        const Kind& kind = _kinds[Any(_kinds.size())];
        Hold(Born(kind), kind.make());
        return std::string("new ") + kind.name;
    }
    std::string Change(Node& ioNode) {
        const Fields<Object>& fields = ioNode.kind->fields;
        const std::size_t at = Any(fields.size()), value = Any(fields[at].count);
        fields[at].set(*ioNode.real, value);
        // Parameters are all the fields of its own that come before.
        for (std::size_t i = fields[at].name == g_parameters ? ioNode.kind->uncopied : at; i <= at; ++i)
            ioNode.values[i] = value;
        return ioNode.kind->name + (std::string(" set ") + fields[at].name);
    }
    std::string AddOrRemove() {
        Node& holder = *AnyOf(_held);
        if (!holder.kind->add) return "nothing";
        const bool adds = Any(3) > 0;
        std::vector<Node*> members = {nullptr};
        for (Node* const node : adds || Any(4) == 0 ? _held : holder.members)
            if (holder.kind->accepts(*node->real)) members.push_back(node);
        Node* const member = AnyOf(members);
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
            Hold(CopyOf(ioNode, false), kind.copy(*ioNode.real));
        } else if (operation == 1 && kind.duplicate) {
            Hold(CopyOf(ioNode, true), kind.duplicate(*ioNode.real));
        } else {
            // From one of its own class, itself included, or from a member that perhaps nobody else holds.
            std::vector<Node*> sources = {&ioNode};
            for (Node* const node : Any(3) == 0 ? ioNode.members : _held)
                if (node->kind == &kind) sources.push_back(node);
            Node* const source = AnyOf(sources);
            if (source != &ioNode && source->Contains(&ioNode)) return "nothing";
            EXPECT_EQ(kind.assign(*ioNode.real, *source->real), ioNode.real);
            Assign(ioNode, *source);
        }
        return kind.name + (" copy " + std::to_string(operation));
    }
    // Gives back what got lost as well, so that the world stays small.
    std::string Release() {
        _lost.push_back(AnyOf(_held));
        _held.erase(std::find(_held.begin(), _held.end(), _lost.back()));
        for (Node* const node : std::exchange(_lost, {})) {
            node->real->Release();
            Drop(node);
        }
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

// A member that is its own duplicate, with one more reference: its count tells how often it was taken.
struct Counting : VEKPrtClosedFigureRegionElt {
    using Region = VEKPrtClosedFigureRegionElt;
    void Duplicate(Base*& oCopy) override { oCopy = VEKRef<Base>::Share(this).Detach(); }
    void Duplicate(Region*& oCopy) override { oCopy = VEKRef<Region>::Share(this).Detach(); }
};

// One operation on a new object: yields that object, or the one that it made.  A setter is a field as well.
struct Operation {
    Field<Object> field;
    std::function<Object*(Object&)> run;
};

std::vector<Operation> OperationsOf(const Kind& iKind, Object& ioSource, Object* iMember) {
    std::vector<Operation> operations = {
        {Field<Object>{"copied"}, [&](Object&) { return iKind.copy(ioSource); }},
        {Field<Object>{"assigned"}, [&](Object& ioTarget) { return iKind.assign(ioTarget, ioSource); }}};
    if (iKind.duplicate)
        operations.push_back(
            {Field<Object>{"duplicated"}, [&](Object&) { return iKind.duplicate(ioSource); }});
    const auto addSetter = [&](Field<Object> iField) {
        operations.push_back({iField, [=](Object& ioTarget) { return iField.set(ioTarget, 1), &ioTarget; }});
    };
    std::for_each(iKind.fields.begin(), iKind.fields.end(), addSetter);
    const auto add = [=](Object& ioHolder, std::size_t) { iKind.add(ioHolder, iMember); };
    const auto isHeld = [=](const Object& iHolder, std::size_t) {
        return testing::AssertionResult(iKind.list(iHolder)->Size() > 0);
    };
    if (iKind.add) addSetter({"member", {}, 2, add, isHeld});
    return operations;
}

void ExpectFields(const Kind& iKind, const Object& iObject, std::size_t iValue, std::size_t iFirst = 0) {
    for (std::size_t i = iFirst; i < iKind.fields.size(); ++i)
        EXPECT_TRUE(iKind.fields[i].has(iObject, iValue)) << iKind.name;
}

// Runs an operation with an allocation that fails; yields whether it got that far.
bool RunsIntoFault(const Kind& iKind, const Operation& iOperation, Object& ioMember, long iNth,
                   bool iSticky) {
    const long objects = VEKBaseUnknown::CountLiveObjects(), blocks = LiveBlocks();
    const unsigned long references = Count(&ioMember);
    bool hit = false;
    {
        const auto target = Ref::Adopt(iKind.make());
        AllocationFaults faults(iNth, iSticky);
        Object* const result = iOperation.run(*target);
        hit = faults.Stop() > 0;
        const auto owner = result == target.Get() ? Ref() : Ref::Adopt(result);
        const auto* const list = result ? iKind.list(*result) : nullptr;
        EXPECT_EQ(Count(&ioMember), references + (list ? 1 : 0));
        if (list && list->Size() == 0) ioMember.Release(); // lost, as the list could not grow
        if (iOperation.field.count > 0) {
            iOperation.field.set(*target, 1);
            EXPECT_TRUE(iOperation.field.has(*target, 1)) << "set again";
        } else if (!hit) {
            EXPECT_EQ(list != nullptr, iKind.add != nullptr);
            ExpectFields(iKind, *result, 1, iKind.uncopied);
        }
    }
    const long lost = LiveBlocks() - blocks;
    DemandedLeak::Add(0, lost);
    EXPECT_TRUE(lost >= 0 && lost <= (hit ? iKind.mayLose : 0)) << lost;
    EXPECT_EQ(VEKBaseUnknown::CountLiveObjects(), objects);
    EXPECT_EQ(Count(&ioMember), references);
    return hit;
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

TEST(EveryAllocation, CanFail) {
    const DemandedLeak leak(0, 0);
    for (const Kind& kind : KindsOf(AllElements())) {
        const auto source = Ref::Adopt(kind.make());
        for (const Field<Object>& field : kind.fields)
            field.set(*source, 1);
        auto member = Ref::Adopt(new Counting);
        if (!kind.accepts(*member)) member = Ref::Adopt(new VEKPrtImageElt);
        if (kind.add) kind.add(*source, member.Get());
        for (const Operation& operation : OperationsOf(kind, *source, member.Get()))
            for (const bool sticky : {false, true}) {
                bool hit = true;
                for (long nth = 0; hit; ++nth) {
                    SCOPED_TRACE(std::string(kind.name) + " " + operation.field.name + ", allocation " +
                                 std::to_string(nth) + (sticky ? " and all that follow" : ""));
                    hit = RunsIntoFault(kind, operation, *member, nth, sticky);
                    EXPECT_TRUE(hit || nth > 0 || operation.field.count > 0) << "nothing failed";
                }
                ExpectFields(kind, *source, 1);
            }
        kind.assign(*source, *Ref::Adopt(kind.make()));
        ExpectFields(kind, *source, 0);
        if (kind.keepsLast) member->Release();
    }
}
