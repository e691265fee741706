// Prints the library's nanoseconds (memory: bytes) and their ratio to those of plain counterparts.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <limits>

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    // Keep memory that was taken from the system: fresh pages would cost both sides more than what is
    // measured, and not the same in every pass.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_MAX, 0);
    benchmark::RunSpecifiedBenchmarks();
}
