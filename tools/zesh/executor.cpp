#include "executor.h"

#include <algorithm>
#include <ostream>
#include <sstream>

#include "api_call.h"
#include "request.h"
#include "shell.h"
#include "ze_host.h"

namespace zesh {

namespace {

void to_executor(const char *text, size_t len, void *ctx) { static_cast<LocalExecutor *>(ctx)->print(text, len); }

// Catches the console for the length of one run.
class Capture {
public:
    Capture(std::string *&slot, std::string &into) : slot_(slot), saved_(slot) { slot_ = &into; }
    ~Capture() { slot_ = saved_; }

private:
    std::string *&slot_;
    std::string *saved_;
};

}  // namespace

LocalExecutor::LocalExecutor(std::ostream &idle) : idle_(idle) { ze_host_set_print_sink(to_executor, this); }

LocalExecutor::~LocalExecutor() { ze_host_set_print_sink(nullptr, nullptr); }

void LocalExecutor::print(const char *text, size_t len) {
    if (capture_)
        capture_->append(text, len);
    else
        idle_.write(text, static_cast<std::streamsize>(len));
}

Outcome LocalExecutor::run_command(const std::string &name, std::span<const uint8_t> request, uint32_t length) {
    Outcome o;
    ze_ifm_handler_f handler = ze_host_ifm_find(name.c_str());
    if (!handler) {
        o.code = ZE_HOST_ERR_UNSUPPORTED;
        return o;
    }
    Bytes buf(kRequestBufferSize, 0);
    std::copy_n(request.begin(), std::min<size_t>(request.size(), buf.size()), buf.begin());
    o.reply_len = kReplyUnset;
    {
        Capture c(capture_, o.printed);
        o.code = handler(buf.data(), length, &o.reply_len);
    }
    if (o.reply_len != kReplyUnset) o.reply.assign(buf.begin(), buf.begin() + std::min(o.reply_len, kRequestBufferSize));
    return o;
}

Outcome LocalExecutor::call_api(const std::string &name, std::vector<Bytes> args) {
    Outcome o;
    const api::Row *row = api::find(name);
    std::vector<Bytes> expected = row ? api::empty_args(*row) : std::vector<Bytes>{};
    bool fits = row && args.size() == expected.size();
    for (size_t i = 0; fits && i < args.size(); ++i) fits = args[i].size() == expected[i].size();
    if (!fits) {  // the function's parameters are fixed: nothing else is passed to it
        o.code = ZE_HOST_ERR_UNSUPPORTED;
        return o;
    }
    {
        Capture c(capture_, o.printed);
        o.code = api::invoke(*row, args);
    }
    o.args = std::move(args);
    return o;
}

Outcome LocalExecutor::run_builtin(const std::vector<std::string> &words) {
    Outcome o;
    std::ostringstream out;
    bool ran = false;
    {
        Capture c(capture_, o.printed);
        if (words[0] == "sim")
            ran = run_sim(out, words);
        else if (words[0] == "trace")
            ran = run_trace(out, words);
    }
    o.printed += out.str();
    o.code = ran ? 0 : 1;
    return o;
}

}  // namespace zesh
