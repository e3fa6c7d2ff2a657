#include "dispatcher.h"

#include <algorithm>
#include <cstring>
#include <sstream>
#include <string>

#include "api_call.h"
#include "bounded_text.h"
#include "executor.h"
#include "request.h"
#include "shell.h"
#include "ze_sim.h"
#include "ze_host.h"

namespace zesh::serve {

// A client may send any request the shell could: the buffer is the shell's.
static_assert(ZE_IFM_REQUEST_MAX == kRequestBufferSize);

namespace {

// A recording notes each request above the calls it makes, with the
// client's process id: clients' requests interleave.
void note(const ucred &peer, const std::string &what) {
    if (ze_host_recording()) ze_host_record_text(("# pid " + std::to_string(peer.pid) + "> " + what).c_str());
}

// A call as the shell line that sends the same request.
std::string call_line(const std::string &name, std::span<const uint8_t> bytes, uint32_t length) {
    std::string s = name;
    if (!bytes.empty()) s += " --hex " + zesim::to_hex(bytes);
    return bytes.size() != length ? s + " --len " + std::to_string(length) : s;
}

// What a request printed, up to the answer's text limit.
void give_text(Answer &a, std::string printed) {
    a.truncated = printed.size() > ZE_IFM_TEXT_MAX;
    printed.resize(std::min<size_t>(printed.size(), ZE_IFM_TEXT_MAX));
    a.text = std::move(printed);
}

}  // namespace

Dispatcher::Dispatcher(const Access &access)
    : access_(access), description_(describe_commands()), api_description_(describe_api()) {}

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
        case ZE_IFM_KIND_CALL: return call(h, body, peer);
        case ZE_IFM_KIND_API: return api(h, body, peer);
        case ZE_IFM_KIND_LINE: return line(h, body, peer);
        case ZE_IFM_KIND_DESCRIBE: return described(h, body, description_);
        case ZE_IFM_KIND_DESCRIBE_API: return described(h, body, api_description_);
        default: return refusal(h, ZE_IFM_STATUS_UNKNOWN_KIND, "unknown request kind " + std::to_string(h.kind));
    }
}

Answer Dispatcher::described(const Header &h, std::span<const uint8_t> body, const std::vector<uint8_t> &what) {
    if (!body.empty()) return refusal(h, ZE_IFM_STATUS_MALFORMED, "a describe request has no body");
    Answer a = answer_to(h);
    a.data = what;
    return a;
}

Answer Dispatcher::call(const Header &h, std::span<const uint8_t> body, const ucred &peer) {
    if (body.size() < 8) return refusal(h, ZE_IFM_STATUS_MALFORMED, "call body too short");
    const uint32_t req_len = ze_ifm_get32(&body[0]);
    const uint32_t name_len = ze_ifm_get16(&body[4]);
    const uint32_t further = ze_ifm_get16(&body[6]);
    if (req_len > ZE_IFM_REQUEST_MAX || further > ZE_IFM_REQUEST_MAX - req_len)
        return refusal(h, ZE_IFM_STATUS_TOO_LARGE,
                       "request of " + std::to_string(req_len) + " bytes and " + std::to_string(further) +
                           " further; the most is " + std::to_string(ZE_IFM_REQUEST_MAX));
    if (body.size() != 8u + name_len + req_len + further)
        return refusal(h, ZE_IFM_STATUS_MALFORMED, "call body of " + std::to_string(body.size()) +
                                                       " bytes does not match its lengths");
    const std::string name(reinterpret_cast<const char *>(&body[8]), name_len);
    const std::string full = name.starts_with(kCliPrefix) ? name : kCliPrefix + name;
    if (name.find('\0') != std::string::npos || !ze_host_ifm_find(full.c_str()))
        return refusal(h, ZE_IFM_STATUS_UNKNOWN_COMMAND, "no command '" + name + "'");

    // The shell's own executor runs it: the buffer, the reply and the
    // console are those of the command run in the shell.
    const auto bytes = body.subspan(8 + name_len, req_len + further);
    note(peer, call_line(full.substr(std::strlen(kCliPrefix)), bytes, req_len));
    std::ostringstream idle;  // nothing prints between runs
    LocalExecutor local(idle);
    Outcome o = local.run_command(full, bytes, req_len);
    Answer a = answer_to(h);
    a.result = o.code;
    if (o.reply_len != kReplyUnset) {
        a.reply_len = o.reply_len;
        data_ = std::move(o.reply);
        a.data = data_;
    }
    give_text(a, std::move(o.printed));
    return a;
}

// An exported function gets exactly the parameters of its C prototype, each
// of its own size, and the length and size words that say how much of a
// buffer it reads or writes are checked against the buffer.
Answer Dispatcher::api(const Header &h, std::span<const uint8_t> body, const ucred &peer) {
    if (body.size() < 4 || body.size() - 4 < ze_ifm_get16(&body[0]))
        return refusal(h, ZE_IFM_STATUS_MALFORMED, "API call body too short for its name");
    const uint32_t name_len = ze_ifm_get16(&body[0]), count = ze_ifm_get16(&body[2]);
    const std::string name(reinterpret_cast<const char *>(&body[4]), name_len);
    const api::Row *row = name.find('\0') == std::string::npos ? api::find(name) : nullptr;
    if (!row) return refusal(h, ZE_IFM_STATUS_UNKNOWN_COMMAND, "no exported function '" + name + "'");
    std::vector<Bytes> args;
    if (!take_args(body.subspan(4 + name_len), count, args))
        return refusal(h, ZE_IFM_STATUS_MALFORMED, "the parameters' sizes do not add up to the body");
    std::string why;
    if (!api::args_fit(*row, args, why)) return refusal(h, ZE_IFM_STATUS_BAD_ARGUMENTS, why);
    if ((row->flags & api::kWritesBoard) && !access_.may_write_board(peer.uid))
        return refusal(h, ZE_IFM_STATUS_NOT_PERMITTED,
                       "uid " + std::to_string(peer.uid) + " may not write board memory");

    note(peer, "api " + name);
    std::ostringstream idle;
    LocalExecutor local(idle);
    Outcome o = local.call_api(name, std::move(args));
    Answer a = answer_to(h);
    a.result = o.code;
    BodyWriter data;
    put_args(o.args, data);
    data_ = data.take();
    a.data = data_;
    give_text(a, std::move(o.printed));
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
    note(peer, text);
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
