#include <cstring>

#include "Fields.h"

namespace {

using Records =
    testing::Types<Stroke, Fill, VEKPrtTextAttributes, VEKPrtMarkerAttributes, VEKPrtGroupAttributes>;
SUITE_OF(EveryRecord, Records);

// An image that notes what is in a copy when it is asked for a reference or for a copy of itself.
struct Witness : VEKPixelImage {
    Witness() : VEKPixelImage(1, 1) {}
    std::function<double()> look;
    mutable std::vector<double> seen;
    unsigned long AddRef() override {
        if (look) seen.push_back(look());
        return VEKPixelImage::AddRef();
    }
    VEKPixelImage* Clone() const override {
        seen.push_back(look());
        return VEKPixelImage::Clone();
    }
};

} // namespace

TYPED_TEST(EveryRecord, KeepsComparesAndCopiesItsFields) {
    const auto fields = FieldsOf<TypeParam>();
    for (const auto& field : fields)
        for (std::size_t value = 0; value < field.count; ++value) {
            TypeParam record, assigned;
            if (value > 0) field.set(record, value);
            TypeParam copied(record);
            assigned = record;
            assigned = *&assigned;
            for (TypeParam* const each : {&record, &copied, &assigned})
                for (const auto& other : fields)
                    EXPECT_TRUE(other.has(*each, &other == &field ? value : 0))
                        << other.name << ", when set: " << field.name;
            for (std::size_t second = 0; second < field.count; ++second) {
                field.set(assigned, second);
                EXPECT_EQ(record == assigned, value == second) << field.name << value << second;
                EXPECT_EQ(copied == assigned, value == second) << field.name << value << second;
            }
        }
    WithSelfCopy<TypeParam>([&](TypeParam& ioCopy) {
        for (const auto& field : fields)
            EXPECT_TRUE(field.has(ioCopy, 0)) << "copied from itself: " << field.name;
    });
}

// Pairs of array and count in the order of the kinds' fields, as debuggers and other compilers see them.
TEST(Transform, KeepsItsLayout) {
    const Transform transform = OneOfEach();
    struct Pair {
        void* values;
        unsigned count;
    };
    struct Layout {
        void* table;
        Pair pairs[8];
    } layout;
    static_assert(sizeof layout == sizeof transform, "nothing besides");
    std::memcpy(&layout, static_cast<const void*>(&transform), sizeof layout);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(layout.pairs[i].count, i == 0 ? 7U : 1U) << i;
    EXPECT_EQ(static_cast<double*>(layout.pairs[2].values)[0], 13.0);
    EXPECT_EQ(static_cast<float*>(layout.pairs[6].values)[0], 16.0F);
}

TEST(Transform, TakesItselfAndItsEntries) {
    Transform transform = OneOfEach();
    EXPECT_EQ(&(transform = *&transform), &transform);
    EXPECT_TRUE(transform == OneOfEach());
    EXPECT_EQ(Kinds(Transform(transform)), g_anyOrder);
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    transform.GetTransformTab(count, kinds);
    transform.AddTransform(kinds[0]);
    EXPECT_EQ(Kinds(transform).back(), g_anyOrder[0])
        << "the argument is an entry of the list that is replaced";
    WithSelfCopy<Transform>([](const Transform& iCopy) { EXPECT_TRUE(Kinds(iCopy).empty()); });
}

TEST(Transform, AppendsInOrder) {
    Transform target, expected;
    for (Transform* const each : {&target, &expected})
        each->AddRotation(1.0F);
    for (const int kind : g_anyOrder)
        g_kinds[kind].add(expected, 10.0 + kind);
    Transform source = OneOfEach();
    source.AddTransform(static_cast<VEKPrintTransformType>(77));
    EXPECT_EQ(target.AddTransformAttributes(Transform()), 1);
    EXPECT_EQ(target.AddTransformAttributes(source), 1);
    EXPECT_TRUE(target == expected) << "kinds without values are passed over";

    Transform valueless, part;
    valueless.AddScaleX(4.0);
    valueless.AddTransform(Value<VEKPrintTransformType>(5));
    valueless.AddScaleX(5.0);
    EXPECT_EQ(part.AddTransformAttributes(valueless), -1);
    EXPECT_EQ(Kinds(part), (std::vector<int>{3})) << "what was appended before the failure stays";
    EXPECT_EQ(source.AddTransformAttributes(*&source), -1) << "to itself: it stops after the first";
    EXPECT_EQ(Kinds(source).size(), 9U);
}

