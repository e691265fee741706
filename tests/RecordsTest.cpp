#include <cfloat>
#include <cmath>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

#include "TestSupport.h"
#include "VEKFont.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGroupAttributes.h"
#include "VEKPrtMarkerAttributes.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTextAttributes.h"
#include "VEKPrtTransformAttributes.h"

namespace {

using Transform = VEKPrtTransformAttributes;

std::vector<int> Kinds(const Transform& iTransform) {
    unsigned count = 99;
    VEKPrintTransformType* kinds = nullptr;
    EXPECT_EQ(iTransform.GetTransformTab(count, kinds), 1);
    return kinds ? std::vector<int>(kinds, kinds + count) : std::vector<int>();
}

double ScaleXAt(const Transform& iTransform, unsigned iIndex) {
    double scale = -99.0;
    const int status = iTransform.GetScaleX(iIndex, scale);
    EXPECT_EQ(status == 1, scale != -99.0) << "outputs are written on success only";
    return scale;
}

// One of each kind, in an order that is neither that of the kinds nor that of the fields.
Transform OneOfEach() {
    Transform transform;
    transform.AddSkewY(7.0F);
    transform.AddScaleX(2.0);
    transform.AddMatrix(VEKMath2x2Matrix(1, 2, 3, 4));
    transform.AddTranslation(VEKMathVector2D(5, 6));
    transform.AddRotation(30.0F);
    transform.AddSkewX(8.0F);
    transform.AddScaleY(3.0);
    return transform;
}

void ExpectOneOfEach(const Transform& iTransform, unsigned iFirst) {
    float skewY = 0, rotation = 0, skewX = 0;
    double scaleX = 0, scaleY = 0;
    VEKMath2x2Matrix matrix;
    VEKMathVector2D translation;
    const unsigned last = iFirst + 6;
    EXPECT_EQ(iTransform.GetSkewY(last, skewY), 1);
    EXPECT_EQ(iTransform.GetScaleX(last, scaleX), 1);
    EXPECT_EQ(iTransform.GetMatrix(last, matrix), 1);
    EXPECT_EQ(iTransform.GetTranslation(last, translation), 1);
    EXPECT_EQ(iTransform.GetRotation(last, rotation), 1);
    EXPECT_EQ(iTransform.GetSkewX(last, skewX), 1);
    EXPECT_EQ(iTransform.GetScaleY(last, scaleY), 1);
    EXPECT_EQ((std::vector<double>{skewY, scaleX, rotation, skewX, scaleY}),
              (std::vector<double>{7, 2, 30, 8, 3}));
    EXPECT_EQ(matrix, VEKMath2x2Matrix(1, 2, 3, 4));
    EXPECT_EQ(translation, VEKMathVector2D(5, 6));
}

VEKFont g_font("Sans");

const std::vector<int> g_oneOfEach = {6, 3, 0, 1, 2, 5, 4};

} // namespace

TEST(Transform, LooksUpLeniently) {
    Transform transform;
    EXPECT_TRUE(Kinds(transform).empty());
    EXPECT_EQ(ScaleXAt(transform, 0), -99.0);
    transform.AddScaleX(2.0);
    transform.AddRotation(30.0F);
    transform.AddScaleX(3.0);
    EXPECT_EQ(Kinds(transform), (std::vector<int>{3, 2, 3}));
    EXPECT_EQ(ScaleXAt(transform, 0), 2.0);
    EXPECT_EQ(ScaleXAt(transform, 1), 2.0) << "the latest value before a position of another kind";
    EXPECT_EQ(ScaleXAt(transform, 2), 3.0);
    EXPECT_EQ(ScaleXAt(transform, 3), -99.0);
    float angle = 0;
    EXPECT_EQ(transform.GetRotation(0, angle), -1);
    EXPECT_EQ(transform.GetRotation(2, angle), 1);
    EXPECT_EQ(angle, 30.0F);
}

