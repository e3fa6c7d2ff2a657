// The recording: one text line per device-node ioctl, named kernel call and
// datapath library call, written while a host has turned it on. zesh's
// replay reads the lines back (format in the README, "Record and replay").
//
// The recorder only reads the blocks and payloads it is handed, before and
// after the call; what the library and the datapath see is unchanged.
#include "recorder.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string>

#include "ze_host.h"
#include "ze_sim.h"

namespace zehost {
namespace {

constexpr const char *kHeader = ZE_HOST_RECORD_HEADER_STEM ZE_HOST_RECORD_FORMAT;

struct Recorder {
    FILE *file = nullptr;
    int depth = 0;  // recorded calls in progress
};

Recorder &recorder() {
    static Recorder r;
    return r;
}

bool writing() { return recorder().file && recorder().depth == 0; }

// Sends one call a level deeper, so that what it sends itself stays unwritten.
template <class Send>
auto nested(Send &&send) {
    ++recorder().depth;
    auto r = send();
    --recorder().depth;
    return r;
}

// A block or payload handed to a call: null, of a known length (its bytes
// are written as sent and as returned), or of a length nobody describes.
class Block {
public:
    Block(const void *p, int64_t length) : p_(static_cast<const uint8_t *>(p)), length_(length) {
        if (p_ && length_ >= 0) sent_.assign(p_, p_ + length_);
    }
    std::string fields() const {
        if (!p_) return "";
        if (length_ < 0) return " block=unknown";
        return " sent=" + zesim::to_hex(sent_) + " returned=" +
               zesim::to_hex({p_, static_cast<size_t>(length_)});
    }

private:
    const uint8_t *p_;
    int64_t length_;
    zesim::Bytes sent_;
};

__attribute__((format(printf, 1, 2))) std::string format(const char *fmt, ...) {
    va_list ap, again;
    va_start(ap, fmt);
    va_copy(again, ap);
    std::string text(static_cast<size_t>(std::vsnprintf(nullptr, 0, fmt, ap)), '\0');
    std::vsnprintf(text.data(), text.size() + 1, fmt, again);
    va_end(again);
    va_end(ap);
    return text;
}

const char *or_dash(const char *s) { return s ? s : "-"; }

void write_line(const std::string &line) {
    std::fputs(line.c_str(), recorder().file);
    std::fputc('\n', recorder().file);
}

}  // namespace

uint32_t recorded_ioctl(const char *node, uint32_t cmd, uintptr_t arg, IoctlSend send) {
    if (!writing()) return send(node, cmd, arg);
    // The ioctl carries only the block's address; its length comes from the
    // descriptor of the datapath command.
    const bool dp = node && !std::strcmp(node, ZE_HOST_DP_NODE);
    const Block block(reinterpret_cast<const void *>(arg), dp ? zesim::block_length(cmd) : -1);
    const uint32_t r = nested([&] { return send(node, cmd, arg); });
    write_line(format("ioctl %s cmd=0x%03x result=0x%08x", or_dash(node), cmd, r) + block.fields());
    return r;
}

uint32_t recorded_kernel_call(const char *name, void *payload, uint32_t len, uint32_t *out_len,
                              KernelCallSend send) {
    if (!writing()) return send(name, payload, len, out_len);
    const Block block(payload, len);
    const uint32_t out_sent = out_len ? *out_len : 0;
    const uint32_t r = nested([&] { return send(name, payload, len, out_len); });
    std::string line = format("kcall %s len=%u result=0x%08x", or_dash(name), len, r) + block.fields();
    if (out_len) line += format(" outlen_sent=%u outlen_returned=%u", out_sent, *out_len);
    write_line(line);
    return r;
}

int32_t recorded_dp_block(const char *name, uint32_t cmd, void *block, DpBlockSend send) {
    if (!writing()) return send(name, cmd, block);
    const Block b(block, zesim::block_length(cmd));
    const int32_t r = nested([&] { return send(name, cmd, block); });
    write_line(format("dp %s cmd=0x%03x result=0x%08x", or_dash(name), cmd, static_cast<uint32_t>(r)) +
               b.fields());
    return r;
}

int32_t recorded_dp_op(const char *name, uint32_t index, DpOpSend send) {
    if (!writing()) return send(name, index);
    const int32_t r = nested([&] { return send(name, index); });
    write_line(format("dp %s index=%u result=0x%08x", or_dash(name), index, static_cast<uint32_t>(r)));
    return r;
}

}  // namespace zehost

extern "C" {

int ze_host_record_start(const char *path) {
    ze_host_record_stop();
    FILE *f = path ? std::fopen(path, "w") : nullptr;
    if (!f) return -1;
    // A line reaches the file as soon as it is complete: a recording of a
    // process that crashes keeps everything up to the crash.
    std::setvbuf(f, nullptr, _IOLBF, 0);
    zehost::recorder().file = f;
    zehost::write_line(zehost::kHeader);
    return 0;
}

void ze_host_record_stop(void) {
    if (zehost::recorder().file) std::fclose(zehost::recorder().file);
    zehost::recorder().file = nullptr;
}

int ze_host_recording(void) { return zehost::recorder().file ? 1 : 0; }

void ze_host_record_text(const char *text) {
    if (!zehost::writing() || !text) return;
    std::string line(text);
    for (char &c : line)
        if (c == '\n' || c == '\r') c = ' ';
    zehost::write_line(line);
}

}  // extern "C"
