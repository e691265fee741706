// Arrays of points.
#include <array>
#include <climits>

#include "Fields.h"

namespace {

void ExpectRoomReused(const std::function<void()>& iReplace) {
    PeakBlocks();
    const long blocks = LiveBlocks();
    iReplace();
    EXPECT_EQ(PeakBlocks(), blocks) << "the old arrays go before the new ones come";
}

SUITE_OF(EveryPointArray, ElementsWith<HasPoints>);
} // namespace

TYPED_TEST(EveryPointArray, ConstructsFromListsAndArrays) {
    VEKMathPoint2D a(1, 2), b(3, 4), c(5, 6);
    VEKMathPoint2D* const points[] = {&a, nullptr, &b, &c};
    constexpr bool isDisjoint = std::is_same_v<TypeParam, VEKPrtDisjointPolylineElt>;
    // Of the disjoint polyline, of the polygon, and of the others.
    constexpr int column = isDisjoint ? 0 : std::is_same_v<TypeParam, VEKPrtPolygonElt> ? 1 : 2;
    const std::pair<int, std::array<const char*, 3>> lists[] = {
        {0, {"0 none", "0 none", "0 none"}},
        {1, {"0 none", "1 (0 0)", "1 (1 2)"}},
        {3, {"2 (0 0 1 2)", "3 (0 0 1 2 0 0)", "3 (1 2 0 0 3 4)"}},
        {4, {"4 (0 0 1 2 0 0 3 4)", "4 (0 0 1 2 0 0 3 4)", "4 (1 2 0 0 3 4 5 6)"}}};
    for (const auto& [count, expected] : lists) {
        VEKListPtrVEKMathPoint2D list(0);
        for (int i = 0; i < count; ++i)
            list.Append(points[i]);
        EXPECT_EQ(ShowPoints(TypeParam(list)), expected[column]);
        if (count == 4) WithFault(0, [&] { EXPECT_EQ(ShowPoints(TypeParam(list)), "4 none"); });
    }
    static_assert(std::is_convertible<const VEKListPtrVEKMathPoint2D&, TypeParam>::value, "clients convert");
    const std::tuple<const double*, int, const char*, const char*> arrays[] = {
        {g_five, 3, "2 (1 2 3 4)", "3 (1 2 3 4 5 6)"},
        {g_five, 0, "0 none", "0 ()"},
        {g_five, -3, "-2 none", "-3 none"},
        {g_five, INT_MIN, "-2147483648 none", "-2147483648 none"},
        {nullptr, 2, "2 (0 0 0 0)", "2 (0 0 0 0)"}};
    for (const auto& [array, count, disjoint, expected] : arrays)
        EXPECT_EQ(ShowPoints(TypeParam(array, count)), isDisjoint ? disjoint : expected);
    const float narrow[] = {1.5F, 2.25F};
    if constexpr (!isDisjoint) {
        EXPECT_EQ(ShowPoints(TypeParam(narrow, 1)), "1 (1.5 2.25)");
    }
}

TYPED_TEST(EveryPointArray, ReplacesAndCopiesAsGiven) {
    const auto element = Make<TypeParam>(), target = Make<TypeParam>();
    const auto shownWith = [&](const double* iPoints, int iCount) {
        element->SetPoints(iPoints, iCount);
        return ShowPoints(*element);
    };
    const auto assigned = [&] {
        *target = *element;
        return ShowPoints(*target);
    };
    EXPECT_EQ(shownWith(g_five, 5), "5 (1 2 3 4 5 6 7 8 9 10)") << "nothing is rounded";
    ExpectRoomReused([&] { element->SetPoints(g_five, 5); });
    EXPECT_EQ(shownWith(ArraysOf(*element).points + 6, 3), "3 (7 8 9 10 0 0)")
        << "from its own array, as far as that goes";
    EXPECT_EQ(assigned(), "3 (7 8 9 10 0 0)");
    EXPECT_EQ(shownWith(g_five, 0), "0 ()");
    EXPECT_EQ(assigned(), "0 none") << "an array of no length is not copied";
    EXPECT_EQ(shownWith(ArraysOf(*element).points, 2), "2 (0 0 0 0)") << "from an own array of no length";
    WithFault(0, [&] { EXPECT_EQ(assigned(), "2 none"); });
    WithFault(0, [&] { EXPECT_EQ(shownWith(g_five, 4), "4 none") << "the count is kept"; });
    EXPECT_EQ(assigned(), "2 none") << "neither has an array: the count stays";
    target->SetPoints(g_five, 1);
    EXPECT_EQ(assigned(), "0 none") << "a source without an array has no count either";
    EXPECT_EQ(ShowPoints(*Make<TypeParam>(*element)), "0 none");
}

