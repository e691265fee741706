// Single operations beside what the language has for the same work.
#include <cstring>
#include <memory>

#include "Compare.h"
#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtNURBSElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKRef.h"

using vekprt::Make;
using vekprt::VEKRef;

namespace {

template <class T>
T* Copied(const T* iValues, std::size_t iCount) {
    T* const copy = new T[iCount];
    std::memcpy(copy, iValues, iCount * sizeof(T));
    return copy;
}
template <class T>
void Replace(T*& ioHeld, T* iOther) {
    delete[] ioHeld;
    ioHeld = iOther;
}
/// Grows an array by copying it, as often as the library does.
template <class T>
void Grow(T*& ioHeld, std::size_t iCount, std::size_t iCapacity) {
    T* const larger = new T[iCapacity];
    if (iCount > 0) std::memcpy(larger, ioHeld, iCount * sizeof(T));
    Replace(ioHeld, larger);
}

void SetPoints(benchmark::State& ioState) {
    const int points = static_cast<int>(ioState.range(0)), rounds = 2000000 / points + 1;
    const std::vector<double> values(2 * static_cast<std::size_t>(points), 1.5);
    const auto polyline = Make<VEKPrtPolylineElt>();
    double* plain = nullptr;
    Compare(
        ioState, rounds,
        [&] {
            for (int i = 0; i < rounds; ++i)
                polyline->SetPoints(values.data(), points);
        },
        [&] {
            for (int i = 0; i < rounds; ++i) {
                Replace(plain, static_cast<double*>(nullptr));
                plain = Copied(values.data(), values.size());
                benchmark::DoNotOptimize(plain);
            }
        });
    delete[] plain;
}
BENCHMARK(SetPoints)->Apply(Passes)->Arg(16)->Arg(1000000);

void AddColour(benchmark::State& ioState) {
    const auto colours = static_cast<std::size_t>(ioState.range(0));
    Compare(
        ioState, static_cast<double>(colours),
        [&] {
            VEKPrtColourTable table;
            unsigned index = 0;
            for (std::size_t i = 0; i < colours; ++i)
                table.AddColour(1, 2, 3, index);
        },
        [&] {
            unsigned char* parts[3] = {};
            for (std::size_t i = 0; i < colours; ++i) {
                for (unsigned char*& part : parts) {
                    if (i % 256 == 0) Grow(part, i, i + 256);
                    part[i] = 1;
                }
                benchmark::DoNotOptimize(parts);
            }
            for (unsigned char* const part : parts)
                delete[] part;
        });
}
BENCHMARK(AddColour)->Apply(Passes)->Arg(100000)->Arg(1000000);

void CopyColourTable(benchmark::State& ioState) {
    constexpr int colours = 1000000;
    VEKPrtColourTable table;
    unsigned index = 0;
    for (int i = 0; i < colours; ++i)
        table.AddColour(1, 2, 3, index);
    const std::vector<unsigned char> plain(colours);
    Compare(
        ioState, 1, [&] { const VEKPrtColourTable copy(table); },
        [&] {
            for (int i = 0; i < 3; ++i) {
                const std::unique_ptr<unsigned char[]> copy(Copied(plain.data(), plain.size()));
                benchmark::DoNotOptimize(copy.get());
            }
        });
}
BENCHMARK(CopyColourTable)->Apply(Passes);

void AddTransforms(benchmark::State& ioState) {
    constexpr std::size_t additions = 1000;
    Compare(
        ioState, additions,
        [&] {
            VEKPrtTransformAttributes transform;
            for (std::size_t i = 0; i < additions; ++i)
                transform.AddScaleX(1.5);
        },
        [&] {
            double* values = nullptr;
            int* kinds = nullptr;
            for (std::size_t i = 0; i < additions; ++i) {
                Grow(values, i, i + 1);
                values[i] = 1.5;
                Grow(kinds, i, i + 1);
                kinds[i] = 3;
            }
            benchmark::DoNotOptimize(values);
            delete[] values;
            delete[] kinds;
        });
}
BENCHMARK(AddTransforms)->Apply(Passes);

// A child, as a plain list would count it.
struct PlainChild {
    long references = 1;
};

void AddChild(benchmark::State& ioState) {
    constexpr int children = 1000000;
    const auto line = Make<VEKPrtLineElt>();
    PlainChild plain;
    Compare(
        ioState, children,
        [&] {
            const auto group = Make<VEKPrtGroupElt>();
            for (int i = 0; i < children; ++i)
                group->AddChild(line.Get());
        },
        [&] {
            std::vector<PlainChild*> list;
            for (int i = 0; i < children; ++i) {
                ++plain.references;
                list.push_back(&plain);
            }
            for (PlainChild* const child : list)
                --child->references;
            benchmark::DoNotOptimize(plain);
        });
}
BENCHMARK(AddChild)->Apply(Passes);

// 1000 of 100000, from the front (0) or the back (1).
void RemoveChild(benchmark::State& ioState) {
    constexpr int children = 100000, removals = 1000;
    const bool isBack = ioState.range(0) == 1;
    std::vector<VEKRef<VEKPrtLineElt>> lines;
    std::vector<PlainChild> plain(children);
    for (int i = 0; i < children; ++i)
        lines.push_back(Make<VEKPrtLineElt>());
    VEKRef<VEKPrtGroupElt> group;
    std::vector<PlainChild*> list;
    Pairs pairs;
    for (auto _ : ioState) {
        group = Make<VEKPrtGroupElt>();
        list.clear();
        for (int i = 0; i < children; ++i) {
            group->AddChild(lines[static_cast<std::size_t>(i)].Get());
            list.push_back(&plain[static_cast<std::size_t>(i)]);
        }
        const auto at = [&](int i) { return static_cast<std::size_t>(isBack ? children - 1 - i : i); };
        const double library = Seconds([&] {
            for (int i = 0; i < removals; ++i)
                group->RemoveChild(lines[at(i)].Get());
        });
        const double floor = Seconds([&] {
            for (int i = 0; i < removals; ++i)
                list.erase(std::find(list.begin(), list.end(), &plain[at(i)]));
            benchmark::DoNotOptimize(list.data());
        });
        pairs.Add(library / removals * 1e9, floor / removals * 1e9);
        ioState.SetIterationTime(library);
    }
    pairs.Report(ioState);
}
BENCHMARK(RemoveChild)->Apply(Passes)->Arg(0)->Arg(1);

void IsAKindOf(benchmark::State& ioState) {
    constexpr int calls = 1000000;
    const VEKRef<VEKPrtGraphicPrimitiveElt> line = Make<VEKPrtLineElt>();
    // The class, its base and the root, as the framework compares them.
    const std::vector<std::string> names = {"VEKPrtLineElt", "VEKPrtGraphicPrimitiveElt", "VEKBaseUnknown"};
    const char* const asked = "VEKPrtGraphicPrimitiveElt";
    Compare(
        ioState, calls,
        [&] {
            for (int i = 0; i < calls; ++i)
                benchmark::DoNotOptimize(line->IsAKindOf(asked));
        },
        [&] {
            for (int i = 0; i < calls; ++i)
                for (const std::string& name : names)
                    if (std::strcmp(name.c_str(), asked) == 0) {
                        benchmark::DoNotOptimize(&name);
                        break;
                    }
        });
}
BENCHMARK(IsAKindOf)->Apply(Passes);

void SetAndGetText(benchmark::State& ioState) {
    constexpr int rounds = 200000;
    const auto line = Make<VEKPrtLineElt>();
    const VEKUnicodeString text("twelve chars");
    char* held = nullptr;
    Compare(
        ioState, rounds,
        [&] {
            for (int i = 0; i < rounds; ++i) {
                VEKUnicodeString read;
                line->SetID(text);
                line->GetID(read);
                benchmark::DoNotOptimize(read.ToUtf8());
            }
        },
        [&] {
            for (int i = 0; i < rounds; ++i) {
                Replace(held, Copied(text.ToUtf8(), std::strlen(text.ToUtf8()) + 1));
                const std::unique_ptr<char[]> read(Copied(held, std::strlen(held) + 1));
                benchmark::DoNotOptimize(read.get());
            }
        });
    delete[] held;
}
BENCHMARK(SetAndGetText)->Apply(Passes);

void CopyCurve(benchmark::State& ioState) {
    constexpr std::size_t count = 100000;
    const std::vector<double> values(2 * count + 4, 1.0);
    const VEKRef<VEKPrtNURBSElt> curve = Make<VEKPrtNURBSElt>(4, static_cast<int>(count), values.data(),
                                                              values.data(), 0.0F, 1.0F, values.data());
    Compare(
        ioState, 1, [&] { const auto copy = Make<VEKPrtNURBSElt>(*curve); },
        [&] {
            for (const std::size_t length : {2 * count, count + 4, count}) {
                const std::unique_ptr<double[]> copy(Copied(values.data(), length));
                benchmark::DoNotOptimize(copy.get());
            }
        });
}
BENCHMARK(CopyCurve)->Apply(Passes);

} // namespace