TEST(Transform, RecordsAKindWithoutAValue) {
    Transform transform;
    EXPECT_EQ(transform.AddTransform(Value<VEKPrintTransformType>(3)), 1);
    EXPECT_EQ(ScaleXAt(transform, 0), -99.0);
    transform.AddScaleX(5.0);
    EXPECT_EQ(ScaleXAt(transform, 0), 5.0);
    EXPECT_EQ(ScaleXAt(transform, 1), -99.0) << "the second of its kind has no value";
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    transform.GetTransformTab(count, kinds);
    transform.AddTransform(kinds[0]);
    EXPECT_EQ(Kinds(transform).back(), 3) << "the argument may be an entry of the list that is replaced";
}

// Pairs of array and count, in the order of the kinds' fields: what debuggers and other compilers rely on.
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
    EXPECT_EQ(static_cast<double*>(layout.pairs[2].values)[0], 2.0);
    EXPECT_EQ(static_cast<float*>(layout.pairs[6].values)[0], 7.0F);
}

TEST(Transform, CopiesAreIndependentAndSelfCopiesEmpty) {
    Transform source = OneOfEach();
    Transform copy(source), assigned;
    assigned.AddScaleY(9.0);
    EXPECT_EQ(&(assigned = source), &assigned);
    assigned = *&assigned;
    source.AddScaleX(100.0);
    for (Transform* const target : {&copy, &assigned}) {
        EXPECT_EQ(Kinds(*target), g_oneOfEach);
        ExpectOneOfEach(*target, 0);
    }
    WithSelfCopy<Transform>([](const Transform& iCopy) { EXPECT_TRUE(Kinds(iCopy).empty()); });
}

TEST(Transform, AppendsInOrder) {
    Transform target;
    target.AddRotation(1.0F);
    EXPECT_EQ(target.AddTransformAttributes(Transform()), 1);
    Transform source = OneOfEach();
    source.AddTransform(static_cast<VEKPrintTransformType>(77));
    EXPECT_EQ(target.AddTransformAttributes(source), 1);
    std::vector<int> expected = {2};
    expected.insert(expected.end(), g_oneOfEach.begin(), g_oneOfEach.end());
    EXPECT_EQ(Kinds(target), expected) << "kinds without values are passed over";
    ExpectOneOfEach(target, 1);

    Transform valueless;
    valueless.AddScaleX(4.0);
    valueless.AddTransform(Value<VEKPrintTransformType>(5));
    valueless.AddScaleX(5.0);
    Transform part;
    EXPECT_EQ(part.AddTransformAttributes(valueless), -1);
    EXPECT_EQ(Kinds(part), (std::vector<int>{3})) << "what was appended before the failure stays";
}

TEST(Transform, AppendedToItselfStopsAfterTheFirst) {
    Transform transform = OneOfEach();
    EXPECT_EQ(transform.AddTransformAttributes(*&transform), -1);
    EXPECT_EQ(Kinds(transform).size(), 8U);
}

TEST(Transform, GoesThroughTheVirtualTable) {
    struct Derived : Transform {
        int AddScaleX(double iScale) override { return Transform::AddScaleX(10 * iScale); }
        int GetScaleX(unsigned iIndex, double& oScale) const override {
            const int status = Transform::GetScaleX(iIndex, oScale);
            oScale += 1;
            return status;
        }
        int AddTransform(const VEKPrintTransformType& iKind) override {
            return Transform::AddTransform(iKind) + 1;
        }
    };
    Derived derived;
    EXPECT_EQ(derived.AddRotation(1.0F), -1) << "anything but 1 from AddTransform is a failure";
    Transform source;
    source.AddScaleX(2.0);
    EXPECT_EQ(derived.AddTransformAttributes(source), -1);
    double scale = 0;
    static_cast<const Transform&>(derived).Transform::GetScaleX(1, scale);
    EXPECT_EQ(scale, 20.0);
    Transform target;
    EXPECT_EQ(target.AddTransformAttributes(derived), 1);
    EXPECT_EQ(ScaleXAt(target, 1), 21.0);
}

