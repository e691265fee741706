// The fields of records and elements, as tables for typed tests.
#ifndef Fields_H
#define Fields_H

#include <memory>
#include <numeric>
#include <optional>
#include <sstream>
#include <vector>

#include "TestSupport.h"

using Point = VEKMathPoint2D;
using Vector = VEKMathVector2D;
using Matrix = VEKMath2x2Matrix;
using Transform = VEKPrtTransformAttributes;
using Stroke = VEKPrtStrokeAttributes;
using Fill = VEKPrtFillAttributes;

/// A field, or several that are set together, with values of it; the first is that of a new object.  An entry
/// without values stands for a constructor.
template <class Root>
struct FieldOfRoot {
    const char* name;
    std::function<Root*()> construct = {};
    std::size_t count = 0;
    std::function<void(Root&, std::size_t)> set = [](Root&, std::size_t) {};
    /// Whether an object has a value; the failure shows both.
    std::function<testing::AssertionResult(const Root&, std::size_t)> has = [](const Root&, std::size_t) {
        return testing::AssertionSuccess();
    };
};
/// A record, or any of the host's objects: so that one list can hold the fields of a class and its bases.
template <class Class>
using Root = std::conditional_t<std::is_base_of_v<VEKBaseUnknown, Class>, VEKBaseUnknown, Class>;
template <class Class>
using Field = FieldOfRoot<Root<Class>>;
template <class Class>
using Fields = std::vector<Field<Class>>;

/// What the tests know of a class: its name, how it is duplicated, and its fields.
/// A class without a row does not compile.
template <class Class>
struct Row;
template <class Class>
Fields<Class> FieldsOf() {
    return Row<Class>::List();
}

// How failures show values.

inline void PrintTo(const Point& iPoint, std::ostream* ioStream) {
    *ioStream << iPoint.GetX() << ' ' << iPoint.GetY();
}
inline void PrintTo(const Vector& iVector, std::ostream* ioStream) {
    *ioStream << iVector.GetX() << ' ' << iVector.GetY();
}
inline void PrintTo(const Matrix& iMatrix, std::ostream* ioStream) {
    *ioStream << iMatrix.GetCoef(1, 1) << ' ' << iMatrix.GetCoef(1, 2) << ' ' << iMatrix.GetCoef(2, 1) << ' '
              << iMatrix.GetCoef(2, 2);
}
inline void PrintTo(const VEKUnicodeString& iText, std::ostream* ioStream) { *ioStream << iText.ToUtf8(); }
inline void PrintTo(const VEKPrintLinkURI& iLink, std::ostream* ioStream) { *ioStream << iLink.GetURI(); }
/// Of a record, what is not as in a new one.
template <class Record>
void PrintChanges(const Record& iRecord, std::ostream* ioStream) {
    for (const Field<Record>& field : FieldsOf<Record>())
        if (const auto asNew = field.has(iRecord, 0); !asNew) *ioStream << asNew.message() << "; ";
}

/// Enumerations are given by number.
template <class T>
using Given = std::conditional_t<std::is_enum_v<std::decay_t<T>>, Value<std::decay_t<T>>, std::decay_t<T>>;

/// A field that is set and read by any functions; the latter returns the values, or has a parameter for each.
template <class Class, class... Arguments, class Set, class Get>
Field<Class> FieldBy(const char* iName, Set iSet, Get iGet,
                     std::initializer_list<std::tuple<Given<Arguments>...>> iValues) {
    using Values = std::tuple<std::decay_t<Arguments>...>;
    const auto values = std::make_shared<std::vector<Values>>(iValues.begin(), iValues.end());
    const auto set = [=](Root<Class>& ioObject, std::size_t iIndex) {
        const auto call = [&](const auto&... iValue) {
            std::invoke(iSet, static_cast<Class&>(ioObject), iValue...);
        };
        std::apply(call, (*values)[iIndex]);
    };
    const auto get = [=](const Root<Class>& iObject, std::size_t iUnlike) {
        // Not all getters are const.
        auto& object = static_cast<Class&>(const_cast<Root<Class>&>(iObject));
        if constexpr (std::is_invocable_v<Get, Class&>) {
            return Values(std::invoke(iGet, object));
        } else {
            Values found = (*values)[iUnlike % values->size()]; // to be overwritten
            std::apply([&](auto&... oValue) { std::invoke(iGet, object, oValue...); }, found);
            return found;
        }
    };
    const auto has = [=](const Root<Class>& iObject, std::size_t iIndex) {
        const Values found = get(iObject, iIndex + 1);
        if (found == (*values)[iIndex]) return testing::AssertionSuccess();
        return testing::AssertionFailure() << iName << " is " << testing::PrintToString(found) << ", not "
                                           << testing::PrintToString((*values)[iIndex]);
    };
    return {iName, {}, values->size(), set, has};
}
template <class Class, class... Arguments, class Get>
Field<Class> MakeField(const char* iName, void (Class::*iSet)(Arguments...), Get iGet,
                       std::initializer_list<std::tuple<Given<Arguments>...>> iValues) {
    return FieldBy<Class, Arguments...>(iName, iSet, iGet, iValues);
}

