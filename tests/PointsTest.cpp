#include <climits>
#include <numeric>

#include "TestSupport.h"
#include "VEKListPtrVEKMathPoint2D.h"

namespace {

using Values = std::vector<double>;

// The values of an array, {-1} for null; points to the doubles, as many as the count says.
Values Read(const double* iArray, long long iCount) {
    return iArray ? Values(iArray, iArray + (iCount > 0 ? iCount : 0)) : Values{-1};
}
const Values g_null = {-1};

template <class Element>
void ExpectPoints(const Element& iElement, int iCount, const Values& iPoints, const char* iWhat = "") {
    double* points = nullptr;
    int count = -99;
    iElement.GetPoints(points, count);
    EXPECT_EQ(Read(points, 2LL * count), iPoints) << iElement.IsA() << ' ' << iWhat;
    EXPECT_EQ(count, iCount) << iElement.IsA() << ' ' << iWhat;
}

template <class Replace>
void ExpectRoomReused(Replace iReplace) {
    ResetPeak();
    const long blocks = LiveBlocks();
    iReplace();
    EXPECT_EQ(PeakBlocks(), blocks) << "the old arrays go before the new ones come";
}

template <class Element>
constexpr bool isDisjoint = std::is_same_v<Element, VEKPrtDisjointPolylineElt>;
template <class Element>
constexpr bool readsFromZero = isDisjoint<Element> || std::is_same_v<Element, VEKPrtPolygonElt>;

SUITE_OF(EveryPointArray, ElementsWith<HasPoints>);

const double g_five[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};

} // namespace

TYPED_TEST(EveryPointArray, ConstructsFromLists) {
    VEKMathPoint2D a(1, 2), b(3, 4), c(5, 6);
    VEKListPtrVEKMathPoint2D list(0);
    ExpectPoints(TypeParam(list), 0, g_null);
    for (VEKMathPoint2D* const point : {&a, static_cast<VEKMathPoint2D*>(nullptr), &b, &c})
        list.Append(point);
    ExpectPoints(TypeParam(list), 4,
                 readsFromZero<TypeParam> ? Values{0, 0, 1, 2, 0, 0, 3, 4} : Values{1, 2, 0, 0, 3, 4, 5, 6});
    list.RemovePosition(4);
    const bool rounds = isDisjoint<TypeParam>;
    ExpectPoints(TypeParam(list), rounds ? 2 : 3,
                 rounds                     ? Values{0, 0, 1, 2}
                 : readsFromZero<TypeParam> ? Values{0, 0, 1, 2, 0, 0}
                                            : Values{1, 2, 0, 0, 3, 4});
    WithFault(0, [&] { ExpectPoints(TypeParam(list), rounds ? 2 : 3, g_null, "no array"); });
    for (const int position : {3, 2})
        list.RemovePosition(position);
    if (!rounds) ExpectPoints(TypeParam(list), 1, readsFromZero<TypeParam> ? Values{0, 0} : Values{1, 2});
    static_assert(std::is_convertible<const VEKListPtrVEKMathPoint2D&, TypeParam>::value, "clients convert");
}

TYPED_TEST(EveryPointArray, ConstructsFromArrays) {
    constexpr bool rounds = isDisjoint<TypeParam>;
    ExpectPoints(TypeParam(), 0, g_null);
    ExpectPoints(TypeParam(g_five, 3), rounds ? 2 : 3,
                 rounds ? Values{1, 2, 3, 4} : Values{1, 2, 3, 4, 5, 6});
    ExpectPoints(TypeParam(g_five, 0), 0, rounds ? g_null : Values{}, "no points");
    ExpectPoints(TypeParam(g_five, -3), rounds ? -2 : -3, g_null, "a negative count");
    ExpectPoints(TypeParam(g_five, INT_MIN), INT_MIN, g_null);
    ExpectPoints(TypeParam(static_cast<const double*>(nullptr), 2), 2, {0, 0, 0, 0}, "no source");
    if constexpr (!rounds) {
        const float narrow[] = {1.5F, 0.1F};
        ExpectPoints(TypeParam(narrow, 1), 1, {1.5, static_cast<double>(0.1F)});
    }
}