TEST(PolyPolygon, HoldsPointsAndCounts) {
    using P = VEKPrtPolyPolygonElt;
    const int cancelling[] = {2, -2}, lowering[] = {3, -2}, huge[] = {INT_MAX, INT_MAX};
    const float narrow[] = {1, 2, 3, 4, 5, 6};
    struct {
        const double* points;
        const int* counts;
        int count;
        const char *set, *constructed; // the latter has no array for no points
        const char* assigned;
    } const rows[] = {
        {g_five, g_counts, 2, "2 (2 1) (1 2 3 4 5 6)", "2 (2 1) (1 2 3 4 5 6)", "2 (2 1) (1 2 3 4 5 6)"},
        {g_five, g_counts, 0, "0 () ()", "0 () none", "0 none none"},
        {g_five, g_counts, -1, "-1 none none", "-1 none none", "0 none none"},
        {g_five, cancelling, 2, "2 (2 -2) ()", "2 (2 -2) none", "2 (2 -2) none"},
        {g_five, lowering, 2, "2 (3 -2) (1 2)", "2 (3 -2) (1 2)", "2 (3 -2) (1 2)"},
        {g_five, nullptr, 2, "2 (0 0) ()", "2 (0 0) none", "2 (0 0) none"},
        {nullptr, g_counts, 2, "2 (2 1) (0 0 0 0 0 0)", "2 (2 1) (0 0 0 0 0 0)", "2 (2 1) (0 0 0 0 0 0)"}};
    for (const auto& row : rows) {
        const auto element = Make<P>(), target = Make<P>(g_five, g_counts, 2);
        element->SetPoints(row.points, row.counts, row.count);
        EXPECT_EQ(ShowPoints(*element), row.set);
        EXPECT_EQ(ShowPoints(P(row.points, row.counts, row.count)), row.constructed);
        *target = *element;
        EXPECT_EQ(ShowPoints(*target), row.assigned);
    }
    EXPECT_EQ(ShowPoints(P(narrow, g_counts, 2)), rows[0].set);
    AllocationFaults noRoom(1, false);
    const P most(g_five, huge, 2);
    EXPECT_EQ(noRoom.Stop(), sizeof(void*) > 4 ? 1 : 0) << "in 32 bits it is not even asked for";
    EXPECT_EQ(ShowPoints(most), "2 (2147483647 2147483647) none");

    const auto element = Make<P>(g_five, g_counts, 2), target = Make<P>(g_five, g_counts, 1);
    ExpectRoomReused([&] { element->SetPoints(g_five, g_counts, 2); });
    const Arrays own = ArraysOf(*element);
    element->SetPoints(own.points + 2, own.counts, 3);
    EXPECT_EQ(ShowPoints(*element), "3 (2 1 0) (3 4 5 6 0 0)") << "its own arrays, as far as they go";
    for (const auto& [nth, expected] : {std::pair(0, "2 none none"), std::pair(1, "2 (2 1) none")}) {
        WithFault(nth, [&] { element->SetPoints(g_five, g_counts, 2); });
        EXPECT_EQ(ShowPoints(*element), expected);
    }
    *target = *element;
    EXPECT_EQ(ShowPoints(*target), "0 none none") << "a source that lacks an array";
}

TEST(NURBS, SetParametersReadsFromTheSecondElement) {
    using N = VEKPrtNURBSElt;
    const auto curve = Make<N>();
    EXPECT_EQ(ShowPoints(*curve), "0 0 0 1 none none none");
    curve->SetParameters(3, 2, g_five, g_knots, 0.25F, 0.75F, g_weights);
    EXPECT_EQ(ShowPoints(*curve), "3 2 0.25 0.75 (1 2 3 4) (11 12 13 14 15) (21 22)");
    EXPECT_EQ(ShowPoints(N(3, 2, g_five, g_knots, 0.25F, 0.75F, g_weights)),
              "3 2 0.25 0.75 (1 2 3 4) (10 11 12 13 14) (20 21)");
    const float points[] = {1, 2, 3, 4}, knots[] = {5, 6, 7}, weights[] = {8, 9};
    EXPECT_EQ(ShowPoints(N(1, 2, points, knots, 0.0F, 2.0F, weights)), "1 2 0 2 (1 2 3 4) (5 6 7) (8 9)");
    EXPECT_EQ(ShowPoints(N(-1, 2, g_five, g_knots, 0.0F, 2.0F, g_weights)),
              "-1 2 0 2 (1 2 3 4) (10) (20 21)");
    ExpectRoomReused([&] { curve->SetParameters(3, 2, g_five, g_knots, 0.0F, 1.0F, g_weights); });
    const bool asked = sizeof(void*) > 4;
    AllocationFaults noRoom(asked ? 1 : 2, false);
    const N most(INT_MAX, 2, g_five, g_knots, 0.0F, 1.0F, g_weights);
    EXPECT_EQ(noRoom.Stop(), asked ? 1 : 0) << "in 32 bits so many knots are not even asked for";
    EXPECT_NE(ArraysOf(most).weights, nullptr);
}

