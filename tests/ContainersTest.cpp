#include "TestSupport.h"

namespace {

using Child = VEKPrtGraphicPrimitiveElt;

template <class Container>
class EveryContainer : public testing::Test {};
TYPED_TEST_SUITE(EveryContainer, Containers, );

VEKRef<VEKPrtLineElt> Line(const char* iId) {
    auto line = Make<VEKPrtLineElt>();
    line->SetID(iId);
    return line;
}

// The identifiers of the children, joined; "null" without a list.
template <class List>
std::string Ids(const List* iList) {
    if (!iList) return "null";
    std::string ids;
    for (int position = 1; position <= iList->Size(); ++position)
        ids += Id(*static_cast<Child*>((*iList)[position]));
    return ids;
}

} // namespace

TYPED_TEST(EveryContainer, KeepsChildrenInOrderWithAReferenceForEach) {
    const auto a = Line("a"), b = Line("b"), stranger = Line("x");
    {
        const auto container = Make<TypeParam>();
        EXPECT_EQ(Ids(ListOf(*container)), "null");
        container->AddChild(nullptr);
        container->AddChild(container.Get());
        container->RemoveChild(a.Get());
        EXPECT_EQ(Ids(ListOf(*container)), "null");
        for (const auto* const child : {&a, &b, &a})
            container->AddChild(child->Get());
        EXPECT_EQ(Ids(ListOf(*container)), "aba");
        EXPECT_EQ(Count(a), 3UL);
        container->RemoveChild(a.Get());
        EXPECT_EQ(Ids(ListOf(*container)), "ba") << "the first occurrence goes";
        EXPECT_EQ(Count(a), 2UL);
        container->RemoveChild(stranger.Get());
        container->RemoveChild(container.Get());
        container->RemoveChild(nullptr);
        EXPECT_EQ(Count(stranger), 1UL);
        EXPECT_EQ(Count(container), 1UL);
        container->RemoveChild(a.Get());
        container->RemoveChild(b.Get());
        EXPECT_EQ(Ids(ListOf(*container)), "") << "an empty list, no longer none";
        container->AddChild(a.Get());
        container->AddChild(a.Get());
    }
    EXPECT_EQ(Count(a), 1UL) << "destruction releases each occurrence";
    EXPECT_EQ(Count(b), 1UL);
}

TYPED_TEST(EveryContainer, CopiesShareTheChildren) {
    const auto a = Line("a");
    const auto source = Make<TypeParam>();
    EXPECT_EQ(Ids(ListOf(*Make<TypeParam>(*source))), "null");
    source->AddChild(a.Get());
    ListOf(*source)->Append(nullptr);
    source->AddChild(a.Get());
    EXPECT_EQ(ListOf(*Duplicated(*source))->Size(), 2) << "a null entry is passed over";
    {
        const auto copy = Make<TypeParam>(*source);
        EXPECT_EQ(Ids(ListOf(*copy)), "aa");
        EXPECT_NE(ListOf(*copy), ListOf(*source));
        EXPECT_EQ(Count(a), 5UL);
    }
    EXPECT_EQ(Count(a), 3UL);
    WithSelfCopy<TypeParam>([](TypeParam& ioCopy) { EXPECT_EQ(Ids(ListOf(ioCopy)), "null"); });
}

TYPED_TEST(EveryContainer, DuplicatesInDepth) {
    const auto a = Line("a");
    const auto inner = Make<VEKPrtGroupElt>();
    inner->AddChild(a.Get());
    const auto source = Make<TypeParam>();
    EXPECT_EQ(Ids(ListOf(*Duplicated(*source))), "null");
    source->AddChild(inner.Get());
    source->AddChild(a.Get());
    source->AddChild(a.Get());
    const auto copy = Duplicated(*source);
    const auto& children = *ListOf(*copy);
    ASSERT_EQ(children.Size(), 3);
    a->SetID("changed");
    EXPECT_NE(children[2], children[3]) << "a child held twice becomes two";
    EXPECT_EQ(Count(static_cast<Child*>(children[2])), 1UL);
    auto* const group = static_cast<VEKPrtGroupElt*>(children[1]);
    EXPECT_EQ(Ids(ListOf(*group)) + Ids(&children), "aaa");
}

namespace {

template <class Container>
class ContainerAssign : public testing::Test {};
TYPED_TEST_SUITE(ContainerAssign, Containers, );

} // namespace