TYPED_TEST(EveryPointArray, ReplacesAsGiven) {
    const auto element = Make<TypeParam>();
    element->SetPoints(g_five, 5);
    ExpectPoints(*element, 5, Values(g_five, g_five + 10), "SetPoints rounds nothing");
    ExpectRoomReused([&] { element->SetPoints(g_five, 5); });
    double* own = nullptr;
    int count = 0;
    element->GetPoints(own, count);
    element->SetPoints(own + 6, 3);
    ExpectPoints(*element, 3, {7, 8, 9, 10, 0, 0}, "from inside its own array, as far as that goes");
    element->SetPoints(g_five, 0);
    ExpectPoints(*element, 0, {}, "an array of no length");
    element->GetPoints(own, count);
    element->SetPoints(own, 2);
    ExpectPoints(*element, 2, {0, 0, 0, 0}, "nothing to read in an own array of no length");
    WithFault(0, [&] { element->SetPoints(g_five, 4); });
    ExpectPoints(*element, 4, g_null, "no array: the count is kept");
    ExpectPoints(*Make<TypeParam>(*element), 0, g_null, "copied from an element without an array");
}

TYPED_TEST(EveryPointArray, CopiesItsArray) {
    const auto source = Make<TypeParam>(g_five, 4), target = Make<TypeParam>();
    target->SetPoints(g_five, -7);
    *target = *Make<TypeParam>();
    ExpectPoints(*target, -7, g_null, "neither has an array: the count stays");
    *target = *source;
    *target = *std::as_const(target).Get();
    const auto copy = Make<TypeParam>(*source), duplicate = Duplicated(*source);
    source->SetPoints(nullptr, 1);
    for (const auto& element : {target, copy, duplicate})
        ExpectPoints(*element, 4, Values(g_five, g_five + 8));
    *target = *Make<TypeParam>(g_five, 0);
    ExpectPoints(*target, 0, g_null, "an array of no length is not copied");
    *copy = *Make<TypeParam>(g_five, -3);
    ExpectPoints(*copy, 0, g_null, "a source without an array has no count either");
    WithFault(0, [&] { *copy = *duplicate; });
    ExpectPoints(*copy, 4, g_null, "no array: the source's count");
}

namespace {

using Counts = std::vector<int>;
using Polygons = std::tuple<Values, Counts, int>;
const Counts g_noCounts = {-1};
const int g_counts[] = {2, 1};
const Polygons g_three = {{1, 2, 3, 4, 5, 6}, {2, 1}, 2};

Polygons PolygonsOf(const VEKPrtPolyPolygonElt& iElement) {
    double* points = nullptr;
    int *counts = nullptr, count = 0;
    iElement.GetPoints(points, counts, count);
    const Counts each = counts ? Counts(counts, counts + std::max(count, 0)) : g_noCounts;
    return {Read(points, counts ? 2 * std::accumulate(each.begin(), each.end(), 0LL) : 0), each, count};
}

} // namespace

TEST(PolyPolygon, HoldsPointsAndCounts) {
    using P = VEKPrtPolyPolygonElt;
    const int cancelling[] = {2, -2}, lowering[] = {3, -2}, huge[] = {INT_MAX, INT_MAX};
    const Polygons two = {{1, 2, 3, 4}, {2}, 1}, one = {{1, 2}, {3, -2}, 2}, none = {g_null, g_noCounts, -1};
    // What is given, and what a setter and a constructor make of it: the latter no array for no points.
    const std::tuple<const double*, const int*, int, Polygons, Polygons> rows[] = {
        {g_five, g_counts, 2, g_three, g_three},
        {g_five, g_counts, 1, two, two},
        {g_five, g_counts, 0, {{}, {}, 0}, {g_null, {}, 0}},
        {g_five, g_counts, -1, none, none},
        {g_five, cancelling, 2, {{}, {2, -2}, 2}, {g_null, {2, -2}, 2}},
        {g_five, lowering, 2, one, one},
        {g_five, nullptr, 2, {{}, {0, 0}, 2}, {g_null, {0, 0}, 2}},
        {nullptr, g_counts, 2, {Values(6), {2, 1}, 2}, {Values(6), {2, 1}, 2}}};
    for (const auto& [points, counts, count, set, constructed] : rows) {
        const auto element = Make<P>();
        element->SetPoints(points, counts, count);
        EXPECT_EQ(PolygonsOf(*element), set);
        EXPECT_EQ(PolygonsOf(P(points, counts, count)), constructed);
    }
    EXPECT_EQ(PolygonsOf(P()), (Polygons{g_null, g_noCounts, 0}));
    const float narrow[] = {1, 2, 3, 4, 5, 6};
    EXPECT_EQ(PolygonsOf(P(narrow, g_counts, 2)), g_three);
    EXPECT_EQ(PolygonsOf(P(narrow, cancelling, 2)), (Polygons{g_null, {2, -2}, 2}));
    WithFault(1, [&] { EXPECT_EQ(std::get<1>(PolygonsOf(P(g_five, huge, 2)))[1], INT_MAX); });
}

