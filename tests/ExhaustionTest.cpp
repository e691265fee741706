// Fails every allocation of every copying operation in turn, alone and from there on.
#include <optional>

#include "Fields.h"

namespace {

SUITE_OF(EveryAllocation, AllElements);

template <class Element>
void SetAll(Element& ioElement) {
    for (const auto& fields : {FieldsOf<Element>(), RecordsOf<Element>()})
        for (const auto& field : fields)
            field.set(ioElement, 1);
    const double values[] = {1, 2, 3, 4, 5, 6};
    const int counts[] = {2, 1};
    if constexpr (In<Element, PointArrays>) ioElement.SetPoints(values, 2);
    if constexpr (std::is_same_v<Element, VEKPrtPolyPolygonElt>) ioElement.SetPoints(values, counts, 2);
    if constexpr (std::is_same_v<Element, VEKPrtNURBSElt>)
        ioElement.SetParameters(2, 2, values, values, 0.0F, 1.0F, values);
    if constexpr (std::is_same_v<Element, VEKPrtImageElt>) {
        auto* const table = new VEKPrtColourTable;
        unsigned index = 0;
        table->AddColour(1, 2, 3, index);
        ioElement.SetColourTable(table);
    }
}

// Of the page, a failure may lose arrays of the colour table's copy: those that came before or after the one
// that failed.
template <class Element>
constexpr long mayLose = std::is_same_v<Element, VEKPrtImageElt> ? 2 : 0;

} // namespace

TYPED_TEST(EveryAllocation, CanFail) {
    std::optional<DemandedLeak> leak;
    if (mayLose<TypeParam>) leak.emplace(0, 0);
    const auto source = Make<TypeParam>();
    source->SetID("id");
    SetAll(*source);

    const std::pair<const char*, std::function<void()>> operations[] = {
        {"duplicated", [&] { Duplicated(*source); }},
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