TEST(Transform, HandsOnTheStatusOfWhatItCalls) {
    static int tab, get, add;
    struct Derived : Transform {
        int GetTransformTab(unsigned& oCount, VEKPrintTransformType*& oKinds) const override {
            Transform::GetTransformTab(oCount, oKinds);
            return tab;
        }
        int GetScaleX(unsigned iIndex, double& oScale) const override {
            Transform::GetScaleX(iIndex, oScale);
            return get;
        }
        int AddScaleX(double) override { return add; }
    };
    struct Row {
        int tab, get, add, expected;
    };
    Derived source, target;
    source.Transform::AddScaleX(2.0);
    for (const Row& row : {Row{0, 1, 1, 0}, Row{-7, 1, 1, -7}, Row{1, 0, 1, 0}, Row{1, -7, 1, -7},
                           Row{1, 1, 0, 0}, Row{1, 1, -7, -7}, Row{2, 3, 4, 1}, Row{1, 3, -5, -5}}) {
        tab = row.tab;
        get = row.get;
        add = row.add;
        EXPECT_EQ(target.AddTransformAttributes(source), row.expected) << tab << get << add;
    }
}

// A Get that succeeds without a value leaves the value that the replay starts with.
TEST(Transform, ReplaysFromPresets) {
    struct Silent : Transform {
        int GetMatrix(unsigned, VEKMath2x2Matrix&) const override { return 1; }
        int GetScaleX(unsigned, double&) const override { return 1; }
        int GetScaleY(unsigned, double&) const override { return 1; }
        int GetRotation(unsigned, float&) const override { return 1; }
        int GetSkewX(unsigned, float&) const override { return 1; }
        int GetSkewY(unsigned, float&) const override { return 1; }
        int GetTranslation(unsigned, VEKMathVector2D&) const override { return 1; }
    };
    Silent source;
    source.Transform::AddTransformAttributes(OneOfEach());
    Transform target;
    EXPECT_EQ(target.AddTransformAttributes(source), 1);
    float angles[3] = {9, 9, 9};
    double scales[2] = {9, 9};
    VEKMath2x2Matrix matrix(9, 9, 9, 9);
    VEKMathVector2D vector(9, 9);
    target.GetSkewY(6, angles[0]);
    target.GetSkewX(6, angles[1]);
    target.GetRotation(6, angles[2]);
    target.GetScaleX(6, scales[0]);
    target.GetScaleY(6, scales[1]);
    target.GetMatrix(6, matrix);
    target.GetTranslation(6, vector);
    EXPECT_EQ((std::vector<double>{angles[0], angles[1], angles[2], scales[0], scales[1]}),
              (std::vector<double>{1, 1, 0, 1, 1}));
    EXPECT_EQ(matrix, VEKMath2x2Matrix());
    EXPECT_EQ(vector, VEKMathVector2D(0, 0));
}

TEST(TransformFailure, LosesTheValuesOfOneKind) {
    const DemandedLeak leak(0, 1);
    Transform transform;
    transform.AddScaleX(2.0);
    transform.AddRotation(1.0F);
    const long before = LiveBlocks();
    WithFault(0, [&] { EXPECT_EQ(transform.AddScaleX(3.0), -1); });
    EXPECT_EQ(LiveBlocks(), before) << "the old array is not freed";
    EXPECT_EQ(ScaleXAt(transform, 1), -99.0);
    float angle = 0;
    EXPECT_EQ(transform.GetRotation(1, angle), 1) << "other kinds are unharmed";
    EXPECT_EQ(Kinds(transform).size(), 2U);

    EXPECT_EQ(transform.AddScaleX(4.0), 1);
    EXPECT_EQ(ScaleXAt(transform, 0), 0.0) << "the count stayed raised: the new value is the third";
    EXPECT_EQ(transform.AddScaleX(5.0), 1);
    EXPECT_EQ(transform.AddScaleX(6.0), 1);
    EXPECT_EQ(ScaleXAt(transform, 3), 4.0);
}

