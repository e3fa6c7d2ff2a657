// Runs the shell's requests in a `zesh serve` daemon: registered commands
// as call frames, API calls as API frames, the built-ins that look into
// the daemon's host ("sim ...", "trace ...") as shell lines. The outcomes
// are those the daemon's library gave, so the shell prints what it would
// print in-process.
#pragma once

#include <string>

#include "executor.h"
#include "ze_ifm_client.h"

namespace zesh {

class RemoteExecutor : public Executor {
public:
    RemoteExecutor() = default;
    ~RemoteExecutor() override;
    RemoteExecutor(const RemoteExecutor &) = delete;
    RemoteExecutor &operator=(const RemoteExecutor &) = delete;

    // Connects to the daemon at `path` and asks what it hosts; false (and
    // `why`) when no daemon answers there.
    bool connect(const std::string &path, std::string &why);
    // The daemon's library runs on the simulator (else a device node).
    bool simulator() const { return simulator_; }

    Outcome run_command(const std::string &name, std::span<const uint8_t> request, uint32_t length) override;
    Outcome call_api(const std::string &name, std::vector<Bytes> args) override;
    Outcome run_builtin(const std::vector<std::string> &words) override;
    bool lost() const override { return !lost_.empty(); }
    // Why the daemon was lost.
    const std::string &why_lost() const { return lost_; }

private:
    // The answer to one request, or false with the daemon lost.
    bool request(uint16_t kind, const std::vector<uint8_t> &body, ze_ifm_answer &a);
    // The outcome an answer carries, freeing it; a refusal names `what`.
    Outcome outcome_of(ze_ifm_answer &a, const std::string &what);

    ze_ifm_client *client_ = nullptr;
    std::string path_;
    bool simulator_ = true;
    std::string lost_;
};

}  // namespace zesh
