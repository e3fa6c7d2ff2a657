// Runs the benchmarks and prints them as tables set against the floor: for
// an operation its kernel crossings and its library time as a multiple of
// the crossings' own cost; for a walk its time at each fill level and the
// growth from the level before.
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "ratio.h"

namespace ratio {

void set_crossings(benchmark::State &state, uint64_t ioctls, uint64_t kernel_calls) {
    state.counters[kIoctls] = benchmark::Counter(static_cast<double>(ioctls), benchmark::Counter::kAvgIterations);
    state.counters[kKernelCalls] =
        benchmark::Counter(static_cast<double>(kernel_calls), benchmark::Counter::kAvgIterations);
}

}  // namespace ratio

namespace {

struct Row {
    std::string name;
    double ns;
    double crossings;  // ioctls and named kernel calls per operation
    double fill;
    bool with_kernel;
};

double counter(const benchmark::BenchmarkReporter::Run &run, const char *name) {
    auto it = run.counters.find(name);
    return it == run.counters.end() ? 0 : static_cast<double>(it->second);
}

bool starts_with(const std::string &s, const char *prefix) { return s.rfind(prefix, 0) == 0; }

class TableReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context &) override { return true; }

    // With repetitions, a row keeps its fastest run: on a shared machine the
    // least disturbed one is the best estimate.
    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &run : runs) {
            if (run.error_occurred || run.run_type != Run::RT_Iteration) continue;
            double ns = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
            std::string name = run.benchmark_name();
            name = name.substr(0, name.find("/repeats:"));
            Row row{name, ns, counter(run, ratio::kIoctls) + counter(run, ratio::kKernelCalls),
                    counter(run, ratio::kFill), counter(run, ratio::kWithKernel) != 0};
            Row *seen = find(name);
            if (!seen)
                rows_.push_back(row);
            else if (ns < seen->ns)
                *seen = row;
            std::fprintf(stderr, ".");
        }
    }

    void Finalize() override {
        std::fprintf(stderr, "\n");
        double floor = 0;
        if (const Row *r = find(ratio::kFloorName)) floor = r->ns;
        if (floor <= 0) {
            std::printf("no floor measured\n");
            return;
        }
        std::printf("floor: bare ioctl rejected by the kernel  %.1f ns\n\n", floor);
        print_operations(floor);
        print_walks(floor);
    }

private:
    Row *find(const std::string &name) {
        for (Row &r : rows_)
            if (r.name == name) return &r;
        return nullptr;
    }

    // lib/floor: the library's time over its crossings' cost at the floor;
    // x floor: what the operation costs on a terminal against its crossings.
    static double times_floor(const Row &r, double floor) {
        double base = r.crossings * floor;
        if (base <= 0) return 0;
        return r.with_kernel ? r.ns / base : 1 + r.ns / base;
    }

    void print_operations(double floor) const {
        std::printf("%-58s %8s %11s %9s\n", "operation", "ioctls", "ns/op", "x floor");
        for (const Row &r : rows_) {
            if (!starts_with(r.name, ratio::kOpPrefix)) continue;
            std::printf("%-58s %8.0f %11.1f %9.3f\n", r.name.c_str() + std::strlen(ratio::kOpPrefix),
                        r.crossings, r.ns, times_floor(r, floor));
        }
        std::printf("\n");
    }

    void print_walks(double floor) const {
        bool any = false;
        for (const Row &r : rows_) any = any || starts_with(r.name, ratio::kWalkPrefix);
        if (!any) return;
        std::printf("%-46s %6s %8s %12s %9s %8s\n", "walk", "fill", "ioctls", "ns/op", "x floor",
                    "growth");
        std::map<std::string, const Row *> previous;
        for (const Row &r : rows_) {
            if (!starts_with(r.name, ratio::kWalkPrefix)) continue;
            std::string walk = r.name.substr(std::strlen(ratio::kWalkPrefix));
            walk = walk.substr(0, walk.rfind('/'));
            const Row *prev = previous[walk];
            char growth[32] = "";
            if (prev && prev->ns > 0) std::snprintf(growth, sizeof growth, "x%.2f", r.ns / prev->ns);
            std::printf("%-46s %6.0f %8.0f %12.1f %9.3f %8s\n", walk.c_str(), r.fill, r.crossings, r.ns,
                        times_floor(r, floor), growth);
            previous[walk] = &r;
        }
    }

    std::vector<Row> rows_;
};

}  // namespace

int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    TableReporter table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return 0;
}
