// Times the library and its plain counterpart in turn, and reports the ratio.
#ifndef Compare_H
#define Compare_H

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

/// Seconds of processor time that a call takes: other work on the machine hardly changes them.
template <class Operation>
double Seconds(Operation iOperation) {
    const std::clock_t start = std::clock();
    iOperation();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Number of manually timed passes.
inline void Passes(benchmark::internal::Benchmark* ioBenchmark) {
    ioBenchmark->Iterations(9)->UseManualTime();
}

inline double Median(std::vector<double> iValues) {
    std::nth_element(iValues.begin(), iValues.begin() + static_cast<long>(iValues.size() / 2), iValues.end());
    return iValues[iValues.size() / 2];
}

/// After many small blocks are freed, the next large request merges them.  Requests one, so that the side
/// that freed them is charged.
inline void MergeFreeBlocks() {
    void* block = std::malloc(100000);
    benchmark::DoNotOptimize(block); // or the compiler drops both calls
    std::free(block);
}

/// A figure of both sides, pass by pass.
class Pairs {
public:
    void Add(double iLibrary, double iBaseline) {
        _library.push_back(iLibrary);
        _ratios.push_back(iLibrary / iBaseline);
    }
    /// The library's median and that of the ratios, as columns of the table.
    void Report(benchmark::State& ioState, const std::string& iName = "") const {
        ioState.counters[iName + "ns"] = Median(_library);
        ioState.counters[iName + "ratio"] = Median(_ratios);
    }

private:
    std::vector<double> _library;
    std::vector<double> _ratios;
};

/// Times \p iCount calls of each side in every pass; a call gets its number, from 0.  \p iPrepare is called
/// before each pass and not timed.
template <class Library, class Baseline>
void Compare(
    benchmark::State& ioState, int iCount, Library iLibrary, Baseline iBaseline,
    const std::function<void()>& iPrepare = [] {}) {
    const auto nanoseconds = [&](auto& ioCall) {
        return Seconds([&] {
                   for (int i = 0; i < iCount; ++i)
                       ioCall(i);
               }) /
               iCount * 1e9;
    };
    Pairs pairs;
    for (auto _ : ioState) {
        iPrepare();
        const double library = nanoseconds(iLibrary);
        pairs.Add(library, nanoseconds(iBaseline));
        ioState.SetIterationTime(library * iCount / 1e9);
    }
    pairs.Report(ioState);
}

#endif
