// Prints each figure as a ratio to its plain counterpart, with the library's own nanoseconds (memory: bytes)
// behind it.
#include <malloc.h>

#include <cstdio>
#include <limits>

#include "Compare.h"

namespace {

class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& iRuns) override {
        for (const Run& run : iRuns) {
            // A page has its phases as columns, a single operation has one.
            const bool isPage = run.counters.count("build ratio") > 0;
            static const std::vector<std::string> phases = {"build ", "walk ", "duplicate ", "release ",
                                                            "memory "};
            const std::vector<std::string> columns = isPage ? phases : std::vector<std::string>{""};
            if (isPage != _isPage || !_started)
                std::printf(isPage ? "\n| elements | build | walk | duplicate | release | memory |\n"
                                     "|---|---|---|---|---|---|\n"
                                   : "\n| operation | ratio (ns) |\n|---|---|\n");
            _isPage = isPage;
            _started = true;
            std::printf("| %s %s |", run.run_name.function_name.c_str(), run.run_name.args.c_str());
            for (const std::string& column : columns)
                if (run.error_occurred)
                    std::printf(" %s |", run.error_message.c_str());
                else
                    std::printf(" %.2f (%.3g) |", run.counters.at(column + "ratio").value,
                                run.counters.at(column + "ns").value);
            std::printf("\n");
            std::fflush(stdout);
        }
    }

private:
    bool _isPage = false;
    bool _started = false;
};

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    // Memory once taken from the system stays: its pages would cost both sides more than what is measured, and
    // not the same from pass to pass.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_MAX, 0);
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
}