TEST(TransformFailure, StartsAgainFromBlanks) {
    const DemandedLeak leak(0, 2);
    Transform transform;
    transform.AddTranslation(VEKMathVector2D(5, 6));
    transform.AddMatrix(VEKMath2x2Matrix(1, 2, 3, 4));
    WithFault(0, [&] { transform.AddTranslation(VEKMathVector2D(7, 8)); });
    WithFault(0, [&] { transform.AddMatrix(VEKMath2x2Matrix(5, 6, 7, 8)); });
    Transform copy(transform);
    transform.AddTranslation(VEKMathVector2D(9, 9));
    transform.AddMatrix(VEKMath2x2Matrix(9, 9, 9, 9));
    for (Transform* const each : {&transform, &copy}) {
        VEKMathVector2D vector(1, 1);
        VEKMath2x2Matrix matrix(9, 9, 9, 9);
        EXPECT_EQ(each->GetTranslation(0, vector), 1);
        EXPECT_EQ(each->GetMatrix(1, matrix), 1);
        EXPECT_EQ(vector, VEKMathVector2D(0, 0));
        EXPECT_EQ(matrix, VEKMath2x2Matrix());
    }
}

TEST(TransformFailure, LosesTheListOfKinds) {
    const DemandedLeak leak(0, 1);
    Transform transform;
    transform.AddScaleX(2.0);
    WithFault(1, [&] { EXPECT_EQ(transform.AddScaleX(3.0), -1); });
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    EXPECT_EQ(transform.GetTransformTab(count, kinds), 1);
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(kinds, nullptr);
    EXPECT_EQ(ScaleXAt(transform, 0), -99.0) << "nothing is looked up in a list that is gone";
    EXPECT_EQ(Transform().AddTransformAttributes(transform), 1);
    EXPECT_EQ(Kinds(Transform(transform)), (std::vector<int>{0, 0})) << "a copy gets a list, of zeros";
    transform.AddRotation(1.0F);
    EXPECT_EQ(Kinds(transform), (std::vector<int>{0, 0, 2}));
}

TEST(Stroke, StartsWithItsDefaults) {
    VEKPrtStrokeAttributes stroke;
    unsigned colour = 9;
    unsigned char transparency = 0, length = 9;
    VEKPrintLineAttribute type, style, cap, join;
    double width = 0;
    float poison = 0;
    float* pattern = &poison;
    stroke.GetStrokeColourIndex(colour);
    stroke.GetStrokeColourTransparency(transparency);
    stroke.GetStrokeType(type);
    stroke.GetStrokeWidth(width);
    stroke.GetStrokeStyle(style);
    stroke.GetStrokeCap(cap);
    stroke.GetStrokeJoin(join);
    stroke.GetStrokeTypePattern(pattern, length);
    EXPECT_EQ(colour, 0U);
    EXPECT_EQ(transparency, 255);
    EXPECT_EQ(width, 0.10000000149011612);
    EXPECT_EQ((std::vector<int>{type, style, cap, join}), (std::vector<int>{0, 8, 10, 13}));
    EXPECT_EQ(length, 0);
    EXPECT_EQ(pattern, &poison) << "without a pattern the pointer is not written";
}

namespace {

std::vector<float> PatternOf(const VEKPrtStrokeAttributes& iStroke) {
    float* values = nullptr;
    unsigned char count = 0;
    iStroke.GetStrokeTypePattern(values, count);
    const std::unique_ptr<float[]> owner(values);
    return values ? std::vector<float>(values, values + count) : std::vector<float>();
}

VEKPrtStrokeAttributes Dashed(std::vector<float> iPattern) {
    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeTypePattern(iPattern.data(), static_cast<unsigned char>(iPattern.size()));
    return stroke;
}

} // namespace

