#include "command_input.h"

#include <algorithm>

#include "command_table.h"
#include "request.h"

namespace zefuzz {

bool StepReader::next(Step &step) {
    if (steps_ == kMaxSteps || input_.size() < 2) return false;
    const auto rows = zesh::all_commands();
    step.row = input_[0] % rows.size();
    step.length = rows[step.row].request;
    size_t used = 2;
    if (input_[1] >= kAnyLength) {
        if (input_.size() < 4) return false;
        step.length = (input_[2] | input_[3] << 8) % (zesh::kRequestBufferSize + 1);
        used = 4;
    }
    input_ = input_.subspan(used);
    const size_t given = std::min<size_t>(step.length, input_.size());
    step.bytes.assign(step.length, 0);
    std::copy_n(input_.begin(), given, step.bytes.begin());
    input_ = input_.subspan(given);
    ++steps_;
    return true;
}

void append_step(std::vector<uint8_t> &input, uint32_t row, std::span<const uint8_t> request) {
    input.push_back(static_cast<uint8_t>(row));
    const uint32_t length = static_cast<uint32_t>(request.size());
    if (length == zesh::all_commands()[row].request) {
        input.push_back(0);
    } else {
        input.insert(input.end(), {kAnyLength, static_cast<uint8_t>(length), static_cast<uint8_t>(length >> 8)});
    }
    input.insert(input.end(), request.begin(), request.end());
}

}  // namespace zefuzz