TEST(PolyPolygon, FreesBeforeItAllocates) {
    const auto element = Make<VEKPrtPolyPolygonElt>(g_five, g_counts, 2);
    const auto curve = Make<VEKPrtNURBSElt>(2, 2, g_five, g_five, 0.0F, 1.0F, g_five);
    ExpectRoomReused([&] { element->SetPoints(g_five, g_counts, 2); });
    ExpectRoomReused([&] { curve->SetParameters(2, 2, g_five, g_five, 0.0F, 1.0F, g_five); });
}

TEST(PolyPolygon, CopiesWhatIsThere) {
    using P = VEKPrtPolyPolygonElt;
    const auto source = Make<P>(g_five, g_counts, 2), target = Make<P>(g_five, g_counts, 1);
    *target = *source;
    *target = *std::as_const(target).Get();
    for (const auto& copy : {target, Make<P>(*source), Duplicated(*source)})
        EXPECT_EQ(PolygonsOf(*copy), g_three);
    const int zero[] = {0}, one[] = {1}, cancelling[] = {2, -2};
    EXPECT_EQ(PolygonsOf(*Make<P>(*Make<P>(g_five, one, 1))), (Polygons{{1, 2}, {1}, 1}));
    *target = *Make<P>(g_five, zero, 1);
    EXPECT_EQ(PolygonsOf(*target), (Polygons{g_null, g_noCounts, 0})) << "a source without a point array";
    const auto other = Make<P>();
    other->SetPoints(g_five, cancelling, 2);
    *target = *other;
    EXPECT_EQ(PolygonsOf(*target), (Polygons{g_null, {2, -2}, 2})) << "an array of no length is not copied";

    WithFault(1, [&] { other->SetPoints(g_five, g_counts, 2); });
    EXPECT_EQ(PolygonsOf(*other), (Polygons{g_null, {2, 1}, 2})) << "counts stay without points";
    WithFault(0, [&] { other->SetPoints(g_five, g_counts, 2); });
    EXPECT_EQ(PolygonsOf(*other), (Polygons{g_null, g_noCounts, 2}));
    WithFault(0, [&] { *target = *source; });
    EXPECT_EQ(PolygonsOf(*target), (Polygons{g_null, g_noCounts, 2}));
}

TEST(PolyPolygon, ReadsNothingBeyondItsOwnArrays) {
    const auto element = Make<VEKPrtPolyPolygonElt>(g_five, g_counts, 2);
    double* points = nullptr;
    int *own = nullptr, count = 0;
    element->GetPoints(points, own, count);
    element->SetPoints(points + 2, own, 3);
    EXPECT_EQ(PolygonsOf(*element), (Polygons{{3, 4, 5, 6, 0, 0}, {2, 1, 0}, 3}));
}