TYPED_TEST(ContainerAssign, LeavesTheLastReference) {
    const auto a = Line("a"), b = Line("b"), c = Line("c");
    const auto target = Make<TypeParam>(), source = Make<TypeParam>();
    *target = *source;
    EXPECT_EQ(Ids(ListOf(*target)), "null") << "both without a list: left alone";
    for (const auto* const child : {&a, &b, &c})
        target->AddChild(child->Get());
    *target = *source;
    EXPECT_EQ(Ids(ListOf(*target)), "") << "a list, although the source has none";
    EXPECT_EQ(Count(a), 1UL);
    EXPECT_EQ(Count(b), 1UL);
    EXPECT_EQ(Count(c), 2UL) << "the walk from 0 to count - 1 misses the last";
    c->Release();

    source->AddChild(a.Get());
    source->AddChild(b.Get());
    *target = *source;
    *target = *std::as_const(target).Get();
    EXPECT_EQ(Ids(ListOf(*target)), "ab");
    EXPECT_EQ(Count(b), 3UL);
}

TYPED_TEST(ContainerAssign, SurvivesReleasingItsSource) {
    const auto a = Line("a");
    const auto target = Make<TypeParam>();
    auto source = Make<TypeParam>();
    source->AddChild(a.Get());
    source->SetTitle("source");
    const TypeParam& soleOwned = *source;
    target->AddChild(source.Get());
    target->AddChild(a.Get());
    source = VEKRef<TypeParam>();
    *target = soleOwned;
    EXPECT_EQ(Ids(ListOf(*target)), "a");
    VEKUnicodeString title;
    target->GetTitle(title);
    EXPECT_STREQ(title.ToUtf8(), "source");
    EXPECT_EQ(Count(a), 3UL) << "ours, the target's, and the one that the walk missed";
    a->Release();
}

TEST(ClosedFigure, SurvivesReleasingItsSource) {
    const auto target = Make<VEKPrtClosedFigureElt>();
    auto source = Make<VEKPrtClosedFigureElt>();
    source->SetDrawStyle(VEKPrtDrawBoth);
    source->AddChild(Make<VEKPrtClosedFigureRegionElt>().Get());
    const VEKPrtClosedFigureElt& soleOwned = *source;
    {
        const auto region = Make<VEKPrtClosedFigureRegionElt>();
        region->AddChild(source.Get());
        target->AddChild(region.Get());
    }
    source = VEKRef<VEKPrtClosedFigureElt>();
    *target = soleOwned;
    VEKPrtDrawStyle style;
    target->GetDrawStyle(style);
    EXPECT_EQ(style, VEKPrtDrawBoth);
    VEKListPtrVEKPrtClosedFigureRegionElt* regions = nullptr;
    target->GetChildren(regions);
    EXPECT_EQ(regions->Size(), 1);
}

TYPED_TEST(EveryContainer, SurvivesExhaustedMemory) {
    const auto a = Line("a");
    const auto container = Make<TypeParam>();
    WithFault(0, [&] { container->AddChild(a.Get()); });
    EXPECT_EQ(Ids(ListOf(*container)), "null");
    EXPECT_EQ(Count(a), 1UL) << "without a list the child is not touched";
    WithFault(1, [&] { container->AddChild(a.Get()); });
    EXPECT_EQ(Ids(ListOf(*container)), "");
    EXPECT_EQ(Count(a), 2UL) << "dropped by the list, but counted";
    a->Release();
    container->AddChild(a.Get());

    // Of a copy: the element, the list, its growth.
    WithFault(1, [&] { EXPECT_EQ(Ids(ListOf(*Make<TypeParam>(*container))), "null"); });
    WithFault(2, [&] { EXPECT_EQ(Ids(ListOf(*Make<TypeParam>(*container))), ""); });
    EXPECT_EQ(Count(a), 3UL);
    a->Release();
    const auto target = Make<TypeParam>();
    WithFault(0, [&] { *target = *container; });
    EXPECT_EQ(Ids(ListOf(*target)), "null");
    EXPECT_EQ(Count(a), 2UL);
}

TYPED_TEST(EveryContainer, DuplicateIsStoredBeforeItsChildren) {
    static VEKPrtGraphicPrimitiveElt *copy, *seen;
    copy = seen = nullptr;
    struct Witness : VEKPrtLineElt {
        void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override {
            seen = copy;
            oCopy = nullptr;
        }
    };
    const auto container = Make<TypeParam>();
    container->AddChild(Make<Witness>().Get());
    static_cast<Child&>(*container).Duplicate(copy);
    EXPECT_EQ(seen, copy);
    copy->Release();
}

