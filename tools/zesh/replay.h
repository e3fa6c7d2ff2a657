// Replay: re-issues a recording (ze_host_record_start) call by call against
// the current backend and compares every answer with the recorded one.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "ze_sim.h"

namespace zesh {

// One line of a recording, as read back.
struct RecordedCall {
    enum class Kind { Ioctl, KernelCall, DpBlock, DpOp, Sim };
    // No block (a null pointer), one of the recorded length, or a pointer to
    // a block whose length no descriptor gave.
    enum class Block { None, Known, Unknown };

    size_t line = 0;  // 1-based line in the file
    Kind kind = Kind::Ioctl;
    std::string target;             // node or call name
    std::vector<std::string> words;  // sim: the sub-command's words, "sim" first
    uint32_t number = 0;            // ioctl, dp block: command id; dp op: index; kernel call: length
    uint32_t result = 0;
    Block block = Block::None;
    zesim::Bytes sent, returned;
    bool has_outlen = false;
    uint32_t outlen_sent = 0, outlen_returned = 0;
    std::string note;  // the last "#" line before it, with its line number
};

// Reads a whole recording. False, with "line N: what" in `error`, when the
// header or any line is malformed.
bool read_recording(std::istream &in, std::vector<RecordedCall> &calls, std::string &error);

// Exit statuses of a replay.
inline constexpr int kReplayIdentical = 0;
inline constexpr int kReplayDiffers = 1;
inline constexpr int kReplayUnusable = 2;

// Replays the recording at `path`, reporting on `out`: the first call whose
// result, returned block, payload or output length differs, or "replay
// identical" with the number of calls.
int replay(std::ostream &out, const std::string &path);

}  // namespace zesh
