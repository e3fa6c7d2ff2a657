#include "server.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "log.h"

namespace zesh::serve {

struct Server::Client {
    Client(int fd_, ucred peer_) : fd(fd_), peer(peer_) {}
    Client(const Client &) = delete;
    Client &operator=(const Client &) = delete;
    ~Client() { close(fd); }

    int fd;
    ucred peer;
    std::vector<uint8_t> in;  // received bytes; frames start at in_off
    size_t in_off = 0;
    std::vector<uint8_t> out;  // answers not yet sent, from out_off on
    size_t out_off = 0;
    bool input_closed = false;  // end of stream, or framing lost
    bool failed = false;        // the connection broke: drop it

    std::span<const uint8_t> input() const { return std::span(in).subspan(in_off); }
    size_t pending() const { return out.size() - out_off; }
    // Reading stops while a whole frame waits to run.
    bool wants_input() const { return !input_closed && !failed && input().size() < ZE_IFM_FRAME_MAX; }
    // A request can run: one is waiting and the answers are not backed up.
    bool runnable() const {
        uint32_t size;
        return !failed && pending() < ZE_IFM_ANSWER_MAX &&
               (next_frame(input(), size) != Framing::Incomplete || (input_closed && !input().empty()));
    }
    bool finished() const { return failed || (input_closed && input().empty() && !pending()); }
};

namespace {

// An answer to no request, sent as the connection is refused.
void refuse_connection(int fd, uint32_t status, const char *why) {
    Answer a = refusal(Header{}, status, why);
    std::vector<uint8_t> frame;
    encode(a, frame);
    (void)!send(fd, frame.data(), frame.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    close(fd);
}

}  // namespace

Server::Server(int listen_fd, const Access &access, Dispatcher &dispatcher)
    : listen_fd_(listen_fd), access_(access), dispatcher_(dispatcher) {}

Server::~Server() = default;

void Server::accept_clients() {
    while (true) {
        int fd = accept4(listen_fd_, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
        if (fd < 0) {
            if (errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR)
                log_line("accept: %s", std::strerror(errno));
            return;
        }
        ucred peer{};
        socklen_t len = sizeof peer;
        if (getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &peer, &len) != 0) {
            close(fd);
            continue;
        }
        if (clients_.size() >= kMaxClients) {
            log_line("client pid %d refused: %zu clients connected", peer.pid, clients_.size());
            refuse_connection(fd, ZE_IFM_STATUS_BUSY, "too many clients");
        } else if (!access_.admits(peer)) {
            log_line("client pid %d uid %u gid %u refused: not allowed", peer.pid, peer.uid, peer.gid);
            refuse_connection(fd, ZE_IFM_STATUS_NOT_PERMITTED, "this uid and gid may not connect");
        } else {
            clients_.push_back(std::make_unique<Client>(fd, peer));
        }
    }
}

void Server::read_from(Client &c) {
    c.in.erase(c.in.begin(), c.in.begin() + static_cast<std::ptrdiff_t>(c.in_off));
    c.in_off = 0;
    const size_t had = c.in.size();
    c.in.resize(had + ZE_IFM_FRAME_MAX);
    ssize_t n = recv(c.fd, c.in.data() + had, ZE_IFM_FRAME_MAX, MSG_DONTWAIT);
    c.in.resize(had + (n > 0 ? static_cast<size_t>(n) : 0));
    if (n == 0) c.input_closed = true;
    if (n < 0 && errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR) c.failed = true;
}

// Runs the client's next request and queues its answer.
void Server::run_next(Client &c) {
    if (!c.runnable()) return;
    if (c.out_off) {
        c.out.erase(c.out.begin(), c.out.begin() + static_cast<std::ptrdiff_t>(c.out_off));
        c.out_off = 0;
    }
    uint32_t size = 0;
    const auto input = c.input();
    switch (next_frame(input, size)) {
        case Framing::Frame:
            encode(dispatcher_.run(input.first(size), c.peer), c.out);
            c.in_off += size;
            break;
        case Framing::TooLarge:
            // The rest of the stream cannot be cut into frames any more.
            log_line("client pid %d: frame of %u bytes refused", c.peer.pid, ze_ifm_get32(input.data()) + 4);
            encode(refusal(read_header(input.first(std::min<size_t>(input.size(), ZE_IFM_HEADER_SIZE))),
                           ZE_IFM_STATUS_TOO_LARGE,
                           "frames are at most " + std::to_string(ZE_IFM_FRAME_MAX) + " bytes"),
                   c.out);
            c.in_off = c.in.size();
            c.input_closed = true;
            break;
        case Framing::Incomplete:  // and the stream has ended
            encode(refusal(Header{}, ZE_IFM_STATUS_MALFORMED, "the stream ended inside a frame"), c.out);
            c.in_off = c.in.size();
            break;
    }
}

void Server::flush(Client &c) {
    while (c.pending() && !c.failed) {
        ssize_t n = send(c.fd, c.out.data() + c.out_off, c.pending(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (n > 0) {
            c.out_off += static_cast<size_t>(n);
        } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
            return;
        } else if (errno != EINTR) {
            c.failed = true;
        }
    }
    c.out.clear();
    c.out_off = 0;
}

void Server::run(const sigset_t &wait_mask, const volatile sig_atomic_t &stop) {
    std::vector<pollfd> fds;
    while (!stop) {
        bool work = false;
        fds.assign(1, pollfd{listen_fd_, POLLIN, 0});
        for (const auto &c : clients_) {
            short events = static_cast<short>((c->wants_input() ? POLLIN : 0) | (c->pending() ? POLLOUT : 0));
            fds.push_back(pollfd{c->fd, events, 0});
            work = work || c->runnable();
        }
        const timespec now{0, 0};
        if (ppoll(fds.data(), fds.size(), work ? &now : nullptr, &wait_mask) < 0) {
            if (errno != EINTR) log_line("poll: %s", std::strerror(errno));
            continue;
        }
        // Clients accepted now are polled from the next turn on.
        const size_t polled = clients_.size();
        for (size_t i = 0; i < polled; ++i)
            if (fds[i + 1].revents & (POLLIN | POLLHUP | POLLERR) && clients_[i]->wants_input())
                read_from(*clients_[i]);
        if (fds[0].revents & POLLIN) accept_clients();
        for (const auto &c : clients_) {
            run_next(*c);
            flush(*c);
        }
        std::erase_if(clients_, [](const auto &c) { return c->finished(); });
    }
    for (const auto &c : clients_) flush(*c);
    clients_.clear();
}

}  // namespace zesh::serve
