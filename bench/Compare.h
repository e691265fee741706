// Times the library and its plain counterpart in turn, and reports the ratio.
#ifndef Compare_H
#define Compare_H

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

/// Seconds that a call takes.
template <class Operation>
double Seconds(Operation iOperation) {
    const auto start = std::chrono::steady_clock::now();
    iOperation();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// How often what is timed by hand is run.
inline void Passes(benchmark::internal::Benchmark* ioBenchmark) {
    ioBenchmark->Iterations(9)->UseManualTime();
}

inline double Median(std::vector<double> iValues) {
    std::nth_element(iValues.begin(), iValues.begin() + static_cast<long>(iValues.size() / 2), iValues.end());
    return iValues[iValues.size() / 2];
}

/// After many small blocks were freed, the next large request merges them all: here, so that the side that
/// freed them pays for it.
inline void MergeFreeBlocks() {
    void* block = std::malloc(100000);
    benchmark::DoNotOptimize(block); // or the compiler drops both calls
    std::free(block);
}

/// One figure of both sides, pass by pass.
class Pairs {
public:
    void Add(double iLibrary, double iFloor) {
        _library.push_back(iLibrary);
        _ratios.push_back(iLibrary / iFloor);
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

/// Runs each side once a pass; a side is called with nothing and does \p iCount operations.
template <class Library, class Floor>
void Compare(benchmark::State& ioState, double iCount, Library iLibrary, Floor iFloor) {
    Pairs pairs;
    for (auto _ : ioState) {
        const double library = Seconds(iLibrary), floor = Seconds(iFloor);
        pairs.Add(library / iCount * 1e9, floor / iCount * 1e9);
        ioState.SetIterationTime(library);
    }
    pairs.Report(ioState);
}

#endif