namespace {

struct NurbsData {
    int order = 0, count = 0;
    double *points = nullptr, *knots = nullptr, *weights = nullptr;
    float first = -1, second = -1;
};

NurbsData DataOf(const VEKPrtNURBSElt& iCurve) {
    NurbsData d;
    iCurve.GetParameters(d.order, d.count, d.points, d.knots, d.first, d.second, d.weights);
    return d;
}

void ExpectNurbs(const VEKPrtNURBSElt& iCurve, const Values& iPoints, const Values& iKnots,
                 const Values& iWeights, int iOrder, int iCount, float iFirst, float iSecond) {
    const NurbsData d = DataOf(iCurve);
    EXPECT_EQ(std::tuple(Read(d.points, 2LL * d.count), Read(d.knots, d.order + d.count),
                         Read(d.weights, d.count), d.order, d.count, d.first, d.second),
              std::tuple(iPoints, iKnots, iWeights, iOrder, iCount, iFirst, iSecond));
}

const double g_points[] = {1, 2, 3, 4};
const double g_knots[] = {10, 11, 12, 13, 14, 15};
const double g_weights[] = {20, 21, 22};

} // namespace

TEST(NURBS, SetParametersReadsFromTheSecondElement) {
    using N = VEKPrtNURBSElt;
    const auto curve = Make<N>();
    ExpectNurbs(*curve, g_null, g_null, g_null, 0, 0, 0.0F, 1.0F);
    curve->SetParameters(3, 2, g_points, g_knots, 0.25F, 0.75F, g_weights);
    ExpectNurbs(*curve, {1, 2, 3, 4}, {11, 12, 13, 14, 15}, {21, 22}, 3, 2, 0.25F, 0.75F);
    ExpectNurbs(N(3, 2, g_points, g_knots, 0.25F, 0.75F, g_weights), {1, 2, 3, 4}, {10, 11, 12, 13, 14},
                {20, 21}, 3, 2, 0.25F, 0.75F);
    const float points[] = {1, 2, 3, 4}, knots[] = {5, 6, 7}, weights[] = {8, 9};
    ExpectNurbs(N(1, 2, points, knots, 0.0F, 2.0F, weights), {1, 2, 3, 4}, {5, 6, 7}, {8, 9}, 1, 2, 0.0F,
                2.0F);
    ExpectNurbs(N(-1, 2, g_points, g_knots, 0.0F, 2.0F, g_weights), {1, 2, 3, 4}, {10}, {20, 21}, -1, 2, 0.0F,
                2.0F);
}

TEST(NURBS, NeedsAllArraysAndAPositiveCount) {
    using N = VEKPrtNURBSElt;
    for (int missing = 0; missing < 3; ++missing) {
        const double* arrays[] = {g_points, g_knots, g_weights};
        arrays[missing] = nullptr;
        const auto curve = Make<N>(3, 2, arrays[0], arrays[1], 0.5F, 2.0F, arrays[2]);
        ExpectNurbs(*curve, g_null, g_null, g_null, 3, 2, 0.5F, 2.0F);
        curve->SetParameters(3, 2, g_points, g_knots, 0.0F, 1.0F, g_weights);
        curve->SetParameters(3, 2, arrays[0], arrays[1], 0.5F, 2.0F, arrays[2]);
        ExpectNurbs(*curve, g_null, g_null, g_null, 3, 2, 0.5F, 2.0F);
    }
    const auto curve = Make<N>(3, 0, g_points, g_knots, 0.5F, 2.0F, g_weights);
    ExpectNurbs(*curve, g_null, g_null, g_null, 3, 0, 0.5F, 2.0F);
    curve->SetParameters(3, 2, g_points, g_knots, 0.0F, 1.0F, g_weights);
    curve->SetParameters(4, -2, g_points, g_knots, 0.5F, 3.0F, g_weights);
    ExpectNurbs(*curve, g_null, g_null, g_null, 4, -2, 0.5F, 3.0F);
}

