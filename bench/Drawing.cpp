// A page as a client builds it and consumers use it: built, walked, duplicated, released.
//
// Groups of 100 elements: 50 lines, 20 rectangles, 20 polylines of 16 points, 10 texts of 12 characters; a
// stroke of colour and width on each, a translation and a rotation on every tenth.
#include <malloc.h>

#include <cstring>
#include <random>
#include <string>

#include "Compare.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtWalk.h"

namespace {

constexpr int groupSize = 100, polylinePoints = 16;
const char g_text[] = "twelve chars";

// Pre-generated random numbers: generating them takes longer than storing them.
const double* Numbers(int iElement) {
    static const std::vector<double> numbers = [] {
        std::mt19937 random(1);
        std::uniform_real_distribution<double> any(0.0, 1000.0);
        std::vector<double> generated(4096 + 2 * polylinePoints);
        for (double& number : generated)
            number = any(random);
        return generated;
    }();
    return numbers.data() + iElement * 7 % 4096;
}

enum Kind { line, rectangle, polyline, text, container };
Kind KindAt(int iIndex) {
    return iIndex < 50 ? line : iIndex < 70 ? rectangle : iIndex < 90 ? polyline : text;
}
unsigned ColourAt(int iIndex) { return static_cast<unsigned>(iIndex) % 16; }
bool IsTransformed(int iIndex) { return iIndex % 10 == 0; }

// A client of the library.
class Model {
public:
    void Build(int iElements) {
        _page = new VEKPrtImageElt;
        auto* const colours = new VEKPrtColourTable;
        unsigned index = 0;
        for (unsigned char i = 0; i < 16; ++i)
            colours->AddColour(i, i, i, index);
        _page->SetColourTable(colours);
        for (int element = 0; element < iElements; element += groupSize) {
            auto* const group = new VEKPrtGroupElt;
            for (int i = 0; i < groupSize; ++i)
                AddElement(*group, i, Numbers(element + i));
            _page->AddChild(group);
            group->Release();
        }
    }
    double Walk() const {
        Reader reader;
        for (VEKPrtGraphicPrimitiveElt& group : vekprt::ChildrenOf(*_page))
            for (VEKPrtGraphicPrimitiveElt& element : vekprt::ChildrenOf(static_cast<VEKPrtGroupElt&>(group)))
                vekprt::Visit(element, reader);
        return reader.sum;
    }
    void Duplicate() { _page->Duplicate(_copy); }
    void Release() {
        _copy->Release();
        _page->Release();
    }

private:
    // Reads all geometry and the stroke's width.
    struct Reader {
        double sum = 0.0;

        template <class Element>
        void Add(const Element& iElement, std::initializer_list<VEKMathPoint2D> iPoints) {
            for (const VEKMathPoint2D& point : iPoints)
                sum += point.GetX() + point.GetY();
            VEKPrtStrokeAttributes stroke;
            double width = 0.0;
            iElement.GetStrokeAttributes(stroke);
            stroke.GetStrokeWidth(width);
            sum += width;
        }
        void operator()(VEKPrtLineElt& iLine) {
            VEKMathPoint2D a, b;
            iLine.GetParameters(a, b);
            Add(iLine, {a, b});
        }
        void operator()(VEKPrtRectangleElt& iRectangle) {
            VEKMathPoint2D a, b;
            iRectangle.GetPoints(a, b);
            Add(iRectangle, {a, b});
        }
        void operator()(VEKPrtPolylineElt& iPolyline) {
            double* points = nullptr;
            int count = 0;
            iPolyline.GetPoints(points, count);
            for (int i = 0; i < 2 * count; ++i)
                sum += points[i];
            Add(iPolyline, {});
        }
        void operator()(VEKPrtTextElt& iText) {
            VEKMathPoint2D position;
            iText.GetPosition(position);
            Add(iText, {position});
        }
        void operator()(VEKPrtGraphicPrimitiveElt&) {}
    };

