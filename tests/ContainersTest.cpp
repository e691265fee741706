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

// The identifiers of the members, joined; "null" without a list.
std::string Ids(const VEKRawCollPV* iList) {
    std::string ids = iList ? "" : "null";
    for (int position = 1; iList && position <= iList->Size(); ++position)
        ids += Id(*static_cast<Child*>((*iList)[position]));
    return ids;
}
template <class Holder>
std::string IdsIn(Holder& ioHolder) {
    return Ids(ListOf(ioHolder));
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
    EXPECT_EQ(IdsIn(*Make<TypeParam>(*source)), "a");
    const auto copy = Duplicated(*source);
    EXPECT_EQ(IdsIn(*copy), "a");
    *assigned = *source;
    EXPECT_EQ(IdsIn(*assigned), "a");
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

TYPED_TEST(EveryContainer, DuplicateIsStoredBeforeItsChildren) {
    const auto container = Make<TypeParam>();
    const auto witness = Make<Duplicating>();
    container->AddChild(witness.Get());
    VEKPrtGraphicPrimitiveElt *copy = nullptr, *seen = nullptr;
    witness->duplicate = [&](Child*& oCopy) {
        seen = copy;
        oCopy = nullptr;
    };
    static_cast<Child&>(*container).Duplicate(copy);
    EXPECT_EQ(seen, copy);
    EXPECT_EQ(IdsIn(static_cast<TypeParam&>(*copy)), "") << "what yields null is left out";
    copy->Release();
}

TYPED_TEST(EveryContainer, SurvivesLosingItsListWhileItIsDuplicated) {
    const auto container = Make<TypeParam>();
    const auto thief = Make<Duplicating>();
    const auto last = Named("last");
    container->AddChild(thief.Get());
    container->AddChild(last.Get());
    thief->duplicate = [&](Child*& oCopy) {
        *container = *Make<TypeParam>();
        thief->VEKPrtLineElt::Duplicate(oCopy);
    };
    EXPECT_EQ(ListOf(*Duplicated(*container))->Size(), 1);
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

TEST(Model, CopiesTheDataWordsByAssignmentOnly) {
    const auto model = Make<VEKPrtModel>(), assigned = Make<VEKPrtModel>();
    model->SetImpl(&*model);
    *assigned = *model;
    EXPECT_EQ(assigned->GetImpl(), model.Get());
    EXPECT_EQ(Make<VEKPrtModel>(*model)->GetImpl(), nullptr);
}

TEST(ClosedFigure, DuplicatesThroughTheRegionsOwnSlot) {
    static int typed;
    typed = 0;
    struct Region : VEKPrtClosedFigureRegionElt {
        void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override { oCopy = nullptr; }
        void Duplicate(VEKPrtClosedFigureRegionElt*& oCopy) override {
            ++typed;
            VEKPrtClosedFigureRegionElt::Duplicate(oCopy);
        }
    };
    const auto region = Make<Region>();
    region->AddChild(Named("a").Get());
    const auto figure = Make<VEKPrtClosedFigureElt>();
    figure->AddChild(region.Get());
    const auto copy = Duplicated(*figure);
    EXPECT_EQ(typed, 1);
    VEKPrtGraphicPrimitiveElt* element = nullptr;
    region->VEKPrtClosedFigureRegionElt::Duplicate(element);
    EXPECT_EQ(typed, 1) << "neither slot calls the other";
    EXPECT_TRUE(VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(element));
    auto* const copiedRegion = static_cast<VEKPrtClosedFigureRegionElt*>((*ListOf(*copy))[1]);
    EXPECT_EQ(IdsIn(*copiedRegion), "a");
    EXPECT_NE((*ListOf(*copiedRegion))[1], (*ListOf(*region))[1]);
}

using Lists = testing::Types<VEKListPtrVEKPrtGraphicPrimitiveElt, VEKListPtrVEKPrtImageElt,
                             VEKListPtrVEKPrtClosedFigureRegionElt>;
SUITE_OF(EveryList, Lists);

TYPED_TEST(EveryList, CopiesPointersOnly) {
    const auto a = Named("a");
    TypeParam list(0);
    list.Append(a.Get());
    TypeParam copy(list), assigned(4);
    assigned = copy;
    assigned = *&assigned;
    EXPECT_EQ(Ids(&assigned), "a");
    EXPECT_EQ(Ids(&copy), "a");
    EXPECT_EQ(Count(a), 1UL);
}