TEST(Stroke, OwnsItsPattern) {
    float values[] = {1, 2, 3};
    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeTypePattern(values, 3);
    values[0] = 9;
    const VEKPrtStrokeAttributes copy(stroke);
    stroke.SetStrokeTypePattern(nullptr, 2);
    EXPECT_EQ(PatternOf(stroke), (std::vector<float>{0, 0})) << "null with a count: zeros";
    stroke.SetStrokeTypePattern(nullptr, 0);
    EXPECT_TRUE(PatternOf(stroke).empty());
    stroke.SetStrokeTypePattern(nullptr, 5);
    EXPECT_TRUE(PatternOf(stroke).empty()) << "null is the pattern already held: nothing happens";
    EXPECT_EQ(PatternOf(copy), (std::vector<float>{1, 2, 3}));
    stroke = copy;
    EXPECT_EQ(PatternOf(stroke), PatternOf(copy));
    EXPECT_TRUE(stroke == copy);
    const std::vector<float> longest(255, 1.5F);
    EXPECT_EQ(PatternOf(Dashed(longest)), longest);
    EXPECT_EQ(Dashed({0.0F}) == Dashed({-0.0F}), 1) << "entries compare as numbers";
}

TEST(Stroke, ReadsBackWhatItIsGiven) {
    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeColourIndex(7);
    stroke.SetStrokeWidth(-2.0);
    stroke.SetStrokeType(Value<VEKPrintLineAttribute>(2));
    stroke.SetStrokeStyle(Value<VEKPrintLineAttribute>(9));
    unsigned colour = 0;
    double width = 0;
    VEKPrintLineAttribute type, style;
    stroke.GetStrokeColourIndex(colour);
    stroke.GetStrokeWidth(width);
    stroke.GetStrokeType(type);
    stroke.GetStrokeStyle(style);
    EXPECT_EQ((std::vector<double>{double(colour), width, double(type), double(style)}),
              (std::vector<double>{7, -2, 2, 9}));
}

namespace {

// A change of one field, by its name.
template <class Record>
struct Named {
    const char* name;
    void (*change)(Record&);
};

} // namespace

TEST(Stroke, ComparesEveryFieldExactly) {
    using S = VEKPrtStrokeAttributes;
    const Named<S> changes[] = {{"colour", [](S& s) { s.SetStrokeColourIndex(1); }},
                                {"transparency", [](S& s) { s.SetStrokeColourTransparency(254); }},
                                {"type", [](S& s) { s.SetStrokeType(Value<VEKPrintLineAttribute>(1)); }},
                                {"fewer dashes",
                                 [](S& s) {
                                     s = Dashed({1, 2});
                                 }},
                                {"one dash", [](S& s) { s = Dashed({1}); }},
                                {"first dash",
                                 [](S& s) {
                                     s = Dashed({2, 2, 3});
                                 }},
                                {"last dash",
                                 [](S& s) {
                                     s = Dashed({1, 2, std::nextafter(3.0F, 4.0F)});
                                 }},
                                {"width", [](S& s) { s.SetStrokeWidth(0.1); }},
                                {"style", [](S& s) { s.SetStrokeStyle(Value<VEKPrintLineAttribute>(9)); }},
                                {"cap", [](S& s) { s.SetStrokeCap(Value<VEKPrintLineAttribute>(11)); }},
                                {"join", [](S& s) { s.SetStrokeJoin(Value<VEKPrintLineAttribute>(15)); }}};
    const S original = Dashed({1, 2, 3});
    for (const auto& [name, change] : changes) {
        S other(original), assigned;
        EXPECT_EQ(original == other, 1) << name;
        change(other);
        EXPECT_EQ(original == other, 0) << name;
        assigned = other;
        EXPECT_EQ(assigned == other, 1) << name << ", assigned";
        EXPECT_EQ(S(other) == other, 1) << name << ", copied";
    }
}

