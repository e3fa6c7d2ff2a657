#include "daemon.h"

#include <gtest/gtest.h>

#include "serve/protocol.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <regex>
#include <sstream>
#include <thread>

namespace zetest {
namespace {

int connect_to(const std::string &path) {
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    std::strncpy(addr.sun_path, path.c_str(), sizeof addr.sun_path - 1);
    int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd >= 0 && connect(fd, reinterpret_cast<sockaddr *>(&addr), sizeof addr) == 0) return fd;
    if (fd >= 0) close(fd);
    return -1;
}

pid_t spawn(const std::vector<std::string> &args, const std::string &out_file, const std::string &err_file) {
    pid_t pid = fork();
    if (pid != 0) return pid;
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // a test that dies (a sanitizer's abort) leaves no daemon behind
    dup2(open(out_file.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600), STDOUT_FILENO);
    dup2(open(err_file.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600), STDERR_FILENO);
    std::vector<char *> argv{const_cast<char *>("zesh")};
    for (const std::string &a : args) argv.push_back(const_cast<char *>(a.c_str()));
    argv.push_back(nullptr);
    execv(ZESH_BINARY, argv.data());
    _exit(127);
}

int exit_status(pid_t pid) {
    int status = 0;
    if (waitpid(pid, &status, 0) != pid) return -2;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// True once a connection to `path` is accepted (tried for up to 5 s).
bool wait_for_socket(const std::string &path) {
    for (int i = 0; i < 500; ++i) {
        int fd = connect_to(path);
        if (fd >= 0) {
            close(fd);
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

}  // namespace

std::string fresh_dir() {
    std::string tmpl = (std::getenv("TMPDIR") ? std::getenv("TMPDIR") : "/tmp") + std::string("/zesh-serve-XXXXXX");
    return mkdtemp(tmpl.data()) ? tmpl : std::string();
}

Daemon::Daemon(const std::vector<std::string> &args) : dir_(fresh_dir()), socket_(dir_ + "/ifm.sock") {
    std::vector<std::string> all{"serve", "--socket", socket_, "--foreground"};
    all.insert(all.end(), args.begin(), args.end());
    pid_ = spawn(all, dir_ + "/log", dir_ + "/log");
    wait_for_socket(socket_);
}

Daemon::~Daemon() {
    if (pid_ > 0) stop(SIGKILL);
    std::system(("rm -rf '" + dir_ + "'").c_str());
}

int Daemon::stop(int sig) {
    if (pid_ <= 0) return -2;
    kill(pid_, sig);
    int status = exit_status(pid_);
    pid_ = -1;
    return status;
}

FakeDaemon::FakeDaemon(std::vector<std::vector<uint8_t>> answers)
    : dir_(fresh_dir()), socket_(dir_ + "/fake.sock") {
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    std::strncpy(addr.sun_path, socket_.c_str(), sizeof addr.sun_path - 1);
    fd_ = ::socket(AF_UNIX, SOCK_STREAM, 0);
    EXPECT_EQ(bind(fd_, reinterpret_cast<sockaddr *>(&addr), sizeof addr), 0);
    listen(fd_, 1);
    peer_ = std::thread([this, answers = std::move(answers)] {
        int c = accept(fd_, nullptr, nullptr);
        uint8_t request[256];
        for (const auto &a : answers)
            if (recv(c, request, sizeof request, 0) <= 0 || send(c, a.data(), a.size(), MSG_NOSIGNAL) < 0) break;
        close(c);
    });
}

FakeDaemon::~FakeDaemon() {
    shutdown(fd_, SHUT_RDWR);  // a peer still waiting for a client gives up
    peer_.join();
    close(fd_);
    std::system(("rm -rf '" + dir_ + "'").c_str());
}

std::string Daemon::log() const { return file_text(dir_ + "/log"); }

std::string file_text(const std::string &path) {
    std::ifstream in(path);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

Ran run_zesh(const std::vector<std::string> &args) {
    const std::string dir = fresh_dir();
    Ran r;
    r.status = exit_status(spawn(args, dir + "/out", dir + "/err"));
    r.out = file_text(dir + "/out");
    r.err = file_text(dir + "/err");
    std::system(("rm -rf '" + dir + "'").c_str());
    return r;
}

uint32_t run_line(ze_ifm_client *c, const std::string &text, std::string *printed) {
    char *out = nullptr;
    const uint32_t r = ze_ifm_client_line_on(c, text.c_str(), &out);
    if (printed) *printed = out ? out : "";
    ze_ifm_client_free(out);
    return r;
}

uint32_t run_line(const std::string &socket, const std::string &text, std::string *printed) {
    ze_ifm_client *c = ze_ifm_client_open(socket.c_str());
    if (!c) return ZE_IFM_CLIENT_ERR_CONNECT;
    const uint32_t r = run_line(c, text, printed);
    ze_ifm_client_close(c);
    return r;
}

std::string without_addresses(const std::string &s) {
    static const std::regex kAddress(R"(\[0x[0-9a-f]+\] :)");
    return std::regex_replace(s, kAddress, "[address] :");
}

RawClient::RawClient(const std::string &path) : fd_(connect_to(path)) {
    timeval tv{5, 0};
    setsockopt(fd_, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof tv);
}

RawClient::~RawClient() {
    if (fd_ >= 0) close(fd_);
}

bool RawClient::send(const std::vector<uint8_t> &bytes) {
    return ::send(fd_, bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
}

namespace {
bool read_exactly(int fd, uint8_t *p, size_t n) {
    while (n) {
        ssize_t k = recv(fd, p, n, 0);
        if (k <= 0) return false;
        p += k;
        n -= static_cast<size_t>(k);
    }
    return true;
}
}  // namespace

bool RawClient::read(RawAnswer &a) {
    uint8_t word[4];
    if (!read_exactly(fd_, word, 4)) return false;
    std::vector<uint8_t> rest(ze_ifm_get32(word));
    if (rest.size() < 12 + ZE_IFM_ANSWER_SIZE || !read_exactly(fd_, rest.data(), rest.size())) return false;
    const uint8_t *b = rest.data() + 12;
    a.kind = ze_ifm_get16(&rest[2]);
    a.tag = ze_ifm_get32(&rest[4]);
    a.status = ze_ifm_get32(b);
    a.result = ze_ifm_get32(b + 4);
    a.reply_len = ze_ifm_get32(b + 8);
    const uint32_t data_len = ze_ifm_get32(b + 12);
    a.data.assign(b + ZE_IFM_ANSWER_SIZE, b + ZE_IFM_ANSWER_SIZE + data_len);
    a.text.assign(reinterpret_cast<const char *>(b) + ZE_IFM_ANSWER_SIZE + data_len, ze_ifm_get32(b + 16));
    return true;
}

bool RawClient::closed_by_daemon() {
    uint8_t byte;
    return recv(fd_, &byte, 1, 0) == 0;
}

std::vector<uint8_t> frame(uint16_t kind, const std::vector<uint8_t> &body, uint32_t tag, uint16_t version,
                           uint32_t flags) {
    std::vector<uint8_t> f(ZE_IFM_HEADER_SIZE + body.size());
    ze_ifm_put_header(f.data(), static_cast<uint32_t>(body.size()), kind, tag, flags);
    ze_ifm_put16(&f[4], version);
    std::copy(body.begin(), body.end(), f.begin() + ZE_IFM_HEADER_SIZE);
    return f;
}

std::vector<uint8_t> call_body(const std::string &name, const std::vector<uint8_t> &request) {
    return zesh::serve::call_body(name, request, static_cast<uint32_t>(request.size()));
}

std::vector<uint8_t> text_body(const std::string &text) { return {text.begin(), text.end()}; }

}  // namespace zetest
