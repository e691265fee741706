// Prints tables: of the library as ratios to plain counterparts, with its own nanoseconds (memory: bytes)
// behind them, and of the SVG consumer in nanoseconds and bytes.
#include <malloc.h>

#include <cstdio>
#include <limits>

#include "Compare.h"

namespace {

// The columns of a table: their heading, and for each the counters of its figure.
struct Layout {
    const char* heading;
    std::vector<std::vector<std::string>> columns;
};
const Layout g_pages = {
    "| elements | build | walk | duplicate | release | memory |\n|---|---|---|---|---|---|\n",
    {{"build ratio", "build ns"},
     {"walk ratio", "walk ns"},
     {"duplicate ratio", "duplicate ns"},
     {"release ratio", "release ns"},
     {"memory ratio", "memory ns"}}};
const Layout g_operations = {"| operation | ratio |\n|---|---|\n", {{"ratio", "ns"}}};
const Layout g_svg = {"| SVG | ns | bytes |\n|---|---|---|\n", {{"part ns"}, {"part bytes"}}};

class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& iRuns) override {
        for (const Run& run : iRuns)
            Report(run);
    }

private:
    void Report(const Run& iRun) {
        const auto has = [&](const char* iName) { return iRun.counters.count(iName) > 0; };
        const Layout& layout = has("build ratio") ? g_pages : has("part ns") ? g_svg : g_operations;
        if (_layout != &layout) std::printf("\n%s", layout.heading);
        _layout = &layout;
        std::printf("| %s %s |", iRun.run_name.function_name.c_str(), iRun.run_name.args.c_str());
        if (iRun.error_occurred) std::printf(" %s |", iRun.error_message.c_str());
        for (const auto& column : layout.columns) {
            if (iRun.error_occurred) break;
            std::printf(" %.3g", iRun.counters.at(column.front()).value);
            if (column.size() > 1) std::printf(" (%.3g)", iRun.counters.at(column.back()).value);
            std::printf(" |");
        }
        std::printf("\n");
        std::fflush(stdout);
    }

    const Layout* _layout = nullptr;
};

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    // Memory once taken from the system stays: its pages would cost both sides more than what is measured,
    // and not the same from pass to pass.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_MAX, 0);
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
}
