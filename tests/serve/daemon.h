// A `zesh serve` daemon of this build, started for one test, and raw frame
// exchanges with it.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <vector>

#include "ze_ifm_wire.h"

namespace zetest {

class Daemon {
public:
    // Starts `zesh serve --socket DIR/ifm.sock --foreground ARGS...` in a
    // fresh directory and waits until it accepts connections.
    explicit Daemon(const std::vector<std::string> &args = {});
    ~Daemon();
    Daemon(const Daemon &) = delete;
    Daemon &operator=(const Daemon &) = delete;

    const std::string &socket() const { return socket_; }
    pid_t pid() const { return pid_; }
    // Sends `sig` and returns the exit status (-1: killed by a signal).
    int stop(int sig = 15);
    std::string log() const;

private:
    std::string dir_, socket_;
    pid_t pid_ = -1;
};

// Runs `zesh ARGS...` to its end; returns the exit status.
int run_zesh(const std::vector<std::string> &args);
// A fresh directory under the system's temporary directory.
std::string fresh_dir();

struct RawAnswer {
    uint16_t kind = 0;
    uint32_t tag = 0;
    uint32_t status = 0, result = 0, reply_len = 0;
    std::vector<uint8_t> data;
    std::string text;
};

// A connection that sends whatever bytes a test makes.
class RawClient {
public:
    explicit RawClient(const std::string &path);
    ~RawClient();
    RawClient(const RawClient &) = delete;
    RawClient &operator=(const RawClient &) = delete;

    int fd() const { return fd_; }
    bool send(const std::vector<uint8_t> &bytes);
    // The next answer; false when the daemon closed the connection or sent
    // nothing for 5 s.
    bool read(RawAnswer &a);
    // True when the daemon has closed the connection (nothing more to read).
    bool closed_by_daemon();

private:
    int fd_ = -1;
};

// Frames.
std::vector<uint8_t> frame(uint16_t kind, const std::vector<uint8_t> &body, uint32_t tag = 1,
                           uint16_t version = ZE_IFM_VERSION, uint32_t flags = 0);
std::vector<uint8_t> call_body(const std::string &name, const std::vector<uint8_t> &request);
std::vector<uint8_t> text_body(const std::string &text);

}  // namespace zetest