TEST(NURBS, NeedsAllArraysAndAPositiveCount) {
    for (int missing = 0; missing < 5; ++missing) {
        const double* arrays[] = {g_five, g_knots, g_weights, nullptr, nullptr};
        arrays[missing] = nullptr;
        const int count = missing < 3 ? 2 : 3 - missing;
        const std::string expected = "3 " + std::to_string(count) + " 0.5 2 none none none";
        const auto curve = Make<VEKPrtNURBSElt>(3, count, arrays[0], arrays[1], 0.5F, 2.0F, arrays[2]);
        EXPECT_EQ(ShowPoints(*curve), expected);
        curve->SetParameters(3, 2, g_five, g_knots, 0.0F, 1.0F, g_weights);
        curve->SetParameters(3, count, arrays[0], arrays[1], 0.5F, 2.0F, arrays[2]);
        EXPECT_EQ(ShowPoints(*curve), expected);
    }
}

TEST(NURBS, CopiesResetTheBounds) {
    using N = VEKPrtNURBSElt;
    const auto curve = Make<N>(3, 2, g_five, g_knots, 0.25F, 0.75F, g_weights), target = Make<N>();
    target->SetParameters(1, 1, g_five, g_knots, 0.1F, 0.2F, g_weights);
    *target = *curve;
    for (const auto& copy : {target, Make<N>(*curve), Duplicated(*curve)})
        EXPECT_EQ(ShowPoints(*copy), "3 2 0 1 (1 2 3 4) (10 11 12 13 14) (20 21)");
    const char* const lacking[] = {" none (0 0 0 0 0) (0 0)", " (0 0 0 0) none (0 0)",
                                   " (0 0 0 0) (0 0 0 0 0) none"};
    for (int nth = 0; nth < 3; ++nth) {
        WithFault(nth, [&] { *target = *curve; });
        EXPECT_EQ(ShowPoints(*target), std::string("3 2 0 1") + lacking[nth]) << "the others stay, uncopied";
        EXPECT_EQ(ShowPoints(*Make<N>(*target)), "3 0 0 1 none none none");
        WithFault(nth, [&] { target->SetParameters(3, 2, g_five, g_knots, 0.0F, 1.0F, g_weights); });
        EXPECT_EQ(ShowPoints(*target), std::string("3 2 0 1") + lacking[nth]);
    }
}

TEST(NURBS, ReadsOwnArraysBeforeTheyGo) {
    const auto curve = Make<VEKPrtNURBSElt>(2, 2, g_five, g_knots, 0.0F, 1.0F, g_weights);
    const auto shownWith = [&](int iCount, const double* iPoints, const double* iKnots,
                               const double* iWeights) {
        curve->SetParameters(iCount, iCount, iPoints, iKnots, 0.0F, 1.0F, iWeights);
        return ShowPoints(*curve);
    };
    Arrays own = ArraysOf(*curve);
    EXPECT_EQ(shownWith(3, own.points, own.knots, own.weights),
              "3 3 0 1 (1 2 3 4 0 0) (11 12 13 0 0 0) (21 0 0)");
    const std::unique_ptr<double[]> points(own.points), knots(own.knots), weights(own.weights);
    EXPECT_EQ(own.knots[3], 13.0) << "the arrays passed back are the caller's";
    own = ArraysOf(*curve);
    EXPECT_EQ(shownWith(3, own.points + 2, own.knots - 1, own.weights - 1),
              "3 3 0 1 (3 4 0 0 0 0) (11 12 13 0 0 0) (21 0 0)")
        << "read from their first element";
    own = ArraysOf(*curve);
    shownWith(0, own.points, own.knots, own.weights);
    EXPECT_EQ(ArraysOf(*curve).knots, own.knots) << "no new array takes its place: it stays held";
    // An array of one knot holds nothing from its second element on.
    const auto least = Make<VEKPrtNURBSElt>(0, 1, g_five, g_knots, 0.0F, 1.0F, g_weights);
    const std::unique_ptr<double[]> knot(ArraysOf(*least).knots);
    least->SetParameters(0, 1, g_five, knot.get(), 0.0F, 1.0F, g_weights);
    EXPECT_EQ(ShowPoints(*least), "0 1 0 1 (1 2) (0) (21)");
}
