// Where a parsed request runs. The shell turns a line into a request, hands
// it to an executor and formats the outcome; the formatting depends only on
// the outcome, so an executor that runs the request elsewhere gives the same
// output as the one that runs it in this process.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <span>
#include <string>
#include <vector>

namespace zesh {

using Bytes = std::vector<uint8_t>;

struct Outcome {
    uint32_t code = 0;             // the result code (built-ins: 0 ran, 1 refused)
    uint32_t reply_len = 0;        // commands: the reply length the handler left (kReplyUnset: none)
    Bytes reply;                   // commands: the buffer up to the reply length
    std::vector<Bytes> args;       // API calls: every parameter's bytes after the call
    std::string printed;           // what the call printed on the console
};

class Executor {
public:
    virtual ~Executor() = default;
    // A registered command by its full name, with the request bytes and the
    // request length to send (which may differ from the bytes' size).
    virtual Outcome run_command(const std::string &name, std::span<const uint8_t> request,
                                uint32_t length) = 0;
    // An API function by name with each parameter's bytes.
    virtual Outcome call_api(const std::string &name, std::vector<Bytes> args) = 0;
    // A built-in that looks into the library's host: "sim ...", "trace ...".
    virtual Outcome run_builtin(const std::vector<std::string> &words) = 0;
};

// Runs everything in this process: the registered handlers, the API
// functions and the simulator. While it lives the library's console output
// is caught for the outcome of a run, and goes to `idle` between runs.
class LocalExecutor : public Executor {
public:
    explicit LocalExecutor(std::ostream &idle);
    ~LocalExecutor() override;
    LocalExecutor(const LocalExecutor &) = delete;
    LocalExecutor &operator=(const LocalExecutor &) = delete;

    Outcome run_command(const std::string &name, std::span<const uint8_t> request, uint32_t length) override;
    Outcome call_api(const std::string &name, std::vector<Bytes> args) override;
    Outcome run_builtin(const std::vector<std::string> &words) override;

    // Library console output: caught while a run is under way.
    void print(const char *text, size_t len);

private:
    std::ostream &idle_;
    std::string *capture_ = nullptr;
};

}  // namespace zesh