/// A record with the second value of each field.
template <class Record>
Record Changed() {
    Record record;
    for (const Field<Record>& field : FieldsOf<Record>())
        field.set(record, 1);
    return record;
}

// Transforms by number: what is made of 0 is what the record takes for blank.

template <class Value>
Value FromNumber(double iNumber) {
    return static_cast<Value>(iNumber);
}
template <>
inline Vector FromNumber(double iNumber) {
    return Vector(iNumber, 2 * iNumber);
}
template <>
inline Matrix FromNumber(double iNumber) {
    const Matrix blank;
    return Matrix(blank.GetCoef(1, 1) + iNumber, blank.GetCoef(1, 2) + 2 * iNumber,
                  blank.GetCoef(2, 1) + 3 * iNumber, blank.GetCoef(2, 2) + 4 * iNumber);
}
inline double ToNumber(double iValue) { return iValue; }
inline double ToNumber(const Vector& iValue) { return iValue.GetX(); }
inline double ToNumber(const Matrix& iValue) { return iValue.GetCoef(1, 1) - Matrix().GetCoef(1, 1); }

/// A kind of entry in a transform.
struct TransformKind {
    const char* name;
    std::function<int(Transform&, double)> add;
    /// The value at a position of the list; none where the record says that it failed.
    std::function<std::optional<double>(const Transform&, unsigned)> get;
};

template <class Argument, class Value>
TransformKind MakeKind(const char* iName, int (Transform::*iAdd)(Argument),
                       int (Transform::*iGet)(unsigned, Value&) const) {
    const auto add = [=](Transform& ioTransform, double iNumber) {
        return (ioTransform.*iAdd)(FromNumber<Value>(iNumber));
    };
    const auto get = [=](const Transform& iTransform, unsigned iIndex) {
        const auto untouched = FromNumber<Value>(-99);
        Value value = untouched;
        const int status = (iTransform.*iGet)(iIndex, value);
        EXPECT_EQ(status, value == untouched ? -1 : 1) << "outputs are written on success only";
        EXPECT_TRUE(value == FromNumber<Value>(ToNumber(value))) << iName << ", in all components";
        return status == 1 ? std::optional<double>(ToNumber(value)) : std::nullopt;
    };
    return {iName, add, get};
}

#define KIND(Name) MakeKind(#Name, &Transform::Add##Name, &Transform::Get##Name)
/// By their numbers.
inline const TransformKind g_kinds[] = {KIND(Matrix), KIND(Translation), KIND(Rotation), KIND(ScaleX),
                                        KIND(ScaleY), KIND(SkewX),       KIND(SkewY)};

/// The kinds in order, each with its value where it has one.
using Entries = std::vector<std::pair<int, std::optional<double>>>;
inline Entries EntriesOf(const Transform& iTransform) {
    unsigned count = 99;
    VEKPrintTransformType* kinds = nullptr;
    EXPECT_EQ(iTransform.GetTransformTab(count, kinds), 1);
    Entries entries;
    for (unsigned i = 0; kinds && i < count; ++i) {
        const bool known = kinds[i] >= 0 && kinds[i] < 7;
        entries.emplace_back(kinds[i], known ? g_kinds[kinds[i]].get(iTransform, i) : std::nullopt);
    }
    return entries;
}

/// One of each kind, in an order that is neither that of the kinds nor that of the fields.
inline const Entries g_oneOfEach = {{6, 16}, {3, 13}, {0, 10}, {1, 11}, {2, 12}, {5, 15}, {4, 14}};
inline void SetEntries(Transform& ioTransform, const Entries& iEntries) {
    Transform transform;
    for (const auto& [kind, value] : iEntries)
        g_kinds[kind].add(transform, *value);
    ioTransform = transform;
}

// Records that cannot be compared, and what tests compare instead.

inline bool operator==(const Transform& iLeft, const Transform& iRight) {
    return EntriesOf(iLeft) == EntriesOf(iRight);
}
inline bool operator==(const VEKPrtGroupAttributes& iLeft, const VEKPrtGroupAttributes& iRight) {
    VEKPrintLinkURI left, right;
    iLeft.GetLinkURI(left);
    iRight.GetLinkURI(right);
    return left == right;
}
inline bool operator==(VEKPrtMarkerAttributes iLeft, VEKPrtMarkerAttributes iRight) {
    VEKPrintMarkerAttribute left, right;
    iLeft.GetMarkerStyle(left);
    iRight.GetMarkerStyle(right);
    return left == right;
}

