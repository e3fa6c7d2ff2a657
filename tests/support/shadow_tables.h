// The library's process-wide shadow state, listed once. The test fixtures
// and the fuzzer return all of it to its load-time zero between runs, so
// no run sees what an earlier one installed.
#pragma once

#include <cstddef>
#include <span>

namespace zetest {

struct ShadowTable {
    const char *name;  // the global's own name
    void *address;
    size_t size;
};

std::span<const ShadowTable> shadow_tables();
// Zeroes every listed table, as at library load.
void clear_shadow_tables();

}  // namespace zetest
