// The daemon's event loop: many clients on one thread, their requests run
// one at a time. Each client's requests run in the order it sent them;
// clients with requests waiting take turns, one request each.
#pragma once

#include <signal.h>
#include <sys/socket.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "access.h"
#include "dispatcher.h"

namespace zesh::serve {

class Server {
public:
    Server(int listen_fd, const Access &access, Dispatcher &dispatcher);
    ~Server();

    // Serves until `stop` is set. The stop signals must be blocked; they are
    // let through (with `wait_mask`) only while the loop waits, so the
    // request in progress always finishes.
    void run(const sigset_t &wait_mask, const volatile sig_atomic_t &stop);

    static constexpr size_t kMaxClients = 256;

private:
    struct Client;
    void accept_clients();
    void read_from(Client &c);
    void run_next(Client &c);
    void flush(Client &c);

    int listen_fd_;
    const Access &access_;
    Dispatcher &dispatcher_;
    std::vector<std::unique_ptr<Client>> clients_;
};

}  // namespace zesh::serve