TEST(Transform, CallsThroughTheVirtualTableAndHandsOnTheStatus) {
    struct Client : Transform {
        int tab = 1, get = 1, add = 1;
        int GetTransformTab(unsigned& oCount, VEKPrintTransformType*& oKinds) const override {
            Transform::GetTransformTab(oCount, oKinds);
            return tab;
        }
        int GetScaleX(unsigned iIndex, double& oScale) const override {
            Transform::GetScaleX(iIndex, oScale);
            oScale += 1;
            return get;
        }
        int AddScaleX(double iScale) override {
            Transform::AddScaleX(10 * iScale);
            return add;
        }
    } source, target;
    source.Transform::AddScaleX(2.0);
    const int rows[][4] = {{1, 1, 1, 1},   {0, 1, 1, 0}, {-7, 1, 1, -7}, {1, 0, 1, 0},
                           {1, -7, 1, -7}, {1, 1, 0, 0}, {1, 1, -7, -7}, {2, 3, 4, 1}};
    for (const auto& [tab, get, add, expected] : rows) {
        source.tab = tab;
        source.get = get;
        target.add = add;
        EXPECT_EQ(target.AddTransformAttributes(source), expected) << tab << get << add;
    }
    double scale = 0;
    EXPECT_EQ(target.Transform::GetScaleX(0, scale), 1);
    EXPECT_EQ(scale, 30.0);
    struct Strange : Transform {
        int AddTransform(const VEKPrintTransformType&) override { return 2; }
    } strange;
    EXPECT_EQ(strange.AddRotation(1.0F), -1) << "anything but 1 from AddTransform is a failure";
}

// A Get that succeeds without a value leaves the value that the replay starts with.
TEST(Transform, ReplaysFromPresets) {
    struct Silent : Transform {
        int GetMatrix(unsigned, Matrix&) const override { return 1; }
        int GetScaleX(unsigned, double&) const override { return 1; }
        int GetScaleY(unsigned, double&) const override { return 1; }
        int GetRotation(unsigned, float&) const override { return 1; }
        int GetSkewX(unsigned, float&) const override { return 1; }
        int GetSkewY(unsigned, float&) const override { return 1; }
        int GetTranslation(unsigned, Vector&) const override { return 1; }
    } source;
    Transform target, expected;
    for (const int kind : g_anyOrder) {
        g_kinds[kind].add(source, 10);
        g_kinds[kind].add(expected, kind > 2 ? 1 : 0); // scales and skews are 1, the others blank
    }
    EXPECT_EQ(target.AddTransformAttributes(source), 1);
    EXPECT_TRUE(target == expected);
}

// A first addition that failed leaves a count, which copies take along: it shows once a kind is added.
TEST(Transform, CopiesTheCountOfLostValues) {
    for (const int kind : g_anyOrder) {
        Transform source, target;
        WithFault(0, [&] { EXPECT_EQ(g_kinds[kind].add(source, 1.0), -1); });
        target = source;
        EXPECT_EQ(target.AddTransform(static_cast<VEKPrintTransformType>(kind)), 1);
        EXPECT_TRUE(g_kinds[kind].get(target, 0)) << g_kinds[kind].name << ", a blank one";
    }
}

TEST(Transform, ReplaysNothingWithoutItsListOfKinds) {
    const DemandedLeak leak(0, 1);
    Transform transform, target;
    transform.AddScaleX(2.0);
    WithFault(1, [&] { EXPECT_EQ(transform.AddScaleX(3.0), -1); });
    EXPECT_EQ(target.AddTransformAttributes(transform), 1);
    EXPECT_TRUE(Kinds(target).empty());
}

TEST(Stroke, OwnsItsPattern) {
    float values[] = {1, 2, 3}, poison = 0;
    float* untouched = &poison;
    unsigned char length = 9;
    Stroke stroke;
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
}

TEST(StrokeFailure, AssignmentKeepsTheLength) {
    Stroke lost, target;
    const float values[] = {1, 0, 3};
    WithFault(0, [&] { lost.SetStrokeTypePattern(values, 3); });
    EXPECT_EQ(DashesOf(lost), (std::vector<float>{0, 0, 0})) << "the length stays, the values are zero";
    target = lost;
    EXPECT_TRUE(DashesOf(target).empty()) << "neither holds a pattern: not even the length is copied";
    EXPECT_EQ(DashesOf(Stroke(lost)).size(), 3U) << "the copy constructor copies it";
    EXPECT_EQ(lost == Dashed({0, 0, 0}), 1);
    EXPECT_EQ(lost == Dashed({0, 0, 1}), 0);
}

