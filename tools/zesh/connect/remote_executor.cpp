#include "remote_executor.h"

#include <cerrno>
#include <cstring>

#include "request.h"
#include "serve/protocol.h"
#include "shell.h"

namespace zesh {

namespace {

const char *transport_failure(uint32_t code) {
    switch (code) {
        case ZE_IFM_CLIENT_ERR_IO: return "the connection broke";
        case ZE_IFM_CLIENT_ERR_ANSWER: return "its answer does not follow the wire format";
        case ZE_IFM_CLIENT_ERR_MEMORY: return "out of memory";
        default: return "the request could not be sent";
    }
}

}  // namespace

RemoteExecutor::~RemoteExecutor() { ze_ifm_client_close(client_); }

bool RemoteExecutor::connect(const std::string &path, std::string &why) {
    path_ = path;
    client_ = ze_ifm_client_open(path.c_str());
    if (!client_) {
        why = "no daemon at " + path + ": " + std::strerror(errno);
        return false;
    }
    ze_ifm_answer a;
    if (!request(ZE_IFM_KIND_DESCRIBE, {}, a)) {
        why = lost_;
        return false;
    }
    const bool described = a.status == ZE_IFM_STATUS_OK && a.data_len >= 2;
    simulator_ = described && a.data[1] == ZE_IFM_BACKEND_SIMULATOR;
    if (!described)
        why = "the daemon at " + path + " refused: " + std::string(reinterpret_cast<const char *>(a.text), a.text_len);
    ze_ifm_client_answer_free(&a);
    return described;
}

bool RemoteExecutor::request(uint16_t kind, const std::vector<uint8_t> &body, ze_ifm_answer &a) {
    if (lost()) return false;
    const uint32_t r = ze_ifm_client_request_on(client_, kind, body.data(), static_cast<uint32_t>(body.size()), &a);
    if (r) lost_ = "lost the daemon at " + path_ + ": " + transport_failure(r);
    return r == 0;
}

// A refusal is the daemon's reason; anything else is what the library did.
Outcome RemoteExecutor::outcome_of(ze_ifm_answer &a, const std::string &what) {
    Outcome o;
    std::string text(reinterpret_cast<const char *>(a.text), a.text_len);
    if (a.status != ZE_IFM_STATUS_OK) {
        o.refused = what + ": refused by the daemon: " + text;
    } else {
        o.code = a.result;
        o.reply_len = a.reply_len == ZE_IFM_NO_REPLY ? kReplyUnset : a.reply_len;
        o.reply.assign(a.data, a.data + a.data_len);
        o.printed = std::move(text);
    }
    ze_ifm_client_answer_free(&a);
    return o;
}

Outcome RemoteExecutor::run_command(const std::string &name, std::span<const uint8_t> request_bytes,
                                    uint32_t length) {
    ze_ifm_answer a;
    if (!request(ZE_IFM_KIND_CALL, serve::call_body(name, request_bytes, length), a)) return {};
    return outcome_of(a, name.substr(name.starts_with(kCliPrefix) ? std::strlen(kCliPrefix) : 0));
}

Outcome RemoteExecutor::call_api(const std::string &name, std::vector<Bytes> args) {
    ze_ifm_answer a;
    if (!request(ZE_IFM_KIND_API, serve::api_body(name, args), a)) return {};
    const size_t count = args.size();
    Outcome o = outcome_of(a, name);
    if (o.refused.empty() && !serve::take_args(o.reply, count, o.args))
        lost_ = "lost the daemon at " + path_ + ": its answer to " + name + " does not carry the parameters";
    o.reply.clear();
    o.reply_len = 0;
    return o;
}

Outcome RemoteExecutor::run_builtin(const std::vector<std::string> &words) {
    ze_ifm_answer a;
    const std::string line = quoted_line(words);
    if (!request(ZE_IFM_KIND_LINE, {line.begin(), line.end()}, a)) return {};
    return outcome_of(a, words[0]);
}

}  // namespace zesh
