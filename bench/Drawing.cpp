// A page as a client builds it and consumers use it: built, walked, duplicated, released.
//
// Groups of 100 elements: 50 lines, 20 rectangles, 20 polylines of 16 points, 10 texts of 12 characters; a
// stroke of colour and width on each, a translation and a rotation on every tenth.
#include <malloc.h>

#include <memory>
#include <random>
#include <string>

#include "Compare.h"
#include "Floor.h"
#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtRectangleElt.h"
#include "VEKPrtTextElt.h"

namespace {

constexpr int groupSize = 100, polylinePoints = 16;
const char g_text[] = "twelve chars";

// Numbers drawn beforehand: drawing them takes longer than storing them.
const double* Numbers(int iElement) {
    static const std::vector<double> numbers = [] {
        std::mt19937 random(1);
        std::uniform_real_distribution<double> any(0.0, 1000.0);
        std::vector<double> drawn(4096 + 2 * polylinePoints);
        for (double& number : drawn)
            number = any(random);
        return drawn;
    }();
    return numbers.data() + iElement * 7 % 4096;
}

plain::Kind KindAt(int iIndex) {
    return iIndex < 50   ? plain::line
           : iIndex < 70 ? plain::rectangle
           : iIndex < 90 ? plain::polyline
                         : plain::text;
}
bool IsTransformed(int iIndex) { return iIndex % 10 == 0; }

// The model's side.  A careful client makes records and strings once, and asks each class once for its
// meta-object; a plain one does so for every element.
template <bool isCareful>
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
        const Classes classes; // of the careful client
        double sum = 0.0;
        VEKListPtrVEKPrtGraphicPrimitiveElt* groups = nullptr;
        _page->GetChildren(groups);
        for (int g = 1; g <= groups->Size(); ++g) {
            VEKListPtrVEKPrtGraphicPrimitiveElt* children = nullptr;
            static_cast<VEKPrtGroupElt*>((*groups)[g])->GetChildren(children);
            for (int i = 1; i <= children->Size(); ++i)
                sum += Visit(*static_cast<VEKPrtGraphicPrimitiveElt*>((*children)[i]), classes);
        }
        return sum;
    }

    void Duplicate() { _page->Duplicate(_copy); }

    void Release() {
        _copy->Release();
        _page->Release();
        MergeFreeBlocks();
    }

