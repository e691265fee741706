// Fails every allocation of every copying operation in turn, alone and from there on.
#include <functional>
#include <optional>

#include "TestSupport.h"

namespace {

template <class Element>
class EveryAllocation : public testing::Test {};
TYPED_TEST_SUITE(EveryAllocation, AllElements, );

// Each overload fills what a class has, if it has it.
template <class Element>
auto FillStroke(Element& ioElement, int) -> decltype(ioElement.SetStrokeAttributes({})) {
    VEKPrtStrokeAttributes stroke;
    const float dashes[] = {1, 2, 3};
    stroke.SetStrokeTypePattern(dashes, 3);
    ioElement.SetStrokeAttributes(stroke);
}
template <class Element>
auto FillTransform(Element& ioElement, int) -> decltype(ioElement.SetTransformAttributes({})) {
    VEKPrtTransformAttributes transform;
    transform.AddMatrix(VEKMath2x2Matrix(1, 2, 3, 4));
    transform.AddRotation(5.0F);
    ioElement.SetTransformAttributes(transform);
}
template <class Element>
auto FillPoints(Element& ioElement, int) -> decltype(ioElement.SetPoints(static_cast<double*>(nullptr), 2)) {
    ioElement.SetPoints(static_cast<double*>(nullptr), 2);
}
template <class Element>
auto FillTable(Element& ioElement, int) -> decltype(ioElement.SetColourTable(nullptr)) {
    auto* const table = new VEKPrtColourTable;
    unsigned index = 0;
    table->AddColour(1, 2, 3, index);
    ioElement.SetColourTable(table);
}
template <class Element>
void FillStroke(Element&, long) {}
template <class Element>
void FillTransform(Element&, long) {}
template <class Element>
void FillPoints(Element&, long) {}
template <class Element>
void FillTable(Element&, long) {}

void FillOwn(VEKPrtTextElt& ioText) { ioText.SetText("text"); }
void FillOwn(VEKPrtPolyPolygonElt& ioPolygons) {
    const int counts[] = {2, 1};
    ioPolygons.SetPoints(nullptr, counts, 2);
}
void FillOwn(VEKPrtNURBSElt& ioCurve) {
    const double values[] = {1, 2, 3, 4, 5, 6};
    ioCurve.SetParameters(2, 2, values, values, 0.0F, 1.0F, values);
}
void FillOwn(VEKPrtGraphicPrimitiveElt&) {}

// Of the page, a failure may lose arrays of the colour table's copy: those that came before or after the one
// that failed.
template <class Element>
constexpr long mayLose = std::is_same<Element, VEKPrtImageElt>::value ? 2 : 0;

} // namespace

TYPED_TEST(EveryAllocation, CanFail) {
    std::optional<DemandedLeak> leak;
    if (mayLose<TypeParam>) leak.emplace(0, 0);
    const auto source = Make<TypeParam>();
    source->SetID("id");
    source->SetTitle("title");
    FillStroke(*source, 0);
    FillTransform(*source, 0);
    FillPoints(*source, 0);
    FillTable(*source, 0);
    FillOwn(*source);

    struct Operation {
        const char* name;
        std::function<void()> run;
    };
    const Operation operations[] = {{"duplicated", [&] { Duplicated(*source); }},
                                    {"copied", [&] { VEKRef<TypeParam>::Adopt(new TypeParam(*source)); }},
                                    {"assigned", [&] {
                                         const auto target = VEKRef<TypeParam>::Adopt(new TypeParam);
                                         if (target) *target = *source;
                                     }}};
    for (const auto& [name, run] : operations) {
        for (const bool sticky : {false, true}) {
            const long before = Allocations();
            run();
            const long allocations = Allocations() - before;
            EXPECT_GE(allocations, 1);
            for (long nth = 0; nth < allocations; ++nth) {
                SCOPED_TRACE(std::string(TypeParam::ClassName()) + " " + name + ", allocation " +
                             std::to_string(nth));
                const long objects = VEKBaseUnknown::CountLiveObjects(), blocks = LiveBlocks();
                AllocationFaults faults(nth, sticky);
                run();
                EXPECT_GE(faults.Stop(), 1) << "nothing failed";
                const long lost = LiveBlocks() - blocks;
                EXPECT_EQ(VEKBaseUnknown::CountLiveObjects(), objects);
                EXPECT_GE(lost, 0);
                EXPECT_LE(lost, mayLose<TypeParam>);
                DemandedLeak::Add(0, lost);
            }
        }
    }
    EXPECT_EQ(Id(*source), "id");
}

TEST(Footprint, OneAllocationForALineAndAmortisedGrowthForItsList) {
    const auto group = Make<VEKPrtGroupElt>();
    group->AddChild(Make<VEKPrtLineElt>().Get());
    const long before = Allocations();
    constexpr int lines = 1000;
    for (int i = 0; i < lines; ++i)
        group->AddChild(Make<VEKPrtLineElt>(VEKMathPoint2D(1, 2), VEKMathPoint2D(3, 4)).Get());
    EXPECT_LE(Allocations() - before, lines + 10);
}