TEST(StrokeFailure, AssignmentKeepsTheLength) {
    VEKPrtStrokeAttributes lost;
    const float values[] = {1, 0, 3};
    WithFault(0, [&] { lost.SetStrokeTypePattern(values, 3); });
    EXPECT_EQ(PatternOf(lost), (std::vector<float>{0, 0, 0})) << "the length stays, the values are zero";
    VEKPrtStrokeAttributes target;
    target = lost;
    EXPECT_TRUE(PatternOf(target).empty()) << "neither holds a pattern: not even the length is copied";
    EXPECT_EQ(PatternOf(VEKPrtStrokeAttributes(lost)).size(), 3U) << "the copy constructor copies it";
    EXPECT_EQ(lost == Dashed({0, 0, 0}), 1);
    EXPECT_EQ(lost == Dashed({0, 0, 1}), 0);
}

TEST(Fill, SharesItsImageByCount) {
    const auto image = Make<VEKPixelImage>(1, 1), other = Make<VEKPixelImage>(1, 1);
    const VEKMathVector2D a(1, 2), b(3, 4);
    {
        VEKPrtFillAttributes fill;
        fill.SetPattern(image.Get(), a, b);
        EXPECT_EQ(Count(image), 2UL);
        fill.SetPattern(image.Get(), b, a);
        EXPECT_EQ(Count(image), 2UL);
        VEKPixelImage* lent = nullptr;
        VEKMathVector2D first, second;
        fill.GetPattern(lent, first, second);
        EXPECT_EQ(lent, image.Get());
        EXPECT_EQ(first, b) << "the vectors are stored although the image is the same";
        VEKPrtFillAttributes copy(fill), assigned;
        assigned.SetPattern(other.Get(), a, a);
        assigned = fill;
        assigned = fill;
        EXPECT_EQ(Count(image), 4UL);
        EXPECT_EQ(Count(other), 1UL);
        EXPECT_EQ(assigned == fill, 1);
        copy.SetPattern(nullptr, a, b);
        EXPECT_EQ(Count(image), 3UL);
        copy.SetPattern(Make<VEKPixelImage>(1, 1).Get(), a, b);
        copy.GetPattern(lent, first, second);
        copy.SetPattern(lent, a, b);
        EXPECT_EQ(Count(lent), 1UL) << "the sole reference survives";
    }
    EXPECT_EQ(Count(image), 1UL);
}