TEST(NURBS, CopiesResetTheBounds) {
    using N = VEKPrtNURBSElt;
    const auto curve = Make<N>(3, 2, g_points, g_knots, 0.25F, 0.75F, g_weights), target = Make<N>();
    target->SetParameters(1, 1, g_points, g_knots, 0.1F, 0.2F, g_weights);
    *target = *curve;
    for (const auto& copy : {target, Make<N>(*curve), Duplicated(*curve)})
        ExpectNurbs(*copy, {1, 2, 3, 4}, {10, 11, 12, 13, 14}, {20, 21}, 3, 2, 0.0F, 1.0F);
    *target = *Make<N>(5, 2, g_points, g_knots, 0.5F, 2.0F, static_cast<const double*>(nullptr));
    ExpectNurbs(*target, g_null, g_null, g_null, 5, 0, 0.0F, 1.0F);
    for (long nth = 0; nth < 3; ++nth) {
        WithFault(nth, [&] { *target = *curve; });
        const NurbsData data = DataOf(*target);
        EXPECT_EQ(data.count, 2);
        EXPECT_EQ(!data.points + 2 * !data.knots + 4 * !data.weights, 1 << nth) << "the others stay";
        for (const double* const array : {data.points, data.knots, data.weights})
            EXPECT_EQ(array ? array[0] : 0.0, 0.0) << "uncopied";
        ExpectNurbs(*Make<N>(*target), g_null, g_null, g_null, 3, 0, 0.0F, 1.0F);
        WithFault(nth, [&] { target->SetParameters(3, 2, g_points, g_knots, 0.0F, 1.0F, g_weights); });
        const double* const got = nth == 0 ? DataOf(*target).knots : DataOf(*target).points;
        EXPECT_EQ(got[0], 0.0) << "uncopied";
    }
    WithFault(1, [&] {
        EXPECT_NE(DataOf(N(INT_MAX, 2, g_points, g_knots, 0.0F, 1.0F, g_weights)).weights, nullptr)
            << "so many knots are asked for";
    });
    *curve = *std::as_const(curve).Get();
    ExpectNurbs(*curve, {1, 2, 3, 4}, {10, 11, 12, 13, 14}, {20, 21}, 3, 2, 0.25F, 0.75F);
}

// Each argument is judged by the first element that is read.  The new points come to lie where the old knots
// were.
TEST(NURBS, ReadsOwnArraysBeforeTheyGo) {
    const auto curve = Make<VEKPrtNURBSElt>(3, 2, g_points, g_knots, 0.0F, 1.0F, g_weights);
    const NurbsData old = DataOf(*curve);
    const double points[] = {5, 6, 7, 8};
    curve->SetParameters(3, 2, points, old.knots - 1, 0.0F, 1.0F, old.weights - 1);
    ExpectNurbs(*curve, {5, 6, 7, 8}, {10, 11, 12, 13, 14}, {20, 21}, 3, 2, 0.0F, 1.0F);
    // An array of one knot holds nothing from its second element on.
    const auto least = Make<VEKPrtNURBSElt>(0, 1, g_points, g_knots, 0.0F, 1.0F, g_weights);
    const std::unique_ptr<double[]> knots(DataOf(*least).knots);
    least->SetParameters(0, 1, points, knots.get(), 0.0F, 1.0F, g_weights);
    ExpectNurbs(*least, {5, 6}, {0}, {21}, 0, 1, 0.0F, 1.0F);
}

TEST(NURBS, LeavesArraysPassedBackToTheCaller) {
    const auto curve = Make<VEKPrtNURBSElt>(2, 2, g_points, g_knots, 0.0F, 1.0F, g_weights);
    const NurbsData old = DataOf(*curve);
    curve->SetParameters(3, 3, old.points, old.knots, 0.0F, 1.0F, old.weights);
    ExpectNurbs(*curve, {1, 2, 3, 4, 0, 0}, {11, 12, 13, 0, 0, 0}, {21, 0, 0}, 3, 3, 0.0F, 1.0F);
    const std::unique_ptr<double[]> points(old.points), knots(old.knots), weights(old.weights);
    EXPECT_EQ(old.knots[3], 13.0) << "still the caller's to read";

    NurbsData now = DataOf(*curve);
    curve->SetParameters(3, 3, now.points + 2, now.knots + 1, 0.0F, 1.0F, now.weights + 1);
    ExpectNurbs(*curve, {3, 4, 0, 0, 0, 0}, {13, 0, 0, 0, 0, 0}, {0, 0, 0}, 3, 3, 0.0F, 1.0F);
    now = DataOf(*curve);
    curve->SetParameters(1, 0, now.points, now.knots, 0.0F, 1.0F, now.weights);
    EXPECT_EQ(DataOf(*curve).knots, now.knots) << "no new array takes its place: it stays held";
}