private:
    struct Classes {
        VEKMetaClass* line = VEKPrtLineElt::MetaObject();
        VEKMetaClass* rectangle = VEKPrtRectangleElt::MetaObject();
        VEKMetaClass* polyline = VEKPrtPolylineElt::MetaObject();
        VEKMetaClass* text = VEKPrtTextElt::MetaObject();
    };
    struct Records {
        VEKPrtStrokeAttributes stroke;
        VEKPrtTransformAttributes transform;
        VEKUnicodeString text = g_text;
        Records() {
            transform.AddTranslation(VEKMathVector2D(1.0, 2.0));
            transform.AddRotation(30.0F);
        }
    };

    template <class Element>
    void Add(VEKPrtGroupElt& ioGroup, int iIndex, Element* iElement, const double* iNumbers) {
        const unsigned colour = static_cast<unsigned>(iIndex) % 16;
        if (isCareful) {
            _records->stroke.SetStrokeColourIndex(colour);
            _records->stroke.SetStrokeWidth(iNumbers[0]);
            iElement->SetStrokeAttributes(_records->stroke);
            if (IsTransformed(iIndex)) iElement->SetTransformAttributes(_records->transform);
        } else {
            VEKPrtStrokeAttributes stroke;
            stroke.SetStrokeColourIndex(colour);
            stroke.SetStrokeWidth(iNumbers[0]);
            iElement->SetStrokeAttributes(stroke);
            if (IsTransformed(iIndex)) {
                VEKPrtTransformAttributes transform;
                transform.AddTranslation(VEKMathVector2D(1.0, 2.0));
                transform.AddRotation(30.0F);
                iElement->SetTransformAttributes(transform);
            }
        }
        ioGroup.AddChild(iElement);
        iElement->Release();
    }

    void AddElement(VEKPrtGroupElt& ioGroup, int iIndex, const double* iNumbers) {
        const VEKMathPoint2D a(iNumbers[0], iNumbers[1]), b(iNumbers[2], iNumbers[3]);
        switch (KindAt(iIndex)) {
        case plain::line: return Add(ioGroup, iIndex, new VEKPrtLineElt(a, b), iNumbers);
        case plain::rectangle: return Add(ioGroup, iIndex, new VEKPrtRectangleElt(a, b), iNumbers);
        case plain::polyline:
            return Add(ioGroup, iIndex, new VEKPrtPolylineElt(iNumbers, polylinePoints), iNumbers);
        case plain::text:
            if (isCareful) return Add(ioGroup, iIndex, new VEKPrtTextElt(a, _records->text), iNumbers);
            return Add(ioGroup, iIndex, new VEKPrtTextElt(a, VEKUnicodeString(g_text)), iNumbers);
        }
    }

    template <class Element>
    static double WidthOf(const Element& iElement) {
        VEKPrtStrokeAttributes stroke;
        double width = 0.0;
        iElement.GetStrokeAttributes(stroke);
        stroke.GetStrokeWidth(width);
        return width;
    }

    static double Visit(VEKPrtGraphicPrimitiveElt& iElement, const Classes& iClasses) {
        const VEKMetaClass* const meta = iElement.GetMetaObject();
        VEKMathPoint2D a, b;
        if (meta == (isCareful ? iClasses.line : VEKPrtLineElt::MetaObject())) {
            const auto& line = static_cast<VEKPrtLineElt&>(iElement);
            line.GetParameters(a, b);
            return a.GetX() + a.GetY() + b.GetX() + b.GetY() + WidthOf(line);
        }
        if (meta == (isCareful ? iClasses.rectangle : VEKPrtRectangleElt::MetaObject())) {
            const auto& rectangle = static_cast<VEKPrtRectangleElt&>(iElement);
            rectangle.GetPoints(a, b);
            return a.GetX() + a.GetY() + b.GetX() + b.GetY() + WidthOf(rectangle);
        }
        if (meta == (isCareful ? iClasses.polyline : VEKPrtPolylineElt::MetaObject())) {
            const auto& polyline = static_cast<VEKPrtPolylineElt&>(iElement);
            double* points = nullptr;
            int count = 0;
            polyline.GetPoints(points, count);
            double sum = WidthOf(polyline);
            for (int i = 0; i < 2 * count; ++i)
                sum += points[i];
            return sum;
        }
        if (meta == (isCareful ? iClasses.text : VEKPrtTextElt::MetaObject())) {
            const auto& text = static_cast<VEKPrtTextElt&>(iElement);
            text.GetPosition(a);
            return a.GetX() + a.GetY() + WidthOf(text);
        }
        return 0.0;
    }

    // Made before the clock runs.
    std::unique_ptr<Records> _records = std::make_unique<Records>();
    VEKPrtImageElt* _page = nullptr;
    VEKPrtGraphicPrimitiveElt* _copy = nullptr;
};

// The floor's side.
class Floor {
public:
    void Build(int iElements) {
        _page = New<plain::Page>({});
        for (unsigned char*& component : _page->colours)
            component = static_cast<unsigned char*>(std::malloc(256));
        for (int element = 0; element < iElements; element += groupSize) {
            auto* const group = New<plain::Group>({});
            for (int i = 0; i < groupSize; ++i)
                plain::Append(*group, group->children, NewElement(i, Numbers(element + i)));
            plain::Append(*_page, _page->groups, group);
        }
    }

    double Walk() const {
        double sum = 0.0;
        for (int g = 0; g < _page->count; ++g)
            for (int i = 0; i < _page->groups[g]->count; ++i)
                sum += Visit(*_page->groups[g]->children[i]);
        return sum;
    }

    void Duplicate() {
        _copy = plain::NewCopy(_page);
        for (unsigned char*& component : _copy->colours)
            component = plain::NewCopy(component, 256);
        _copy->groups = nullptr;
        _copy->count = _copy->capacity = 0;
        for (int g = 0; g < _page->count; ++g) {
            auto* const group = plain::NewCopy(_page->groups[g]);
            group->children = nullptr;
            group->count = group->capacity = 0;
            for (int i = 0; i < _page->groups[g]->count; ++i)
                plain::Append(*group, group->children, Copied(*_page->groups[g]->children[i]));
            plain::Append(*_copy, _copy->groups, group);
        }
    }

    void Release() {
        Free(_copy);
        Free(_page);
        MergeFreeBlocks();
    }

private:
    template <class Struct>
    static Struct* New(const Struct& iValue) {
        return plain::NewCopy(&iValue);
    }

