#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "access.h"
#include "dispatcher.h"
#include "listener.h"
#include "log.h"
#include "options.h"
#include "serve.h"
#include "server.h"
#include "ze_adapter_cli.h"
#include "ze_host.h"

namespace zesh {
namespace {

volatile sig_atomic_t g_stop = 0;

void on_stop(int) { g_stop = 1; }

// The launcher waits until the daemon listens (or has failed) and exits
// with 0 (or 1), so a script may connect as soon as it returns. The daemon
// leaves the terminal's session; standard error stays for the log unless
// the log goes to syslog. Returns the descriptor to report readiness on.
int detach(bool keep_stderr) {
    int ready[2];
    if (pipe(ready) != 0) return -1;
    pid_t pid = fork();
    if (pid < 0) return -1;
    if (pid > 0) {
        close(ready[1]);
        char ok = 0;
        while (read(ready[0], &ok, 1) < 0 && errno == EINTR) {
        }
        _exit(ok == 1 ? 0 : 1);
    }
    close(ready[0]);
    setsid();
    int null = open("/dev/null", O_RDWR);
    if (null >= 0) {
        dup2(null, STDIN_FILENO);
        dup2(null, STDOUT_FILENO);
        if (!keep_stderr) dup2(null, STDERR_FILENO);
        if (null > STDERR_FILENO) close(null);
    }
    return ready[1];
}

// SIGTERM and SIGINT are held while a request runs and let through while
// the loop waits; the returned mask is the one to wait with.
sigset_t hold_stop_signals() {
    struct sigaction sa {};
    sa.sa_handler = on_stop;
    sigemptyset(&sa.sa_mask);
    sigaction(SIGTERM, &sa, nullptr);
    sigaction(SIGINT, &sa, nullptr);
    signal(SIGPIPE, SIG_IGN);
    sigset_t stop, wait;
    sigemptyset(&stop);
    sigaddset(&stop, SIGTERM);
    sigaddset(&stop, SIGINT);
    sigprocmask(SIG_BLOCK, &stop, &wait);
    sigdelset(&wait, SIGTERM);
    sigdelset(&wait, SIGINT);
    return wait;
}

}  // namespace

int serve_main(int argc, char **argv) {
    for (int i = 0; i < argc; ++i)
        if (!std::strcmp(argv[i], "--help") || !std::strcmp(argv[i], "-h")) {
            std::fputs(serve::kServeUsage, stdout);
            return 0;
        }
    std::string error;
    const auto options = serve::parse_options(argc, argv, error);
    if (!options) {
        std::fprintf(stderr, "zesh serve: %s\n%s", error.c_str(), serve::kServeUsage);
        return 2;
    }
    if (options->syslog) serve::log_to_syslog();
    const int ready = options->foreground ? -1 : detach(!options->syslog);
    if (!options->foreground && ready < 0) {
        serve::log_line("cannot detach: %s", std::strerror(errno));
        return 1;
    }
    // Held from before the socket exists: a stop that arrives while the
    // daemon starts is taken by the loop, which removes the socket, instead
    // of killing the daemon and leaving the socket file behind.
    const sigset_t wait_mask = hold_stop_signals();
    if (!options->device.empty()) ze_host_use_device(options->device.c_str());
    if (!options->record.empty() && ze_host_record_start(options->record.c_str())) {
        serve::log_line("cannot write the recording %s", options->record.c_str());
        return 1;
    }
    if (uint32_t r = ze_adapter_cli_init()) {
        serve::log_line("command registration failed with 0x%08x", r);
        return 1;
    }
    serve::Listener listener;
    if (!listener.open(*options, error)) {
        serve::log_line("%s", error.c_str());
        return 1;
    }
    if (ready >= 0) {
        (void)!write(ready, "\1", 1);
        close(ready);
        (void)!chdir("/");
    }
    serve::log_line("serving %s on %s", options->socket.c_str(),
                    options->device.empty() ? "the simulator" : options->device.c_str());

    serve::Access access(*options);
    serve::Dispatcher dispatcher(access);
    serve::Server(listener.fd(), access, dispatcher).run(wait_mask, g_stop);
    listener.remove();
    ze_host_record_stop();
    serve::log_line("stopped");
    return 0;
}

}  // namespace zesh