    template <class Element>
    static void Add(VEKPrtGroupElt& ioGroup, int iIndex, Element* iElement, const double* iNumbers) {
        VEKPrtStrokeAttributes stroke;
        stroke.SetStrokeColourIndex(ColourAt(iIndex));
        stroke.SetStrokeWidth(iNumbers[0]);
        iElement->SetStrokeAttributes(stroke);
        if (IsTransformed(iIndex)) {
            VEKPrtTransformAttributes transform;
            transform.AddTranslation(VEKMathVector2D(1.0, 2.0));
            transform.AddRotation(30.0F);
            iElement->SetTransformAttributes(transform);
        }
        ioGroup.AddChild(iElement);
        iElement->Release();
    }
    static void AddElement(VEKPrtGroupElt& ioGroup, int iIndex, const double* iNumbers) {
        const VEKMathPoint2D a(iNumbers[0], iNumbers[1]), b(iNumbers[2], iNumbers[3]);
        const Kind kind = KindAt(iIndex);
        if (kind == line) Add(ioGroup, iIndex, new VEKPrtLineElt(a, b), iNumbers);
        if (kind == rectangle) Add(ioGroup, iIndex, new VEKPrtRectangleElt(a, b), iNumbers);
        if (kind == polyline) Add(ioGroup, iIndex, new VEKPrtPolylineElt(iNumbers, polylinePoints), iNumbers);
        if (kind == text) Add(ioGroup, iIndex, new VEKPrtTextElt(a, VEKUnicodeString(g_text)), iNumbers);
    }

    VEKPrtImageElt* _page = nullptr;
    VEKPrtGraphicPrimitiveElt* _copy = nullptr;
};

// The baseline: a plain struct for each element, in a block as long as the library's object, and one malloc
// for it and for each array.
struct Plain {
    Kind kind;
    unsigned colour;
    double width, points[4];
    struct {
        void* values;
        std::size_t bytes;
    } arrays[4]; // of a container, the first one holds the members
};
std::size_t BytesOf(Kind iKind) {
    static const std::size_t bytes[] = {sizeof(VEKPrtLineElt), sizeof(VEKPrtRectangleElt),
                                        sizeof(VEKPrtPolylineElt), sizeof(VEKPrtTextElt),
                                        sizeof(VEKPrtGroupElt)};
    return bytes[iKind];
}

class Baseline {
public:
    void Build(int iElements) {
        _page = New(container);
        for (const int component : {1, 2, 3})
            SetArray(*_page, component, std::string(256, '\0').data(), 256);
        for (int element = 0; element < iElements; element += groupSize) {
            Plain* const group = New(container);
            for (int i = 0; i < groupSize; ++i)
                Append(*group, NewElement(i, Numbers(element + i)));
            Append(*_page, group);
        }
    }
    double Walk() const {
        double sum = 0.0;
        for (int g = 0; g < Count(*_page); ++g)
            for (int i = 0; i < Count(*Member(*_page, g)); ++i)
                sum += Read(*Member(*Member(*_page, g), i));
        return sum;
    }
    void Duplicate() { _copy = Copy(*_page); }
    void Release() {
        Free(_copy);
        Free(_page);
    }

private:
    static Plain* New(Kind iKind) {
        auto* const element = static_cast<Plain*>(std::calloc(1, BytesOf(iKind)));
        element->kind = iKind;
        return element;
    }
    static void SetArray(Plain& ioElement, int iArray, const void* iValues, std::size_t iBytes) {
        ioElement.arrays[iArray] = {std::malloc(iBytes), iBytes};
        std::memcpy(ioElement.arrays[iArray].values, iValues, iBytes);
    }
    static int Count(const Plain& iContainer) {
        return static_cast<int>(iContainer.arrays[0].bytes / sizeof(Plain*));
    }
    static Plain*& Member(const Plain& iContainer, int iMember) {
        return static_cast<Plain**>(iContainer.arrays[0].values)[iMember];
    }
    // Doubles the room when the count is a power of two.
    static void Append(Plain& ioContainer, Plain* iMember) {
        const int count = Count(ioContainer);
        auto& members = ioContainer.arrays[0];
        if ((count & (count - 1)) == 0)
            members.values =
                std::realloc(members.values, std::max<std::size_t>(2 * members.bytes, sizeof(Plain*)));
        members.bytes += sizeof(Plain*);
        Member(ioContainer, count) = iMember;
    }
    static Plain* NewElement(int iIndex, const double* iNumbers) {
        Plain* const element = New(KindAt(iIndex));
        element->colour = ColourAt(iIndex);
        element->width = iNumbers[0];
        std::copy_n(iNumbers, 4, element->points);
        if (element->kind == polyline) SetArray(*element, 0, iNumbers, 2 * polylinePoints * sizeof(double));
        if (element->kind == text) SetArray(*element, 0, g_text, sizeof g_text);
        if (!IsTransformed(iIndex)) return element;
        const int kinds[] = {1, 2};
        const double translation[] = {1.0, 2.0};
        const float rotation = 30.0F;
        SetArray(*element, 1, kinds, sizeof kinds);
        SetArray(*element, 2, translation, sizeof translation);
        SetArray(*element, 3, &rotation, sizeof rotation);
        return element;
    }
    static double Read(const Plain& iElement) {
        const double* const p = iElement.points;
        double sum = iElement.width;
        if (iElement.kind == text) return sum + p[0] + p[1];
        if (iElement.kind != polyline) return sum + p[0] + p[1] + p[2] + p[3];
        const auto* const points = static_cast<const double*>(iElement.arrays[0].values);
        for (int i = 0; i < 2 * polylinePoints; ++i)
            sum += points[i];
        return sum;
    }
    static Plain* Copy(const Plain& iElement) {
        auto* const copy = static_cast<Plain*>(std::malloc(BytesOf(iElement.kind)));
        std::memcpy(static_cast<void*>(copy), &iElement, BytesOf(iElement.kind));
        for (int array = 0; array < 4; ++array)
            if (copy->arrays[array].values)
                SetArray(*copy, array, copy->arrays[array].values, copy->arrays[array].bytes);
        for (int i = 0; copy->kind == container && i < Count(*copy); ++i)
            Member(*copy, i) = Copy(*Member(*copy, i));
        return copy;
    }
    static void Free(Plain* iElement) {
        for (int i = 0; iElement->kind == container && i < Count(*iElement); ++i)
            Free(Member(*iElement, i));
        for (const auto& array : iElement->arrays)
            std::free(array.values);
        std::free(iElement);
    }