TEST(Fill, SharesItsImageByCount) {
    const auto image = Make<VEKPixelImage>(1, 1);
    const Vector a(1, 2), b(3, 4);
    Fill fill, assigned;
    fill.SetPattern(image.Get(), a, b);
    fill.SetPattern(image.Get(), b, a);
    VEKPixelImage* lent = nullptr;
    Vector first, second;
    fill.GetPattern(lent, first, second);
    EXPECT_EQ(first, b) << "the vectors are stored although the image is the same";
    assigned = fill;
    assigned = fill;
    EXPECT_EQ(Count(image), 3UL);
    auto copy = std::make_unique<Fill>(fill);
    EXPECT_EQ(Count(image), 4UL);
    copy.reset();
    fill.SetPattern(Make<VEKPixelImage>(1, 1).Get(), a, b);
    fill.SetPattern(ImageOf(fill), a, b);
    EXPECT_EQ(Count(ImageOf(fill)), 1UL) << "the sole reference survives";
    EXPECT_EQ(Count(image), 2UL);
}

TEST(Fill, TakesItsImageBetweenColourAndVectors) {
    const auto image = Make<Witness>();
    Fill source, assigned, duplicate;
    source.SetFillColourIndex(7);
    source.SetPattern(image.Get(), Vector(1, 0), Vector(0, 1));
    alignas(Fill) unsigned char memory[sizeof(Fill)];
    Fill *const copy = reinterpret_cast<Fill*>(memory), *target = copy;
    image->look = [&target] {
        unsigned colour = 0;
        VEKPixelImage* held = nullptr;
        Vector first, second;
        target->GetFillColourIndex(colour);
        target->GetPattern(held, first, second);
        return colour + first.GetX() + second.GetY();
    };
    ::new (memory) Fill(source);
    target = &assigned;
    assigned = source;
    target = &duplicate;
    source.Duplicate(duplicate);
    EXPECT_EQ(image->seen, (std::vector<double>{7, 7, 7})) << "the colour is there, the vectors are not";
    copy->~Fill();
    image->look = nullptr;
}

TEST(Text, CopiesItsRecordBeforeOrAfterTheFill) {
    using T = VEKPrtTextElt;
    const auto image = Make<Witness>();
    Fill fill;
    VEKPrtTextAttributes attributes;
    fill.SetPattern(image.Get(), {0, 0}, {0, 0});
    attributes.SetHeight(20.0);
    const auto source = Make<T>(), assigned = Make<T>();
    source->SetFillAttributes(fill);
    source->SetTextAttributes(attributes);
    static T* target;
    image->look = [] {
        VEKPrtTextAttributes text;
        double height = 0;
        target->GetTextAttributes(text);
        text.GetHeight(height);
        return height;
    };
    target = assigned.Get();
    *assigned = *source;
    void* const place = VEKBaseUnknown::operator new(sizeof(T));
    target = static_cast<T*>(place);
    const auto copy = VEKRef<T>::Adopt(::new (place) T(*source));
    EXPECT_EQ(image->seen, (std::vector<double>{10, 20})) << "assigned after it, constructed before it";
    image->look = nullptr;
}

TEST(Fill, DuplicateCopiesTheImageAndLosesTheTargets) {
    const auto image = Make<VEKPixelImage>(2, 2), old = Make<VEKPixelImage>(1, 1);
    const Vector across(1, 0), up(0, 1);
    Fill fill, target, failed;
    fill.SetPattern(image.Get(), across, up);
    for (Fill* const each : {&target, &failed})
        each->SetPattern(old.Get(), up, across);
    fill.Duplicate(target);
    EXPECT_EQ(Count(old), 3UL) << "its reference is lost";
    EXPECT_EQ(Count(image), 2UL);
    EXPECT_EQ(fill == target, 0) << "equal but for the image's identity";
    EXPECT_EQ(ImageOf(target)->GetWidth(), 2);
    EXPECT_EQ(Count(ImageOf(target)), 1UL);
    Fill().Duplicate(target);
    EXPECT_NE(ImageOf(target), nullptr) << "without an image the target's stays";

    fill.SetPattern(Make<UncopyableImage>().Get(), across, up);
    fill.Duplicate(failed);
    EXPECT_EQ(Count(old), 3UL) << "lost to an image that cannot be copied, too";
    VEKPixelImage* copied = old.Get();
    Vector first, second;
    failed.GetPattern(copied, first, second);
    EXPECT_EQ(copied, nullptr);
    EXPECT_EQ(first, across);
    for (int lost = 0; lost < 2; ++lost)
        old->Release();
}
