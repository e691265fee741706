#include "Rows.h"

namespace {

using Records = testing::Types<Transform, Stroke, Fill, VEKPrtTextAttributes, VEKPrtMarkerAttributes,
                               VEKPrtGroupAttributes>;
SUITE_OF(EveryRecord, Records);

} // namespace

TYPED_TEST(EveryRecord, KeepsComparesAndCopiesItsFields) {
    const auto fields = FieldsOf<TypeParam>();
    for (const auto& field : fields)
        for (std::size_t value = 0; value < field.count; ++value) {
            TypeParam record, assigned;
            if (value > 0) field.set(record, value);
            const TypeParam copied(record);
            assigned = record;
            assigned = *&assigned;
            for (const TypeParam* const each :
                 std::initializer_list<const TypeParam*>{&record, &copied, &assigned})
                for (const auto& other : fields)
                    EXPECT_TRUE(other.has(*each, &other == &field ? value : 0)) << "when set: " << field.name;
            for (std::size_t second = 0; second < field.count; ++second) {
                field.set(assigned, second);
                EXPECT_EQ(record == assigned, value == second) << field.name << value << second;
            }
        }
}

TEST(Transform, YieldsTheLatestValueUpToAPosition) {
    Transform transform;
    SetEntries(transform, {{3, 2}, {2, 30}, {3, 3}});
    transform.AddTransform(Value<VEKPrintTransformType>(3)); // has no value
    const std::optional<double> none;
    const std::vector<std::optional<double>> scales = {2, 2, 3, none, none},
                                             rotations = {none, 30, 30, 30, none};
    for (unsigned i = 0; i < scales.size(); ++i) {
        EXPECT_EQ(g_kinds[3].get(transform, i), scales[i]) << i;
        EXPECT_EQ(g_kinds[2].get(transform, i), rotations[i]) << i;
        for (const TransformKind& kind : g_kinds)
            EXPECT_EQ(kind.get(Transform(), i), none) << kind.name;
    }
}

TEST(Transform, AppendsInOrder) {
    Transform target, part, valueless, source = Changed<Transform>();
    Entries expected = g_oneOfEach;
    expected.insert(expected.begin(), {2, 1});
    target.AddRotation(1.0F);
    source.AddTransform(Value<VEKPrintTransformType>(77));
    EXPECT_EQ(target.AddTransformAttributes(source), 1);
    EXPECT_EQ(EntriesOf(target), expected) << "kinds without values are passed over";
    valueless.AddScaleX(4.0);
    valueless.AddTransform(Value<VEKPrintTransformType>(5));
    EXPECT_EQ(part.AddTransformAttributes(valueless), -1);
    EXPECT_EQ(EntriesOf(part), (Entries{{3, 4}})) << "what was appended before the failure stays";
    EXPECT_EQ(source.AddTransformAttributes(*&source), -1) << "to itself: it stops after the first";
    EXPECT_EQ(EntriesOf(source).size(), 9U);
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    source.GetTransformTab(count, kinds);
    source.AddTransform(kinds[0]);
    EXPECT_EQ(EntriesOf(source).back().first, 6) << "the argument is an entry of the list that is replaced";
}