    Plain* _page = nullptr;
    Plain* _copy = nullptr;
};

double HeapBytes() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// Nanoseconds for an element by phase, and its bytes.
constexpr int phases = 5;
const char* const g_phases[phases] = {"build ", "walk ", "duplicate ", "release ", "memory "};
struct Figures {
    double values[phases] = {};
    double sum = 0.0;
};

// Small pages again and again, so that the clock has something to measure.
template <class Side>
Figures Run(int iElements) {
    const int rounds = std::max(1, 100000 / iElements);
    Figures figures;
    const auto time = [&](int iPhase, auto iOperation) {
        figures.values[iPhase] += Seconds(iOperation) * 1e9 / iElements / rounds;
    };
    for (int round = 0; round < rounds; ++round) {
        Side side;
        const double before = HeapBytes();
        time(0, [&] { side.Build(iElements); });
        figures.values[4] = (HeapBytes() - before) / iElements;
        time(1, [&] { figures.sum = side.Walk(); });
        time(2, [&] { side.Duplicate(); });
        time(3, [&] {
            side.Release();
            MergeFreeBlocks();
        });
    }
    return figures;
}

void Drawing(benchmark::State& ioState) {
    const int elements = static_cast<int>(ioState.range(0));
    Pairs pairs[phases];
    // Takes the memory that every pass uses again.
    Run<Model>(elements);
    for (auto _ : ioState) {
        const Figures library = Run<Model>(elements), plain = Run<Baseline>(elements);
        if (std::abs(library.sum / plain.sum - 1.0) > 1e-9)
            ioState.SkipWithError("the two sides read different drawings");
        for (int phase = 0; phase < phases; ++phase)
            pairs[phase].Add(library.values[phase], plain.values[phase]);
        ioState.SetIterationTime(1e-9);
    }
    for (int phase = 0; phase < phases; ++phase)
        pairs[phase].Report(ioState, g_phases[phase]);
}
BENCHMARK(Drawing)->Apply(Passes)->Arg(2000)->Arg(20000)->Arg(200000)->Arg(2000000);

} // namespace
