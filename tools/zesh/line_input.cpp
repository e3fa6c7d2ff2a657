#include "line_input.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include "completion.h"
#include "shell.h"

#ifdef ZESH_HAVE_LIBEDIT
#include <editline/readline.h>
#endif

namespace zesh {

namespace {

volatile sig_atomic_t g_interrupted = 0;

void on_interrupt(int) { g_interrupted = 1; }

// Ctrl-C interrupts the wait for input (no restart) instead of ending the shell.
void catch_interrupt() {
    struct sigaction sa {};
    sa.sa_handler = on_interrupt;
    sigemptyset(&sa.sa_mask);
    sigaction(SIGINT, &sa, nullptr);
}

}  // namespace

#ifdef ZESH_HAVE_LIBEDIT
namespace {

std::vector<std::string> g_matches;
std::string g_history;
bool g_done = false;
bool g_ended = false;  // Ctrl-D on an empty line, or the input closed
std::string g_line;

char *next_match(const char *, int state) {
    static size_t i;
    if (state == 0) i = 0;
    return i < g_matches.size() ? strdup(g_matches[i++].c_str()) : nullptr;
}

char **complete(const char *text, int start, int) {
    rl_attempted_completion_over = 1;  // never fall back to file names
    auto commands = split_line(std::string(rl_line_buffer, static_cast<size_t>(start)) + "x");
    std::vector<std::string> before = commands.empty() ? std::vector<std::string>{} : commands.back();
    if (!before.empty()) before.pop_back();  // the "x" stands for the word being completed
    g_matches = completions(before, text);
    bool field = !g_matches.empty() && g_matches.front().back() == '=';
    rl_completion_append_character = field ? '\0' : ' ';
    return g_matches.empty() ? nullptr : rl_completion_matches(text, next_match);
}

void on_line(char *line) {
    g_done = true;
    g_ended = !line;
    g_line.assign(line ? line : "");
    std::free(line);
    rl_callback_handler_remove();
}

std::string history_file() {
    if (const char *f = std::getenv("ZESH_HISTORY")) return f;
    const char *home = std::getenv("HOME");
    return home ? std::string(home) + "/.zesh_history" : std::string();
}

}  // namespace

void line_input_init() {
    catch_interrupt();
    rl_attempted_completion_function = complete;
    g_history = history_file();
    if (!g_history.empty()) read_history(g_history.c_str());
}

std::optional<std::string> read_line(const char *prompt) {
    for (;;) {
        g_done = false;
        g_interrupted = 0;
        rl_callback_handler_install(prompt, on_line);
        while (!g_done && !g_interrupted) {
            pollfd p{STDIN_FILENO, POLLIN, 0};
            int r = poll(&p, 1, -1);
            if (r > 0) rl_callback_read_char();
            else if (r < 0 && errno != EINTR) return std::nullopt;
        }
        if (g_done) break;
        rl_callback_handler_remove();  // Ctrl-C: the half-typed line is dropped
        std::cout << "\n" << std::flush;
    }
    if (g_ended) return std::nullopt;
    if (!g_line.empty()) {
        add_history(g_line.c_str());
        if (!g_history.empty()) write_history(g_history.c_str());
    }
    return g_line;
}

#else

void line_input_init() { catch_interrupt(); }

std::optional<std::string> read_line(const char *prompt) {
    for (;;) {
        std::cout << prompt << std::flush;
        std::string s;
        g_interrupted = 0;
        if (!std::getline(std::cin, s)) {
            if (!g_interrupted) return std::nullopt;
            std::cin.clear();  // Ctrl-C: the half-typed line is dropped
            clearerr(stdin);
            std::cout << "\n";
            continue;
        }
        // Without line editing the cursor keys arrive as escape sequences;
        // such a line is not a command.
        if (s.find('\x1b') == std::string::npos) return s;
        std::cout << "zesh: this build has no line editing (libedit): a line with cursor keys is not run\n";
    }
}

#endif

}  // namespace zesh