inline void SetDashes(Stroke& ioStroke, const std::vector<float>& iDashes) {
    ioStroke.SetStrokeTypePattern(iDashes.data(), static_cast<unsigned char>(iDashes.size()));
}
inline std::vector<float> DashesOf(const Stroke& iStroke) {
    float* dashes = nullptr;
    unsigned char count = 0;
    iStroke.GetStrokeTypePattern(dashes, count);
    const std::unique_ptr<float[]> owner(dashes);
    return dashes ? std::vector<float>(dashes, dashes + count) : std::vector<float>();
}
inline Stroke Dashed(const std::vector<float>& iDashes) {
    Stroke stroke;
    SetDashes(stroke, iDashes);
    return stroke;
}

/// What elements hold of arrays, which are their own.
struct Arrays {
    int order = -99, count = -99;
    double *points = nullptr, *knots = nullptr, *weights = nullptr;
    int* counts = nullptr;
    float first = -99, second = -99;
    /// The points of all polygons.
    long long Total() const { return counts ? std::accumulate(counts, counts + count, 0LL) : 0; }
};
template <class Element>
Arrays ArraysOf(const Element& iElement) {
    Arrays arrays;
    iElement.GetPoints(arrays.points, arrays.count);
    return arrays;
}
inline Arrays ArraysOf(const VEKPrtPolyPolygonElt& iElement) {
    Arrays arrays;
    iElement.GetPoints(arrays.points, arrays.counts, arrays.count);
    return arrays;
}
inline Arrays ArraysOf(const VEKPrtNURBSElt& iCurve) {
    Arrays a;
    iCurve.GetParameters(a.order, a.count, a.points, a.knots, a.first, a.second, a.weights);
    return a;
}
template <class Value>
std::string Shown(const Value* iArray, long long iCount, const char* iNone) {
    if (!iArray) return iNone;
    std::ostringstream text;
    for (long long i = 0; i < iCount; ++i)
        text << (i == 0 ? "" : " ") << iArray[i];
    return " (" + text.str() + ")";
}
/// What an element holds of arrays as text: counts, then arrays.
template <class Element>
std::string ShowPoints(const Element& iElement, const char* iNone = " none") {
    constexpr bool isCurve = std::is_same_v<Element, VEKPrtNURBSElt>;
    constexpr bool hasCounts = std::is_same_v<Element, VEKPrtPolyPolygonElt>;
    const Arrays a = ArraysOf(iElement);
    const auto shown = [=](const auto* iArray, long long iCount) { return Shown(iArray, iCount, iNone); };
    std::ostringstream text;
    if (isCurve) text << a.order << ' ';
    text << a.count;
    if (isCurve) text << ' ' << a.first << ' ' << a.second;
    if (hasCounts) text << shown(a.counts, a.count);
    text << shown(a.points, 2 * (hasCounts ? a.Total() : a.count));
    if (isCurve) text << shown(a.knots, a.order + a.count) << shown(a.weights, a.count);
    return text.str();
}
inline const double g_five[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
inline const double g_knots[] = {10, 11, 12, 13, 14, 15};
inline const double g_weights[] = {20, 21, 22};
inline const int g_counts[] = {2, 1};

/// Each colour as one number.
using Colours = std::vector<int>;
inline int Add(VEKPrtColourTable& ioTable, int iColour) {
    unsigned index = 0;
    const auto component = [=](int iShift) { return static_cast<unsigned char>(iColour >> iShift); };
    return ioTable.AddColour(component(16), component(8), component(0), index);
}
inline Colours ColoursOf(const VEKPrtColourTable& iTable) {
    int count = -1;
    Colours colours;
    unsigned char red = 77, green = 77, blue = 77;
    EXPECT_EQ(iTable.GetColourCount(count), 1);
    EXPECT_EQ(iTable.GetColour(static_cast<unsigned>(count), red, green, blue), -1);
    EXPECT_TRUE(red == 77 && green == 77 && blue == 77) << "outputs are written on success only";
    for (int i = 0; i < count; ++i) {
        EXPECT_EQ(iTable.GetColour(static_cast<unsigned>(i), red, green, blue), 1);
        colours.push_back(red << 16 | green << 8 | blue);
    }
    return colours;
}
inline VEKPrtColourTable* TableOf(VEKPrtImageElt& ioImage) {
    VEKPrtColourTable* table = nullptr;
    ioImage.GetColourTable(table);
    return table;
}
inline VEKPixelImage* PixelsOf(const VEKPrtBitmapImageElt& iBitmap) {
    VEKPixelImage* image = nullptr;
    iBitmap.GetPixelImage(image);
    return image;
}

#endif