TYPED_TEST(EveryContainer, DuplicatesWhatMemoryAllows) {
    const DemandedLeak leak(1);
    const auto a = Make<VEKPrtLineElt>(), b = Make<VEKPrtLineElt>();
    const auto container = Make<TypeParam>();
    container->AddChild(a.Get());
    container->AddChild(b.Get());
    // The element, its list, then for the first child: the child and the growth of the list.
    WithFault(1, [&] { EXPECT_EQ(ListOf(*Duplicated(*container)), nullptr); });
    WithFault(2, [&] { EXPECT_EQ(ListOf(*Duplicated(*container))->Size(), 1) << "left out"; });
    WithFault(3, [&] { EXPECT_EQ(ListOf(*Duplicated(*container))->Size(), 1) << "dropped and lost"; });
    WithFault(4, [&] { EXPECT_EQ(ListOf(*Duplicated(*container))->Size(), 1); });
}

TEST(Group, CopiesItsRecords) {
    const auto group = Make<VEKPrtGroupElt>();
    VEKPrtGroupAttributes attributes;
    attributes.SetLinkURI("link");
    group->SetGroupAttributes(attributes);
    VEKPrtTransformAttributes transform;
    transform.AddRotation(30.0F);
    group->SetTransformAttributes(transform);
    const auto assigned = Make<VEKPrtGroupElt>();
    *assigned = *group;
    for (const auto& copy : {Make<VEKPrtGroupElt>(*group), assigned, Duplicated(*group)}) {
        VEKPrtGroupAttributes copied;
        VEKPrtTransformAttributes copiedTransform;
        copy->GetGroupAttributes(copied);
        copy->GetTransformAttributes(copiedTransform);
        VEKPrintLinkURI link;
        copied.GetLinkURI(link);
        EXPECT_STREQ(link.GetURI(), "link");
        float angle = 0;
        EXPECT_EQ(copiedTransform.GetRotation(0, angle), 1);
    }
}

namespace {

using Boxes = testing::Types<VEKPrtPatternElt, VEKPrtSymbolElt>;
template <class Box>
class BoxContainer : public testing::Test {};
TYPED_TEST_SUITE(BoxContainer, Boxes, );

} // namespace

TYPED_TEST(BoxContainer, CopiesItsBoxAndTransform) {
    const auto box = Make<TypeParam>(VEKMathPoint2D(1, 2), 3.0, 4.0);
    VEKPrtTransformAttributes transform;
    transform.AddSkewX(1.0F);
    box->SetTransformAttributes(transform);
    const auto assigned = Make<TypeParam>(), set = Make<TypeParam>();
    VEKMathPoint2D corner(9, 9);
    double side = 9, other = 9;
    set->GetOrigin(corner);
    set->GetSize(side, other);
    EXPECT_EQ(corner, VEKMathPoint2D());
    EXPECT_EQ(side + other, 0.0);
    set->SetOrigin(VEKMathPoint2D(1, 2));
    set->SetSize(3, 4);
    set->SetTransformAttributes(transform);
    *assigned = *box;
    for (const auto& copy : {set, Make<TypeParam>(*box), assigned, Duplicated(*box)}) {
        VEKMathPoint2D origin;
        double width = 0, height = 0;
        copy->GetOrigin(origin);
        copy->GetSize(width, height);
        EXPECT_EQ(origin, VEKMathPoint2D(1, 2));
        EXPECT_EQ(width * 10 + height, 34.0);
        VEKPrtTransformAttributes copied;
        copy->GetTransformAttributes(copied);
        float angle = 0;
        EXPECT_EQ(copied.GetSkewX(0, angle), 1);
    }
}