    static void Stroke(plain::Stroke& oStroke, int iIndex, const double* iNumbers) {
        oStroke = {};
        oStroke.colour = static_cast<unsigned>(iIndex) % 16;
        oStroke.transparency = 255;
        oStroke.width = iNumbers[0];
        oStroke.style = 8;
        oStroke.cap = 10;
        oStroke.join = 13;
    }
    static void Transform(plain::Transform& oTransform, int iIndex) {
        oTransform = {};
        if (!IsTransformed(iIndex)) return;
        const int kinds[] = {1, 2};
        const double translation[] = {1.0, 2.0};
        const float rotation = 30.0F;
        oTransform.kinds = {plain::NewCopy(kinds, sizeof kinds), 2};
        oTransform.translations = {plain::NewCopy(translation, sizeof translation), 1};
        oTransform.rotations = {plain::NewCopy(&rotation), 1};
    }
    template <class Struct>
    static Struct* NewDrawn(plain::Kind iKind, int iIndex, const double* iNumbers) {
        auto* const element = static_cast<Struct*>(std::malloc(sizeof(Struct)));
        static_cast<plain::Base&>(*element) = {iKind, 1, {}, {}};
        Stroke(element->stroke, iIndex, iNumbers);
        Transform(element->transform, iIndex);
        return element;
    }
    static plain::Base* NewElement(int iIndex, const double* iNumbers) {
        const plain::Kind kind = KindAt(iIndex);
        if (kind == plain::line) {
            auto* const element = NewDrawn<plain::Line>(kind, iIndex, iNumbers);
            std::copy_n(iNumbers, 4, element->points);
            return element;
        }
        if (kind == plain::rectangle) {
            auto* const element = NewDrawn<plain::Rectangle>(kind, iIndex, iNumbers);
            std::copy_n(iNumbers, 4, element->points);
            element->drawStyle = 1;
            element->fill = {};
            return element;
        }
        if (kind == plain::polyline) {
            auto* const element = NewDrawn<plain::Polyline>(kind, iIndex, iNumbers);
            element->points = plain::NewCopy(const_cast<double*>(iNumbers), pointBytes);
            element->count = polylinePoints;
            return element;
        }
        auto* const element = NewDrawn<plain::Text>(kind, iIndex, iNumbers);
        std::copy_n(iNumbers, 2, element->position);
        element->text = plain::NewCopy(const_cast<char*>(g_text), sizeof g_text);
        element->drawStyle = 1;
        element->fill = {};
        element->record = {nullptr, nullptr, 25, 10.0, 29, 0.0F, 0.0F, 0.0, 1.0, 0};
        return element;
    }

    static double Visit(const plain::Base& iElement) {
        if (iElement.kind == plain::line) {
            const auto& line = static_cast<const plain::Line&>(iElement);
            return line.points[0] + line.points[1] + line.points[2] + line.points[3] + line.stroke.width;
        }
        if (iElement.kind == plain::rectangle) {
            const auto& rectangle = static_cast<const plain::Rectangle&>(iElement);
            return rectangle.points[0] + rectangle.points[1] + rectangle.points[2] + rectangle.points[3] +
                   rectangle.stroke.width;
        }
        if (iElement.kind == plain::polyline) {
            const auto& polyline = static_cast<const plain::Polyline&>(iElement);
            double sum = polyline.stroke.width;
            for (int i = 0; i < 2 * polyline.count; ++i)
                sum += polyline.points[i];
            return sum;
        }
        const auto& text = static_cast<const plain::Text&>(iElement);
        return text.position[0] + text.position[1] + text.stroke.width;
    }

    static constexpr std::size_t pointBytes = 2 * polylinePoints * sizeof(double);

    static void CopyTransform(plain::Transform& ioTransform) {
        const auto copy = [](plain::Array& ioArray, std::size_t iSize) {
            if (ioArray.values)
                ioArray.values = plain::NewCopy(static_cast<char*>(ioArray.values), ioArray.count * iSize);
        };
        copy(ioTransform.kinds, sizeof(int));
        copy(ioTransform.translations, 2 * sizeof(double));
        copy(ioTransform.rotations, sizeof(float));
    }
    template <class Struct>
    static Struct* CopiedAs(const plain::Base& iElement) {
        auto* const copy = plain::NewCopy(&static_cast<const Struct&>(iElement));
        auto* const own = const_cast<Struct*>(copy);
        CopyTransform(own->transform);
        return own;
    }
    static plain::Base* Copied(const plain::Base& iElement) {
        if (iElement.kind == plain::line) return CopiedAs<plain::Line>(iElement);
        if (iElement.kind == plain::rectangle) return CopiedAs<plain::Rectangle>(iElement);
        if (iElement.kind == plain::polyline) {
            auto* const polyline = CopiedAs<plain::Polyline>(iElement);
            polyline->points = plain::NewCopy(polyline->points, pointBytes);
            return polyline;
        }
        auto* const text = CopiedAs<plain::Text>(iElement);
        text->text = plain::NewCopy(text->text, sizeof g_text);
        return text;
    }