TEST(Transform, CallsThroughTheVirtualTableAndHandsOnTheStatus) {
    struct Client : Transform {
        int tab = 1, get = 1, add = 1, append = 1;
        int GetTransformTab(unsigned& oCount, VEKPrintTransformType*& oKinds) const override {
            Transform::GetTransformTab(oCount, oKinds);
            return tab;
        }
        // Those that succeed without a value leave the one that the replay starts with.
        int GetMatrix(unsigned, Matrix&) const override { return 1; }
        int GetScaleX(unsigned, double&) const override { return get; }
        int GetScaleY(unsigned, double&) const override { return 1; }
        int GetRotation(unsigned, float&) const override { return 1; }
        int GetSkewX(unsigned, float&) const override { return 1; }
        int GetSkewY(unsigned, float&) const override { return 1; }
        int GetTranslation(unsigned, Vector&) const override { return 1; }
        int AddScaleX(double iScale) override {
            Transform::AddScaleX(iScale);
            return add;
        }
        int AddTransform(const VEKPrintTransformType& iKind) override {
            Transform::AddTransform(iKind);
            return append;
        }
    } source, target;
    Transform plain;
    SetEntries(source, g_oneOfEach);
    EXPECT_EQ(plain.AddTransformAttributes(source), 1);
    Entries expected = g_oneOfEach;
    for (auto& [kind, value] : expected)
        value = kind > 2 ? 1 : 0; // scales and skews are 1, the others blank
    EXPECT_EQ(EntriesOf(plain), expected);
    const int rows[][4] = {{0, 1, 1, 0}, {-7, 1, 1, -7}, {1, 0, 1, 0}, {1, -7, 1, -7},
                           {1, 1, 0, 0}, {1, 1, -7, -7}, {2, 3, 4, 1}};
    for (const auto& [tab, get, add, status] : rows) {
        source.tab = tab;
        source.get = get;
        target.add = add;
        EXPECT_EQ(target.AddTransformAttributes(source), status) << tab << get << add;
    }
    target.append = 2;
    EXPECT_EQ(target.AddScaleY(2.0), -1) << "anything but 1 from AddTransform is a failure";
}

// A failed addition leaves a raised count, with which copies get blank values, and loses the old array.
TEST(Transform, LosesItsValuesWhenAnAdditionFails) {
    const DemandedLeak leak(0, 14);
    for (const auto& entry : g_oneOfEach) {
        const int kind = entry.first;
        Transform first, later = Changed<Transform>(), target;
        WithFault(0, [&] { EXPECT_EQ(g_kinds[kind].add(first, 1), -1); });
        WithFault(0, [&] { EXPECT_EQ(g_kinds[kind].add(later, 1), -1); });
        EXPECT_EQ(EntriesOf(first).size(), 0U);
        EXPECT_EQ(g_kinds[kind].get(later, 6), std::nullopt);
        target = first;
        EXPECT_EQ(target.AddTransform(Value<VEKPrintTransformType>(kind)), 1);
        EXPECT_EQ(EntriesOf(target), (Entries{{kind, 0}})) << g_kinds[kind].name;
        EXPECT_EQ(g_kinds[kind].add(later, 5), 1);
        EXPECT_EQ(g_kinds[kind].get(later, 7), 0) << "blank: the added value is the third";
        Transform kindless = Changed<Transform>();
        WithFault(1, [&] { EXPECT_EQ(g_kinds[kind].add(kindless, 1), -1); });
        EXPECT_EQ(target.AddTransformAttributes(kindless), 1);
        EXPECT_EQ(EntriesOf(target).size(), 1U) << "nothing is appended without a list of kinds";
    }
}

TEST(Stroke, OwnsItsPattern) {
    float values[] = {1, 2, 3}, poison = 0;
    float* untouched = &poison;
    unsigned char length = 9;
    Stroke stroke, lost;
    stroke.GetStrokeTypePattern(untouched, length);
    EXPECT_EQ(length, 0);
    EXPECT_EQ(untouched, &poison) << "without a pattern the pointer is not written";
    stroke.SetStrokeTypePattern(values, 3);
    values[0] = 9;
    EXPECT_EQ(DashesOf(stroke), (std::vector<float>{1, 2, 3}));
    stroke.SetStrokeTypePattern(nullptr, 2);
    EXPECT_EQ(DashesOf(stroke), (std::vector<float>{0, 0})) << "null with a count: zeros";
    stroke.SetStrokeTypePattern(nullptr, 0);
    stroke.SetStrokeTypePattern(nullptr, 5);
    EXPECT_TRUE(DashesOf(stroke).empty()) << "null is the pattern already held: nothing happens";
    const std::vector<float> longest(255, 1.5F);
    EXPECT_EQ(DashesOf(Dashed(longest)), longest);
    EXPECT_EQ(Dashed({0.0F}) == Dashed({-0.0F}), 1) << "entries compare as numbers";

    WithFault(0, [&] { lost.SetStrokeTypePattern(values, 3); });
    EXPECT_EQ(DashesOf(lost), (std::vector<float>{0, 0, 0})) << "the length stays, the values are zero";
    stroke = lost;
    EXPECT_TRUE(DashesOf(stroke).empty()) << "neither holds a pattern: not even the length is assigned";
    EXPECT_EQ(DashesOf(Stroke(lost)).size(), 3U) << "the copy constructor copies it";
    EXPECT_EQ(lost == Dashed({0, 0, 0}), 1);
    EXPECT_EQ(lost == Dashed({0, 0, 1}), 0);
}

