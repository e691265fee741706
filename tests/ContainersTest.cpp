// What containers do beyond the random test: null entries, re-entrant clients, the regions' own slot.
#include <functional>

#include "TestSupport.h"

namespace {

using Child = VEKPrtGraphicPrimitiveElt;

SUITE_OF(EveryContainer, Containers);
// All that hold members by count.
SUITE_OF(EveryHolder, Holders);

template <class Element = Child>
VEKRef<Element> Named(const char* iId) {
    auto element = Make<Element>();
    element->SetID(iId);
    return element;
}

// A client's class that does something while it is destroyed.
template <class Base>
struct Dying : Base {
    std::function<void(Dying&)> last;
    ~Dying() override {
        if (last) last(*this);
    }
};

// A client's class that is duplicated in its own way.
struct Duplicating : VEKPrtLineElt {
    std::function<void(Child*&)> duplicate;
    void Duplicate(Child*& oCopy) override { duplicate(oCopy); }
};

// Gives a holder two members: one that it alone holds and that does something as it goes, and one that the
// release walk may miss.
template <class Holder, class Last>
void AddDying(Holder& ioHolder, MemberOf<Holder>& ioSecond, Last iLast) {
    const auto member = Make<Dying<MemberOf<Holder>>>();
    member->last = [iLast](auto&) { iLast(); };
    AddTo(ioHolder, member.Get());
    AddTo(ioHolder, &ioSecond);
}
// The last of the old members keeps a reference, except in the closed figure and the model.
template <class Holder, class Element>
void ReleaseMissed(const VEKRef<Element>& iElement) {
    if (!isFigure<Holder> && !isModel<Holder>) iElement->Release();
}

} // namespace

TYPED_TEST(EveryContainer, PassesOverNull) {
    const auto a = Named("a");
    const auto source = Make<TypeParam>(), assigned = Make<TypeParam>();
    source->AddChild(a.Get());
    ListOf(*source)->Append(nullptr);
    const auto copy = Duplicated(*source);
    *assigned = *source;
    for (const auto& each : {Make<TypeParam>(*source), copy, assigned}) {
        EXPECT_EQ(IdsIn(*each), "a");
        EXPECT_EQ(ListOf(*each)->Size(), 1);
    }
    *source = *assigned;
    EXPECT_EQ(Count(a), 3UL) << "null at the last position: all old children are released";
    ListOf(*copy)->Append(copy.Get());
    copy->RemoveChild(copy.Get());
    EXPECT_EQ(ListOf(*copy)->Size(), 2) << "its own member by another way: ignored";
    ListOf(*copy)->RemovePosition(2);
}

TYPED_TEST(EveryHolder, SurvivesReleasingItsSource) {
    using Member = MemberOf<TypeParam>;
    const auto target = Make<TypeParam>();
    const auto a = Named<Member>("a"), second = Named<Member>("second");
    auto source = Make<TypeParam>();
    AddTo(*source, a.Get());
    source->SetImpl(&source);
    AddDying(*target, *second, [source] {});
    const TypeParam& soleOwned = *source;
    source = VEKRef<TypeParam>();
    *target = soleOwned;
    EXPECT_EQ(IdsIn(*target), "a");
    EXPECT_EQ(target->GetImpl(), &source);
    EXPECT_EQ(Make<TypeParam>(*target)->GetImpl(), nullptr);
    ReleaseMissed<TypeParam>(second);
}

TYPED_TEST(EveryHolder, CanBeCopiedWhileItIsDestroyed) {
    using Member = MemberOf<TypeParam>;
    const auto keep = Make<TypeParam>();
    const auto a = Named<Member>("a"), b = Named<Member>("b");
    AddTo(*keep, a.Get());
    auto source = Make<Dying<TypeParam>>();
    TypeParam& holder = *source;
    AddTo(holder, b.Get());
    int destroyed = 0;
    source->last = [&](const TypeParam& iSource) {
        ++destroyed;
        *keep = iSource;
    };
    source = VEKRef<Dying<TypeParam>>();
    EXPECT_EQ(destroyed, 1);
    EXPECT_EQ(IdsIn(*keep), "b");
    EXPECT_EQ(Count(b), 2UL);
    ReleaseMissed<TypeParam>(a);
}

TYPED_TEST(EveryHolder, LooksAtTheSourcesListWhenTheOldMembersAreGone) {
    using Member = MemberOf<TypeParam>;
    const auto target = Make<TypeParam>(), source = Make<TypeParam>(), other = Make<TypeParam>();
    const auto a = Named<Member>("a"), b = Named<Member>("b"), second = Named<Member>("second");
    AddDying(*target, *second, [&] { AddTo(*source, a.Get()); });
    *target = *source;
    EXPECT_EQ(IdsIn(*target), "a") << "a list that was made meanwhile";
    AddTo(*other, b.Get());
    const auto again = Make<TypeParam>();
    AddDying(*again, *second, [&] { *source = *other; });
    *again = *source;
    EXPECT_EQ(IdsIn(*again), "b") << "a list that was replaced meanwhile";
    ReleaseMissed<TypeParam>(a);
    ReleaseMissed<TypeParam>(second);
    ReleaseMissed<TypeParam>(second);
}