    template <class Struct>
    static void FreeAs(plain::Base* iElement) {
        const plain::Transform& transform = static_cast<Struct*>(iElement)->transform;
        for (void* const values :
             {transform.kinds.values, transform.rotations.values, transform.translations.values})
            std::free(values);
        std::free(iElement);
    }
    static void Free(plain::Base* iElement) {
        switch (iElement->kind) {
        case plain::line: return FreeAs<plain::Line>(iElement);
        case plain::rectangle: return FreeAs<plain::Rectangle>(iElement);
        case plain::polyline:
            std::free(static_cast<plain::Polyline*>(iElement)->points);
            return FreeAs<plain::Polyline>(iElement);
        case plain::text:
            std::free(static_cast<plain::Text*>(iElement)->text);
            return FreeAs<plain::Text>(iElement);
        }
    }
    static void Free(plain::Page* iPage) {
        for (int g = 0; g < iPage->count; ++g) {
            plain::Group* const group = iPage->groups[g];
            for (int i = 0; i < group->count; ++i)
                Free(group->children[i]);
            std::free(group->children);
            std::free(group);
        }
        for (unsigned char* const component : iPage->colours)
            std::free(component);
        std::free(iPage->groups);
        std::free(iPage);
    }

    plain::Page* _page = nullptr;
    plain::Page* _copy = nullptr;
};

double HeapBytes() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// Nanoseconds and bytes for an element.
struct Figures {
    double build = 0, walk = 0, duplicate = 0, release = 0, bytes = 0, sum = 0;
};

// Small pages again and again, so that the clock has something to measure.
template <class Side>
Figures Run(int iElements) {
    const int rounds = std::max(1, 100000 / iElements);
    Figures figures;
    for (int round = 0; round < rounds; ++round) {
        Side side;
        const double before = HeapBytes();
        figures.build += Seconds([&] { side.Build(iElements); });
        figures.bytes = (HeapBytes() - before) / iElements;
        figures.walk += Seconds([&] { figures.sum = side.Walk(); });
        figures.duplicate += Seconds([&] { side.Duplicate(); });
        figures.release += Seconds([&] { side.Release(); });
    }
    for (double* const phase : {&figures.build, &figures.walk, &figures.duplicate, &figures.release})
        *phase *= 1e9 / iElements / rounds;
    return figures;
}

template <class Client>
void Drawing(benchmark::State& ioState) {
    const int elements = static_cast<int>(ioState.range(0));
    Pairs build, walk, duplicate, release, memory;
    // Takes the memory that every pass uses again.
    Run<Client>(elements);
    for (auto _ : ioState) {
        const Figures library = Run<Client>(elements), floor = Run<Floor>(elements);
        if (library.sum != floor.sum) ioState.SkipWithError("the two sides read different drawings");
        build.Add(library.build, floor.build);
        walk.Add(library.walk, floor.walk);
        duplicate.Add(library.duplicate, floor.duplicate);
        release.Add(library.release, floor.release);
        memory.Add(library.bytes, floor.bytes);
        ioState.SetIterationTime(library.build + library.walk + library.duplicate + library.release);
    }
    build.Report(ioState, "build ");
    walk.Report(ioState, "walk ");
    duplicate.Report(ioState, "duplicate ");
    release.Report(ioState, "release ");
    memory.Report(ioState, "memory ");
}

void Sizes(benchmark::internal::Benchmark* ioBenchmark) {
    for (const int size : {2000, 20000, 200000, 2000000})
        ioBenchmark->Arg(size)->Iterations(7)->UseManualTime();
}
BENCHMARK_TEMPLATE(Drawing, Model<false>)->Apply(Sizes)->Name("Plain client");
BENCHMARK_TEMPLATE(Drawing, Model<true>)->Apply(Sizes)->Name("Careful client");

} // namespace