namespace {

VEKListPtrVEKPrtClosedFigureRegionElt* RegionsOf(VEKPrtClosedFigureElt& ioFigure) {
    VEKListPtrVEKPrtClosedFigureRegionElt* regions = nullptr;
    ioFigure.GetChildren(regions);
    return regions;
}

VEKListPtrVEKPrtImageElt* ImagesOf(const VEKPrtModel& iModel) {
    VEKListPtrVEKPrtImageElt* images = nullptr;
    iModel.GetImages(images);
    return images;
}

// Figure and model behave alike but for the names of their operations.
void AddTo(VEKPrtClosedFigureElt& ioFigure, VEKPrtClosedFigureRegionElt* iRegion) {
    ioFigure.AddChild(iRegion);
}
void AddTo(VEKPrtModel& ioModel, VEKPrtImageElt* iImage) { ioModel.AddImage(iImage); }
void RemoveFrom(VEKPrtClosedFigureElt& ioFigure, VEKPrtClosedFigureRegionElt* iRegion) {
    ioFigure.RemoveChild(iRegion);
}
void RemoveFrom(VEKPrtModel& ioModel, VEKPrtImageElt* iImage) { ioModel.RemoveImage(iImage); }
auto ListOf(VEKPrtClosedFigureElt& ioFigure) { return RegionsOf(ioFigure); }
auto ListOf(VEKPrtModel& ioModel) { return ImagesOf(ioModel); }

template <class Holder, class Member>
void HoldsCompletely() {
    const auto a = Make<Member>(), b = Make<Member>();
    a->SetID("a");
    b->SetID("b");
    {
        const auto holder = Make<Holder>(), empty = Make<Holder>();
        EXPECT_EQ(Ids(ListOf(*holder)), "null");
        AddTo(*holder, nullptr);
        *holder = *empty;
        EXPECT_EQ(Ids(ListOf(*holder)), "null");
        for (const auto* const member : {&a, &b, &a})
            AddTo(*holder, member->Get());
        RemoveFrom(*holder, a.Get());
        RemoveFrom(*holder, nullptr);
        EXPECT_EQ(Ids(ListOf(*holder)), "ba");
        const auto copy = Make<Holder>(*holder);
        EXPECT_EQ(Ids(ListOf(*copy)), "ba");
        *copy = *holder;
        EXPECT_EQ(Count(a), 3UL);
        *copy = *empty;
        EXPECT_EQ(Ids(ListOf(*copy)), "");
        EXPECT_EQ(Count(a), 2UL) << "the walk from 1 releases every member";
        EXPECT_EQ(Count(b), 2UL);
        RemoveFrom(*copy, a.Get());
        EXPECT_EQ(Count(a), 2UL);
        WithFault(0, [&] { AddTo(*empty, a.Get()); });
        EXPECT_EQ(Count(a), 2UL);
    }
    EXPECT_EQ(Count(a), 1UL);
    EXPECT_EQ(Count(b), 1UL);
}

} // namespace

TEST(ClosedFigure, HoldsItsRegionsCompletely) {
    HoldsCompletely<VEKPrtClosedFigureElt, VEKPrtClosedFigureRegionElt>();
}
TEST(Model, HoldsItsImagesCompletely) {
    HoldsCompletely<VEKPrtModel, VEKPrtImageElt>();
    const auto model = Make<VEKPrtModel>(), assigned = Make<VEKPrtModel>();
    int host = 0;
    model->SetImpl(&host);
    *assigned = *model;
    EXPECT_EQ(assigned->GetImpl(), &host);
    EXPECT_EQ(Make<VEKPrtModel>(*model)->GetImpl(), nullptr);
    WithSelfCopy<VEKPrtModel>([](const VEKPrtModel& iCopy) { EXPECT_EQ(ImagesOf(iCopy), nullptr); });
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
    region->AddChild(Line("a").Get());
    VEKPrtTransformAttributes transform;
    transform.AddScaleY(2.0);
    region->SetTransformAttributes(transform);
    const auto figure = Make<VEKPrtClosedFigureElt>();
    figure->AddChild(region.Get());
    figure->SetDrawStyle(VEKPrtDrawBoth);
    const auto copy = Duplicated(*figure);
    EXPECT_EQ(typed, 1);
    VEKPrtGraphicPrimitiveElt* element = nullptr;
    region->VEKPrtClosedFigureRegionElt::Duplicate(element);
    EXPECT_EQ(typed, 1) << "neither slot calls the other";
    EXPECT_TRUE(VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(element));
    VEKPrtDrawStyle style;
    copy->GetDrawStyle(style);
    EXPECT_EQ(style, VEKPrtDrawBoth);
    auto* const copiedRegion = static_cast<VEKPrtClosedFigureRegionElt*>((*RegionsOf(*copy))[1]);
    EXPECT_EQ(Ids(ListOf(*copiedRegion)), "a");
    EXPECT_NE((*ListOf(*copiedRegion))[1], (*ListOf(*region))[1]);
    copiedRegion->GetTransformAttributes(transform);
    double scale = 0;
    EXPECT_EQ(transform.GetScaleY(0, scale), 1);
}

TEST(Lists, CopyPointersOnly) {
    const auto a = Line("a");
    VEKListPtrVEKPrtGraphicPrimitiveElt list(0);
    list.Append(a.Get());
    VEKListPtrVEKPrtGraphicPrimitiveElt copy(list), assigned(4);
    assigned = copy;
    assigned = *&assigned;
    EXPECT_EQ(Ids(&assigned), "a");
    EXPECT_EQ(Count(a), 1UL);
}
