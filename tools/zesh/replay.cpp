// Replay: every recorded call sent again through the platform as the library
// sent it, and its answer compared with the recorded one. The first
// difference ends the replay: what follows it ran on another state.
#include "replay.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <ostream>

#include "shell.h"
#include "ze_host.h"

namespace zesh {
namespace {

using Kind = RecordedCall::Kind;

struct Answer {
    uint32_t result = 0;
    zesim::Bytes returned;
    uint32_t outlen = 0;
};

std::string format(const char *fmt, auto... args) {
    std::string text(static_cast<size_t>(std::snprintf(nullptr, 0, fmt, args...)), '\0');
    std::snprintf(text.data(), text.size() + 1, fmt, args...);
    return text;
}

// Room for a block whose length no descriptor gave: the largest they know.
size_t largest_block() {
    uint32_t n = 0;
    for (const zesim::Area *area : zesim::areas()) {
        for (const zesim::BlockDesc &b : area->blocks) n = std::max(n, b.length);
        for (const zesim::ActionDesc &a : area->actions) n = std::max(n, a.length);
    }
    return n;
}

Answer reissue(const RecordedCall &c) {
    zesim::Bytes buf = c.sent;
    if (c.block == RecordedCall::Block::Unknown) buf.assign(largest_block(), 0);
    buf.resize(std::max<size_t>(buf.size(), 1));  // a block of no bytes is still a pointer
    void *block = c.block == RecordedCall::Block::None ? nullptr : buf.data();
    const char *target = c.target == "-" ? nullptr : c.target.c_str();
    Answer now;
    now.outlen = c.outlen_sent;
    switch (c.kind) {
        case Kind::Ioctl: now.result = ze_os_sendioctl(target, c.number, reinterpret_cast<uintptr_t>(block)); break;
        case Kind::KernelCall:
            now.result = ze_os_hlp_sendioctl(target, block, c.number, c.has_outlen ? &now.outlen : nullptr);
            break;
        case Kind::DpBlock: now.result = static_cast<uint32_t>(ze_host_dp_block_call(target, c.number, block)); break;
        case Kind::DpOp: now.result = static_cast<uint32_t>(ze_host_dp_op(target, c.number)); break;
        case Kind::Sim: break;
    }
    now.returned.assign(buf.begin(), buf.begin() + static_cast<ptrdiff_t>(c.returned.size()));
    return now;
}

// A block of a datapath command whose descriptor now gives another length is
// not sent: the driver would read or write past the recorded bytes.
std::string length_change(const RecordedCall &c) {
    if (c.block != RecordedCall::Block::Known || (c.kind != Kind::Ioctl && c.kind != Kind::DpBlock)) return "";
    const int64_t now = zesim::block_length(c.number);
    if (now == static_cast<int64_t>(c.sent.size())) return "";
    return format("  length    recorded %zu bytes, now %s\n", c.sent.size(),
                  now < 0 ? "no descriptor" : format("%lld bytes", static_cast<long long>(now)).c_str());
}

constexpr size_t kRunsShown = 8;

std::string differences(const RecordedCall &c, const Answer &now) {
    std::string d;
    if (now.result != c.result) d += format("  result    recorded 0x%08x, now 0x%08x\n", c.result, now.result);
    size_t runs = 0;
    for (size_t i = 0, end; i < c.returned.size(); i = end) {
        end = i + 1;
        if (c.returned[i] == now.returned[i]) continue;
        while (end < c.returned.size() && c.returned[end] != now.returned[end]) ++end;
        if (++runs > kRunsShown) continue;
        const std::span<const uint8_t> was(c.returned.data() + i, end - i), is(now.returned.data() + i, end - i);
        d += (end - i == 1 ? format("  returned  byte %zu", i) : format("  returned  bytes %zu..%zu", i, end - 1)) +
             ": recorded " + zesim::to_hex(was) + ", now " + zesim::to_hex(is) + "\n";
    }
    if (runs > kRunsShown) d += format("  returned  and %zu more runs of differing bytes\n", runs - kRunsShown);
    if (c.has_outlen && now.outlen != c.outlen_returned)
        d += format("  outlen    recorded %u, now %u\n", c.outlen_returned, now.outlen);
    return d;
}

std::string describe(const RecordedCall &c) {
    switch (c.kind) {
        case Kind::Ioctl: return format("ioctl %s cmd=0x%03x", c.target.c_str(), c.number);
        case Kind::KernelCall: return format("kcall %s len=%u", c.target.c_str(), c.number);
        case Kind::DpBlock: return format("dp %s cmd=0x%03x", c.target.c_str(), c.number);
        case Kind::DpOp: return format("dp %s index=%u", c.target.c_str(), c.number);
        case Kind::Sim: break;
    }
    return joined(c.words);
}

void report(std::ostream &out, const RecordedCall &c, const std::string &diff) {
    out << "replay: line " << c.line << " differs: " << describe(c) << "\n";
    if (!c.note.empty()) out << "  during    " << c.note << "\n";
    switch (c.block) {
        case RecordedCall::Block::None: out << "  sent      no block\n"; break;
        case RecordedCall::Block::Unknown: out << "  sent      a block of unknown length\n"; break;
        case RecordedCall::Block::Known: out << "  sent      " << zesim::to_hex(c.sent) << "\n"; break;
    }
    out << diff;
}

// A simulator command of the recorded session, run again where it ran; a
// device node has no simulator to run it on.
bool replay_sim(std::ostream &out, const RecordedCall &c) {
    if (!ze_host_backend_is_simulator()) {
        out << "replay: line " << c.line << ": '" << joined(c.words) << "' skipped on a device node\n";
        return true;
    }
    if (run_sim(out, c.words)) return true;
    out << "replay: line " << c.line << ": '" << joined(c.words) << "' failed\n";
    return false;
}

}  // namespace

int replay(std::ostream &out, const std::string &path) {
    std::ifstream in(path);
    std::vector<RecordedCall> calls;
    std::string error = "cannot open the file";
    if (!in || !read_recording(in, calls, error)) {
        out << "replay: " << path << ": " << error << "\n";
        return kReplayUnusable;
    }
    size_t count = 0;
    for (const RecordedCall &c : calls) {
        if (c.kind == Kind::Sim) {
            if (!replay_sim(out, c)) return kReplayUnusable;
            continue;
        }
        std::string diff = length_change(c);
        if (diff.empty()) diff = differences(c, reissue(c));
        if (!diff.empty()) {
            report(out, c, diff);
            return kReplayDiffers;
        }
        ++count;
    }
    out << "replay identical: " << count << " commands\n";
    return kReplayIdentical;
}

}  // namespace zesh