TEST(Fill, KeepsTheImageThatIsSetAgain) {
    const Vector a(1, 2), b(3, 4);
    Fill fill, assigned;
    fill.SetPattern(Make<VEKPixelImage>(1, 1).Get(), a, b);
    assigned = fill;
    fill.SetPattern(ImageOf(fill), b, a);
    EXPECT_EQ(fill == assigned, 0) << "the vectors are stored although the image is the same";
    EXPECT_EQ(Count(ImageOf(fill)), 2UL);
}

TEST(Text, CopiesItsRecordsInOrder) {
    const auto image = Make<Hooked<VEKPixelImage>>(1, 1);
    Fill partial;
    partial.SetPattern(image.Get(), Vector(0, 0), Vector(0, 0));
    partial.SetFillColourIndex(7);
    Fill fill = partial;
    fill.SetPattern(image.Get(), Vector(1, 0), Vector(0, 1));
    VEKPrtTextElt source, assigned;
    source.SetFillAttributes(fill);
    source.SetTextAttributes(Changed<VEKPrtTextAttributes>());
    alignas(VEKPrtTextElt) unsigned char memory[sizeof(VEKPrtTextElt)];
    VEKPrtTextElt *const copy = reinterpret_cast<VEKPrtTextElt*>(memory), *target = copy;
    std::vector<double> heights;
    image->counted = [&] {
        VEKPrtTextAttributes text;
        target->GetFillAttributes(fill);
        target->GetTextAttributes(text);
        text.GetHeight(heights.emplace_back());
        EXPECT_EQ(fill == partial, 1) << "the colour is there, the vectors are not";
    };
    ::new (memory) VEKPrtTextElt(source);
    target = &assigned;
    assigned = source;
    image->counted = nullptr;
    EXPECT_EQ(heights, (std::vector<double>{-1, 10})) << "constructed before the fill, assigned after it";
    copy->~VEKPrtTextElt();
}

TEST(Fill, DuplicateCopiesTheImageAndLosesTheTargets) {
    struct Cloned : VEKPixelImage {
        Cloned() : VEKPixelImage(2, 2) {}
        std::function<void()> look;
        VEKPixelImage* Clone() const override {
            look();
            return VEKPixelImage::Clone();
        }
    };
    const auto image = Make<Cloned>();
    const auto old = Make<VEKPixelImage>(1, 1);
    const Vector across(1, 0), up(0, 1);
    Fill fill, target, failed, partial;
    fill.SetPattern(image.Get(), across, up);
    for (Fill* const each : {&target, &failed, &partial})
        each->SetPattern(old.Get(), up, across);
    for (Fill* const each : {&fill, &partial})
        each->SetFillColourIndex(7);
    image->look = [&] { EXPECT_EQ(target == partial, 1) << "colour, image, vectors"; };
    fill.Duplicate(target);
    image->look = [] {};
    EXPECT_EQ(Count(image), 2UL);
    EXPECT_EQ(fill == target, 0) << "equal but for the image's identity";
    EXPECT_EQ(ImageOf(target)->GetWidth(), 2);
    EXPECT_EQ(Count(ImageOf(target)), 1UL);
    Fill().Duplicate(target);
    EXPECT_NE(ImageOf(target), nullptr) << "without an image the target's stays";
    WithFault(0, [&] { fill.Duplicate(failed); });
    EXPECT_EQ(Count(old), 4UL) << "both references are lost";
    VEKPixelImage* copied = old.Get();
    Vector first, second;
    failed.GetPattern(copied, first, second);
    EXPECT_EQ(copied, nullptr) << "an image that cannot be copied";
    EXPECT_EQ(first, across);
    for (int lost = 0; lost < 2; ++lost)
        old->Release();
}
