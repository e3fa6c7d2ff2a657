// The fuzzer's input format, written once for the fuzzer that reads it and
// the seed tool that writes it. An input is a short sequence of steps; each
// step is
//   row       1 byte: index into the shell's command table (modulo its size)
//   length    1 byte: below kAnyLength, the row's own request length;
//             otherwise 2 more bytes, little-endian, give any length up to
//             zesh::kRequestBufferSize
//   request   `length` bytes (zeros past the end of the input)
// Steps past kMaxSteps are ignored.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zefuzz {

inline constexpr uint8_t kAnyLength = 0xf0;
inline constexpr size_t kMaxSteps = 16;

struct Step {
    uint32_t row;                // index into zesh::all_commands()
    uint32_t length;             // request length handed to the handler
    std::vector<uint8_t> bytes;  // the request, `length` bytes
};

// Reads the steps of an input one at a time.
class StepReader {
public:
    explicit StepReader(std::span<const uint8_t> input) : input_(input) {}
    // False at the end of the input or after kMaxSteps steps.
    bool next(Step &step);

private:
    std::span<const uint8_t> input_;
    size_t steps_ = 0;
};

// Appends one step; a length equal to the row's own is written as such.
void append_step(std::vector<uint8_t> &input, uint32_t row, std::span<const uint8_t> request);

}  // namespace zefuzz
