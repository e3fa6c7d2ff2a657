#include "dispatcher.h"

#include <algorithm>
#include <sstream>
#include <string>

#include "bounded_text.h"
#include "command_table.h"
#include "executor.h"
#include "request.h"
#include "shell.h"
#include "ze_host.h"

namespace zesh::serve {

// A client may send any request the shell could: the buffer is the shell's.
static_assert(ZE_IFM_REQUEST_MAX == kRequestBufferSize);

Dispatcher::Dispatcher(const Access &access)
    : access_(access), description_(describe_commands()) {}

Answer Dispatcher::run(std::span<const uint8_t> frame, const ucred &peer) {
    const Header h = read_header(frame);
    if (!h.complete)
        return refusal(h, ZE_IFM_STATUS_MALFORMED,
                       "frame of " + std::to_string(frame.size()) + " bytes is shorter than its header");
    if (h.version != ZE_IFM_VERSION)
        return refusal(h, ZE_IFM_STATUS_WRONG_VERSION,
                       "protocol version " + std::to_string(h.version) + "; this daemon speaks " +
                           std::to_string(ZE_IFM_VERSION));
    if (h.flags)
        return refusal(h, ZE_IFM_STATUS_UNSUPPORTED_FLAGS, "request flags not supported");
    const auto body = body_of(frame);
    switch (h.kind) {
        case ZE_IFM_KIND_CALL: return call(h, body);
        case ZE_IFM_KIND_LINE: return line(h, body, peer);
        case ZE_IFM_KIND_DESCRIBE: {
            if (!body.empty()) return refusal(h, ZE_IFM_STATUS_MALFORMED, "describe takes no body");
            Answer a = answer_to(h);
            a.data = description_;
            return a;
        }
        default: return refusal(h, ZE_IFM_STATUS_UNKNOWN_KIND, "unknown request kind " + std::to_string(h.kind));
    }
}

Answer Dispatcher::call(const Header &h, std::span<const uint8_t> body) {
    if (body.size() < 8) return refusal(h, ZE_IFM_STATUS_MALFORMED, "call body too short");
    const uint32_t req_len = ze_ifm_get32(&body[0]);
    const uint32_t name_len = ze_ifm_get16(&body[4]);
    if (req_len > ZE_IFM_REQUEST_MAX)
        return refusal(h, ZE_IFM_STATUS_TOO_LARGE,
                       "request of " + std::to_string(req_len) + " bytes; the most is " +
                           std::to_string(ZE_IFM_REQUEST_MAX));
    if (body.size() != 8u + name_len + req_len)
        return refusal(h, ZE_IFM_STATUS_MALFORMED, "call body of " + std::to_string(body.size()) +
                                                       " bytes does not match its lengths");
    const std::string name(reinterpret_cast<const char *>(&body[8]), name_len);
    const std::string full = name.starts_with(kCliPrefix) ? name : kCliPrefix + name;
    if (name.find('\0') != std::string::npos || !ze_host_ifm_find(full.c_str()))
        return refusal(h, ZE_IFM_STATUS_UNKNOWN_COMMAND, "no command '" + name + "'");

    // The shell's own executor runs it: the buffer, the reply and the
    // console are those of the command run in the shell.
    std::ostringstream idle;  // nothing prints between runs
    LocalExecutor local(idle);
    Outcome o = local.run_command(full, body.subspan(8 + name_len, req_len), req_len);
    Answer a = answer_to(h);
    a.result = o.code;
    if (o.reply_len != kReplyUnset) {
        a.reply_len = o.reply_len;
        reply_ = std::move(o.reply);
        a.data = reply_;
    }
    a.truncated = o.printed.size() > ZE_IFM_TEXT_MAX;
    o.printed.resize(std::min<size_t>(o.printed.size(), ZE_IFM_TEXT_MAX));
    a.text = std::move(o.printed);
    return a;
}

// One shell per line: the console belongs to the request that runs.
Answer Dispatcher::line(const Header &h, std::span<const uint8_t> body, const ucred &peer) {
    const std::string text(body.begin(), body.end());
    if (text.find('\0') != std::string::npos)
        return refusal(h, ZE_IFM_STATUS_MALFORMED, "a line holds no NUL byte");
    if (line_writes_board(text) && !access_.may_write_board(peer.uid))
        return refusal(h, ZE_IFM_STATUS_NOT_PERMITTED,
                       "uid " + std::to_string(peer.uid) + " may not write board memory");
    BoundedText console(ZE_IFM_TEXT_MAX);
    std::ostream out(&console);
    bool ok;
    {
        Shell sh(out);
        ok = sh.run_line(text);
    }
    Answer a = answer_to(h);
    a.result = ok ? 0 : 1;
    a.truncated = console.truncated();
    a.text = console.release();
    return a;
}

}  // namespace zesh::serve
