// Single operations beside what the language has for the same work.
#include <cstring>
#include <memory>

#include "Compare.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtWalk.h"

using vekprt::Make;
using vekprt::VEKRef;

namespace {

template <class T>
T* Copied(const T* iValues, std::size_t iCount) {
    T* const copy = new T[iCount];
    std::memcpy(copy, iValues, iCount * sizeof(T));
    return copy;
}
// An array that grows by copying, as often as the library's.
template <class T>
void Grow(std::unique_ptr<T[]>& ioHeld, std::size_t iCount, std::size_t iCapacity) {
    std::unique_ptr<T[]> larger(new T[iCapacity]);
    if (iCount > 0) std::memcpy(larger.get(), ioHeld.get(), iCount * sizeof(T));
    ioHeld = std::move(larger);
}

void SetPoints(benchmark::State& ioState) {
    const int points = static_cast<int>(ioState.range(0)), rounds = 2000000 / points + 1;
    const std::vector<double> values(2 * static_cast<std::size_t>(points), 1.5);
    const auto polyline = Make<VEKPrtPolylineElt>();
    std::unique_ptr<double[]> plain;
    Compare(
        ioState, rounds, [&](int) { polyline->SetPoints(values.data(), points); },
        [&](int) {
            plain.reset();
            plain.reset(Copied(values.data(), values.size()));
            benchmark::DoNotOptimize(plain.get());
        });
}
BENCHMARK(SetPoints)->Apply(Passes)->Arg(16)->Arg(1000000);

void AddColour(benchmark::State& ioState) {
    const int colours = static_cast<int>(ioState.range(0));
    std::unique_ptr<VEKPrtColourTable> table;
    std::unique_ptr<unsigned char[]> parts[3];
    Compare(
        ioState, colours,
        [&](int i) {
            unsigned index = 0;
            if (i == 0) table = std::make_unique<VEKPrtColourTable>();
            table->AddColour(1, 2, 3, index);
        },
        [&](int i) {
            const auto count = static_cast<std::size_t>(i);
            for (auto& part : parts) {
                if (i % 256 == 0) Grow(part, count, count + 256);
                part[count] = 1;
            }
            benchmark::DoNotOptimize(parts);
        });
}
BENCHMARK(AddColour)->Apply(Passes)->Arg(100000)->Arg(1000000);

void AddTransforms(benchmark::State& ioState) {
    std::unique_ptr<VEKPrtTransformAttributes> transform;
    std::unique_ptr<double[]> values;
    std::unique_ptr<int[]> kinds;
    Compare(
        ioState, 1000,
        [&](int i) {
            if (i == 0) transform = std::make_unique<VEKPrtTransformAttributes>();
            transform->AddScaleX(1.5);
        },
        [&](int i) {
            const auto count = static_cast<std::size_t>(i);
            Grow(values, count, count + 1);
            Grow(kinds, count, count + 1);
            values[count] = kinds[count] = 3;
            benchmark::DoNotOptimize(values.get());
        });
}
BENCHMARK(AddTransforms)->Apply(Passes);

// A child, as a plain list would count it.
struct PlainChild {
    long references = 1;
};

void AddChild(benchmark::State& ioState) {
    const auto line = Make<VEKPrtLineElt>();
    VEKRef<VEKPrtGroupElt> group;
    PlainChild plain;
    std::vector<PlainChild*> list;
    Compare(
        ioState, 1000000,
        [&](int i) {
            if (i == 0) group = Make<VEKPrtGroupElt>();
            group->AddChild(line.Get());
        },
        [&](int i) {
            if (i == 0) {
                for (PlainChild* const child : list)
                    --child->references;
                list = {};
            }
            ++plain.references;
            list.push_back(&plain);
        });
}
BENCHMARK(AddChild)->Apply(Passes);

// 1000 of 100000, from the front (0) or the back (1).
void RemoveChild(benchmark::State& ioState) {
    constexpr int children = 100000, removals = 1000;
    const bool isBack = ioState.range(0) == 1;
    std::vector<VEKRef<VEKPrtLineElt>> lines(children);
    std::vector<PlainChild> plain(children);
    for (auto& line : lines)
        line = Make<VEKPrtLineElt>();
    VEKRef<VEKPrtGroupElt> group;
    std::vector<PlainChild*> list;
    const auto at = [&](int i) { return static_cast<std::size_t>(isBack ? children - 1 - i : i); };
    Compare(
        ioState, removals, [&](int i) { group->RemoveChild(lines[at(i)].Get()); },
        [&](int i) { list.erase(std::find(list.begin(), list.end(), &plain[at(i)])); },
        [&] {
            group = Make<VEKPrtGroupElt>();
            list.clear();
            for (std::size_t i = 0; i < children; ++i) {
                group->AddChild(lines[i].Get());
                list.push_back(&plain[i]);
            }
        });
}
BENCHMARK(RemoveChild)->Apply(Passes)->Arg(0)->Arg(1);

// Visit beside comparisons of GetMetaObject() written by hand, in the same order.
void VisitElement(benchmark::State& ioState) {
    const VEKRef<VEKPrtGraphicPrimitiveElt> elements[] = {Make<VEKPrtLineElt>(), Make<VEKPrtPolylineElt>(),
                                                          Make<VEKPrtTextElt>(), Make<VEKPrtGroupElt>()};
    struct Counter {
        int lines = 0, polylines = 0, texts = 0, others = 0;
        void operator()(VEKPrtLineElt&) { ++lines; }
        void operator()(VEKPrtPolylineElt&) { ++polylines; }
        void operator()(VEKPrtTextElt&) { ++texts; }
        void operator()(VEKPrtGraphicPrimitiveElt&) { ++others; }
    } visited, compared;
    Compare(
        ioState, 1000000, [&](int i) { vekprt::Visit(*elements[i % 4], visited); },
        [&](int i) {
            const VEKMetaClass* const meta = elements[i % 4]->GetMetaObject();
            if (meta == VEKPrtLineElt::MetaObject())
                ++compared.lines;
            else if (meta == VEKPrtPolylineElt::MetaObject())
                ++compared.polylines;
            else if (meta == VEKPrtTextElt::MetaObject())
                ++compared.texts;
            else if (meta == VEKPrtGroupElt::MetaObject())
                ++compared.others;
        });
    benchmark::DoNotOptimize(visited);
    benchmark::DoNotOptimize(compared);
}
BENCHMARK(VisitElement)->Apply(Passes);

void SetAndGetText(benchmark::State& ioState) {
    const auto line = Make<VEKPrtLineElt>();
    const VEKUnicodeString text("twelve chars");
    std::unique_ptr<char[]> held;
    Compare(
        ioState, 200000,
        [&](int) {
            VEKUnicodeString read;
            line->SetID(text);
            line->GetID(read);
            benchmark::DoNotOptimize(read.ToUtf8());
        },
        [&](int) {
            held.reset(Copied(text.ToUtf8(), std::strlen(text.ToUtf8()) + 1));
            const std::unique_ptr<char[]> read(Copied(held.get(), std::strlen(held.get()) + 1));
            benchmark::DoNotOptimize(read.get());
        });
}
BENCHMARK(SetAndGetText)->Apply(Passes);

} // namespace
