// Helpers of the CAR and QoS tests: several words of a block at once.
#pragma once

#include <initializer_list>
#include <vector>

#include "test_support.h"

namespace zetest {

using Words = std::vector<uint32_t>;

// The driver's busy answer, which the library reports as 18.
inline constexpr uint32_t kBusy = 0xf0000101;

// The little-endian words of `b` at `offsets`, in that order.
inline Words words(const zesim::Bytes &b, std::initializer_list<uint32_t> offsets) {
    Words v;
    for (uint32_t off : offsets) v.push_back(word_at(b, off));
    return v;
}

}  // namespace zetest
