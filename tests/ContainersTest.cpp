// What containers do beyond the random test: null entries, re-entrant clients, the regions' own slot.
#include "Fields.h"

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

// A client's class that is duplicated in its own way.
struct Duplicating : VEKPrtLineElt {
    std::function<void(Child*&)> duplicate;
    void Duplicate(Child*& oCopy) override { duplicate(oCopy); }
};

// Gives a holder a member that nobody else holds and that does something as it goes, and a null: assignment
// to a container passes over the last position.
template <class Holder>
void AddDying(
    Holder& ioHolder, const std::function<void()>& iLast = [] {}) {
    const auto member = Make<Hooked<MemberOf<Holder>>>();
    member->destroyed = [iLast](auto&) { iLast(); };
    AddTo(ioHolder, member.Get());
    ListOf(ioHolder)->Append(nullptr);
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
    const auto target = Make<TypeParam>();
    auto source = Make<TypeParam>();
    AddTo(*source, Named<MemberOf<TypeParam>>("a").Get());
    AddDying(*target, [source] {});
    const TypeParam& soleOwned = *source;
    source = VEKRef<TypeParam>();
    *target = soleOwned;
    EXPECT_EQ(IdsIn(*target), "a");
}

TYPED_TEST(EveryHolder, CanBeCopiedWhileItIsDestroyed) {
    const auto keep = Make<TypeParam>();
    const auto a = Named<MemberOf<TypeParam>>("a");
    AddDying(*keep);
    auto source = Make<Hooked<TypeParam>>();
    AddTo<TypeParam>(*source, a.Get());
    source->destroyed = [&](const TypeParam& iSource) { *keep = iSource; };
    source = VEKRef<Hooked<TypeParam>>();
    EXPECT_EQ(IdsIn(*keep), "a");
    EXPECT_EQ(Count(a), 2UL);
}

TYPED_TEST(EveryHolder, LooksAtTheSourcesListWhenTheOldMembersAreGone) {
    using Member = MemberOf<TypeParam>;
    const auto target = Make<TypeParam>(), source = Make<TypeParam>(), other = Make<TypeParam>();
    AddDying(*target, [&] {
        AddTo(*source, Named<Member>("a").Get());
        ListOf(*source)->Append(nullptr);
    });
    *target = *source;
    EXPECT_EQ(IdsIn(*target), "a") << "a list that was made meanwhile";
    AddTo(*other, Named<Member>("b").Get());
    const auto again = Make<TypeParam>();
    AddDying(*again, [&] { *source = *other; });
    *again = *source;
    EXPECT_EQ(IdsIn(*again), "b") << "a list that was replaced meanwhile";
}

TYPED_TEST(EveryHolder, LooksAtItsOwnListAfterEachMember) {
    using Member = MemberOf<TypeParam>;
    const auto a = Named<Member>("a");
    auto dying = Make<TypeParam>();
    AddDying(*dying, [&a, &holder = *dying] { AddTo(holder, a.Get()); });
    dying = VEKRef<TypeParam>();
    EXPECT_EQ(Count(a), 1UL) << "what was added meanwhile is given back";

    const auto holder = Make<TypeParam>();
    AddDying(*holder);
    const auto joining = Named<Hooked<Member>>("joining");
    joining->counted = [&] { *holder = *Make<TypeParam>(); };
    AddTo(*holder, joining.Get());
    joining->counted = nullptr;
    EXPECT_EQ(IdsIn(*holder), "joining") << "added to the list that replaced the old one";
}

TYPED_TEST(EveryContainer, DuplicateIsStoredBeforeItsChildrenAndSurvivesLosingThem) {
    const auto container = Make<TypeParam>();
    const auto witness = Make<Duplicating>(), thief = Make<Duplicating>();
    container->AddChild(witness.Get());
    container->AddChild(thief.Get());
    AddDying(*container);
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
}

TEST(Image, HasNoColourTableWhileItsChildrenGo) {
    auto page = Make<VEKPrtImageElt>();
    page->SetColourTable(new VEKPrtColourTable);
    AddDying(*page, [&holder = *page] { EXPECT_EQ(TableOf(holder), nullptr); });
    page = VEKRef<VEKPrtImageElt>();
}

TEST(ClosedFigure, DuplicatesThroughTheRegionsOwnSlot) {
    using RegionElt = VEKPrtClosedFigureRegionElt;
    struct Region : RegionElt {
        std::string calls;
        void Duplicate(Child*& oCopy) override {
            calls += "element ";
            RegionElt::Duplicate(oCopy);
        }
        void Duplicate(RegionElt*& oCopy) override {
            calls += "region ";
            RegionElt::Duplicate(oCopy);
        }
    };
    const auto region = Make<Region>();
    const auto figure = Make<VEKPrtClosedFigureElt>();
    const auto group = Make<VEKPrtGroupElt>();
    figure->AddChild(region.Get());
    group->AddChild(region.Get());
    Duplicated(*figure);
    EXPECT_EQ(region->calls, "region ");
    Duplicated(*group);
    EXPECT_EQ(region->calls, "region element ") << "neither slot calls the other";
}

TYPED_TEST(EveryHolder, HasAListThatCopiesPointersOnly) {
    using List = std::remove_pointer_t<decltype(ListOf(std::declval<TypeParam&>()))>;
    const auto a = Named("a");
    List list(0), assigned(4);
    list.Append(a.Get());
    const List copy(list);
    assigned = copy;
    assigned = *&assigned;
    for (const List* const each : {&copy, &std::as_const(assigned)})
        EXPECT_TRUE(each->Size() == 1 && (*each)[1] == a.Get());
    EXPECT_EQ(Count(a), 1UL);
}
