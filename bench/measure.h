// Times an operation on the null platform and records the kernel crossings
// it asked for.
#pragma once

#include "null_platform.h"
#include "ratio.h"

namespace bench {

class CrossingCount {
public:
    CrossingCount() : before_(nullp::crossings()) {}
    void report(benchmark::State &state) const {
        nullp::Crossings now = nullp::crossings();
        ratio::set_crossings(state, now.ioctls - before_.ioctls, now.kernel_calls - before_.kernel_calls);
    }

private:
    nullp::Crossings before_;
};

template <class Op>
void measure(benchmark::State &state, Op &&op) {
    CrossingCount count;
    for (auto _ : state) op();
    count.report(state);
}

}  // namespace bench