TYPED_TEST(EveryHolder, LooksAtItsOwnListAfterEachMember) {
    using Member = MemberOf<TypeParam>;
    struct Joining : Member {
        TypeParam* holder = nullptr;
        unsigned long AddRef() override {
            if (holder) *holder = *Make<TypeParam>();
            return Member::AddRef();
        }
    };
    const auto a = Named<Member>("a");
    auto dying = Make<TypeParam>();
    AddDying(*dying, *a, [&a, &holder = *dying] { AddTo(holder, a.Get()); });
    dying = VEKRef<TypeParam>();
    EXPECT_EQ(Count(a), 1UL) << "what was added meanwhile is given back";

    const auto holder = Make<TypeParam>();
    AddTo(*holder, a.Get());
    const auto joining = Make<Joining>();
    joining->SetID("joining");
    joining->holder = holder.Get();
    AddTo(*holder, joining.Get());
    joining->holder = nullptr;
    EXPECT_EQ(IdsIn(*holder), "joining") << "added to the list that replaced the old one";
    ReleaseMissed<TypeParam>(a);
}

TYPED_TEST(EveryContainer, DuplicateIsStoredBeforeItsChildrenAndSurvivesLosingThem) {
    const auto container = Make<TypeParam>();
    const auto witness = Make<Duplicating>(), thief = Make<Duplicating>();
    const auto last = Named("last");
    for (Child* const child :
         {static_cast<Child*>(witness.Get()), static_cast<Child*>(thief.Get()), last.Get()})
        container->AddChild(child);
    Child *copy = nullptr, *seen = nullptr;
    witness->duplicate = [&](Child*& oCopy) {
        seen = copy;
        oCopy = nullptr;
    };
    thief->duplicate = [&](Child*& oCopy) {
        *container = *Make<TypeParam>();
        thief->VEKPrtLineElt::Duplicate(oCopy);
    };
    static_cast<Child&>(*container).Duplicate(copy);
    EXPECT_EQ(seen, copy);
    EXPECT_EQ(ListOf(static_cast<TypeParam&>(*copy))->Size(), 1) << "what yields null is left out";
    copy->Release();
    last->Release();
}

TEST(Image, HasNoColourTableWhileItsChildrenGo) {
    auto page = Make<VEKPrtImageElt>();
    page->SetColourTable(new VEKPrtColourTable);
    auto child = Make<Dying<VEKPrtLineElt>>();
    child->last = [&holder = *page](auto&) {
        VEKPrtColourTable* table = nullptr;
        holder.GetColourTable(table);
        EXPECT_EQ(table, nullptr);
    };
    page->AddChild(child.Get());
    child = VEKRef<Dying<VEKPrtLineElt>>();
    page = VEKRef<VEKPrtImageElt>();
}

TEST(ClosedFigure, DuplicatesThroughTheRegionsOwnSlot) {
    using RegionElt = VEKPrtClosedFigureRegionElt;
    struct Region : RegionElt {
        int typed = 0;
        void Duplicate(Child*& oCopy) override { oCopy = nullptr; }
        void Duplicate(RegionElt*& oCopy) override {
            ++typed;
            RegionElt::Duplicate(oCopy);
        }
    };
    const auto region = Make<Region>();
    region->AddChild(Named("a").Get());
    const auto figure = Make<VEKPrtClosedFigureElt>();
    figure->AddChild(region.Get());
    const auto copy = Duplicated(*figure);
    EXPECT_EQ(IdsIn(*ChildrenOf(*copy).begin()), "a");
    EXPECT_NE(&*ChildrenOf(*ChildrenOf(*copy).begin()).begin(), &*ChildrenOf(*region).begin());
    Child* element = nullptr;
    region->RegionElt::Duplicate(element);
    EXPECT_EQ(region->typed, 1) << "neither slot calls the other";
    element->Release();
}

using Lists = testing::Types<VEKListPtrVEKPrtGraphicPrimitiveElt, VEKListPtrVEKPrtImageElt,
                             VEKListPtrVEKPrtClosedFigureRegionElt>;
SUITE_OF(EveryList, Lists);

TYPED_TEST(EveryList, CopiesPointersOnly) {
    const auto a = Named("a");
    TypeParam list(0), assigned(4);
    list.Append(a.Get());
    const TypeParam copy(list);
    assigned = copy;
    assigned = *&assigned;
    for (const TypeParam* const each : {&copy, &std::as_const(assigned)})
        EXPECT_TRUE(each->Size() == 1 && (*each)[1] == a.Get());
    EXPECT_EQ(Count(a), 1UL);
}