namespace {

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

TEST(Fill, TakesItsImageBetweenColourAndVectors) {
    using F = VEKPrtFillAttributes;
    const auto image = Make<Witness>();
    F source, assigned, duplicate;
    source.SetFillColourIndex(7);
    source.SetPattern(image.Get(), VEKMathVector2D(1, 0), VEKMathVector2D(0, 1));
    const auto looking = [&](const F& iTarget) {
        image->look = [&iTarget] {
            unsigned colour = 0;
            VEKPixelImage* held = nullptr;
            VEKMathVector2D first, second;
            iTarget.GetFillColourIndex(colour);
            const_cast<F&>(iTarget).GetPattern(held, first, second);
            return colour + first.GetX() + second.GetY();
        };
    };
    alignas(F) unsigned char memory[sizeof(F)];
    F* const copy = reinterpret_cast<F*>(memory);
    looking(*copy);
    ::new (memory) F(source);
    looking(assigned);
    assigned = source;
    looking(duplicate);
    source.Duplicate(duplicate);
    EXPECT_EQ(image->seen, (std::vector<double>{7, 7, 7})) << "the colour is there, the vectors are not";
    copy->~F();
    image->look = nullptr;
}

TEST(Text, CopiesItsRecordBeforeOrAfterTheFill) {
    using T = VEKPrtTextElt;
    const auto image = Make<Witness>();
    VEKPrtFillAttributes fill;
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
    VEKPrtFillAttributes fill, target;
    fill.SetPattern(image.Get(), VEKMathVector2D(1, 0), VEKMathVector2D(0, 1));
    target.SetPattern(old.Get(), VEKMathVector2D(0, 0), VEKMathVector2D(0, 0));
    fill.Duplicate(target);
    EXPECT_EQ(Count(old), 2UL) << "its reference is lost";
    old->Release();
    EXPECT_EQ(Count(image), 2UL);
    EXPECT_EQ(fill == target, 0) << "equal but for the image's identity";
    VEKPixelImage* copied = nullptr;
    VEKMathVector2D first, second;
    target.GetPattern(copied, first, second);
    EXPECT_EQ(copied->GetWidth(), 2);
    EXPECT_EQ(Count(copied), 1UL);

    VEKPrtFillAttributes plain;
    plain.Duplicate(target);
    target.GetPattern(copied, first, second);
    EXPECT_NE(copied, nullptr) << "without an image the target's stays";
    struct Uncopyable : VEKPixelImage {
        Uncopyable() : VEKPixelImage(1, 1) {}
        VEKPixelImage* Clone() const override { return nullptr; }
    };
    fill.SetPattern(Make<Uncopyable>().Get(), VEKMathVector2D(1, 0), VEKMathVector2D(0, 1));
    VEKPrtFillAttributes failed;
    failed.SetPattern(old.Get(), VEKMathVector2D(0, 0), VEKMathVector2D(0, 0));
    fill.Duplicate(failed);
    EXPECT_EQ(Count(old), 2UL) << "lost to an image that cannot be copied, too";
    old->Release();
    failed.GetPattern(copied, first, second);
    EXPECT_EQ(copied, nullptr);
    EXPECT_EQ(first, VEKMathVector2D(1, 0));
}

TEST(Fill, ComparesEveryFieldExactly) {
    using F = VEKPrtFillAttributes;
    const Named<F> changes[] = {{"style", [](F& f) { f.SetFillStyle(VEKPrtFillPattern); }},
                                {"rule", [](F& f) { f.SetFillRule(VEKPrtFillNonZero); }},
                                {"colour", [](F& f) { f.SetFillColourIndex(1); }},
                                {"transparency", [](F& f) { f.SetFillColourTransparency(0); }},
                                {"image",
                                 [](F& f) {
                                     f.SetPattern(Make<VEKPixelImage>(1, 1).Get(), {0, 0}, {0, 0});
                                 }},
                                {"first vector",
                                 [](F& f) {
                                     f.SetPattern(nullptr, {0, DBL_MIN}, {0, 0});
                                 }},
                                {"second vector",
                                 [](F& f) {
                                     f.SetPattern(nullptr, {0, 0}, {1, 0});
                                 }},
                                {"reference point", [](F& f) {
                                     f.SetPatternRefPoint({0, 1});
                                 }}};
    for (const auto& [name, change] : changes) {
        F fill, other, duplicate;
        EXPECT_EQ(fill == other, 1) << name;
        change(other);
        EXPECT_EQ(fill == other, 0) << name;
        EXPECT_EQ(F(other) == other, 1) << name << ", copied";
        other.Duplicate(duplicate);
        EXPECT_EQ(duplicate == other, name == std::string("image") ? 0 : 1) << name << ", duplicated";
    }
    F fill;
    fill.SetPatternRefPoint(VEKMathPoint2D(1, 2));
    VEKMathPoint2D point;
    fill.GetPatternRefPoint(point);
    EXPECT_EQ(point, VEKMathPoint2D(1, 2));
    VEKPrtFillStyle style;
    VEKPrtFillRule rule;
    unsigned char transparency = 0;
    fill.GetFillStyle(style);
    fill.GetFillRule(rule);
    fill.GetFillColourTransparency(transparency);
    EXPECT_EQ((std::vector<int>{style, rule, transparency}), (std::vector<int>{0, 1, 255}));
}

TEST(Text, ComparesEveryFieldAndBorrowsItsFont) {
    using T = VEKPrtTextAttributes;
    const Named<T> changes[] = {
        {"font", [](T& t) { t.SetFont(&g_font); }},
        {"weight", [](T& t) { t.SetWeight(Value<VEKPrintTextAttribute>(27)); }},
        {"height", [](T& t) { t.SetHeight(std::nextafter(10.0, 11.0)); }},
        {"anchor", [](T& t) { t.SetAnchor(Value<VEKPrintTextAttribute>(35)); }},
        {"slant", [](T& t) { t.SetSlant(1.0F); }},
        {"direction", [](T& t) { t.SetDirection(-1.0F); }},
        {"spacing", [](T& t) { t.SetExtraSpacing(0.5); }},
        {"expansion", [](T& t) { t.SetExpansion(0.5); }},
        {"writing mode", [](T& t) { t.SetWritingMode(static_cast<VEKPrtTextWritingMode>(-7)); }}};
    for (const auto& [name, change] : changes) {
        T text, other;
        EXPECT_EQ(text == other, 1) << name;
        change(other);
        EXPECT_EQ(text == other, 0) << name;
        text = other;
        EXPECT_EQ(text == other, 1) << name << ", assigned";
        EXPECT_EQ(T(other) == other, 1) << name << ", copied";
    }
    T set;
    set.SetWeight(Value<VEKPrintTextAttribute>(27));
    set.SetHeight(-1.0);
    set.SetSlant(2.0F);
    set.SetDirection(3.0F);
    set.SetExtraSpacing(4.0);
    set.SetExpansion(5.0);
    set.SetWritingMode(VEKPrtTextVertical);
    const T text;
    const auto plain = [](const T& iText) {
        VEKPrintTextAttribute weight;
        VEKPrtTextWritingMode mode;
        double height = -9, spacing = -9, expansion = -9;
        float slant = -9, direction = -9;
        iText.GetWeight(weight);
        iText.GetHeight(height);
        iText.GetSlant(slant);
        iText.GetDirection(direction);
        iText.GetExtraSpacing(spacing);
        iText.GetExpansion(expansion);
        iText.GetWritingMode(mode);
        return std::vector<double>{double(weight), height,    slant,       direction,
                                   spacing,        expansion, double(mode)};
    };
    EXPECT_EQ(plain(set), (std::vector<double>{27, -1, 2, 3, 4, 5, 1}));
    EXPECT_EQ(plain(text), (std::vector<double>{25, 10, 0, 0, 0, 1, 0}));
    VEKFont* held = &g_font;
    VEKPrintTextAttribute anchor;
    text.GetFont(held);
    text.GetAnchor(anchor);
    EXPECT_EQ(held, nullptr);
    EXPECT_EQ(anchor, 29);
}

TEST(SmallRecords, CopyTheirField) {
    VEKPrtMarkerAttributes marker;
    VEKPrintMarkerAttribute style = Value<VEKPrintMarkerAttribute>(4);
    marker.GetMarkerStyle(style);
    EXPECT_EQ(style, 0);
    marker.SetMarkerStyle(Value<VEKPrintMarkerAttribute>(5));
    VEKPrtMarkerAttributes(marker).GetMarkerStyle(style);
    EXPECT_EQ(style, Value<VEKPrintMarkerAttribute>(5));

    VEKPrtGroupAttributes group, other;
    group.SetLinkURI("https://example.org");
    other = VEKPrtGroupAttributes(group);
    VEKPrintLinkURI link;
    other.GetLinkURI(link);
    EXPECT_STREQ(link.GetURI(), "https://example.org");
    WithSelfCopy<VEKPrtGroupAttributes>([](const VEKPrtGroupAttributes& iCopy) {
        VEKPrintLinkURI own("x");
        iCopy.GetLinkURI(own);
        EXPECT_EQ(own, VEKPrintLinkURI());
    });
}
