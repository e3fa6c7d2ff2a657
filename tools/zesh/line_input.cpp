#include "line_input.h"

#include <cstdlib>
#include <cstring>
#include <iostream>

#ifdef ZESH_HAVE_LIBEDIT
#include <editline/readline.h>
#endif

namespace zesh {

#ifdef ZESH_HAVE_LIBEDIT
namespace {

std::vector<std::string> g_names;

char *next_match(const char *text, int state) {
    static size_t i;
    if (state == 0) i = 0;
    size_t len = std::strlen(text);
    while (i < g_names.size()) {
        const std::string &n = g_names[i++];
        if (n.compare(0, len, text) == 0) return strdup(n.c_str());
    }
    return nullptr;
}

char **complete(const char *text, int start, int) {
    if (start != 0) return nullptr;  // only the command word completes
    return rl_completion_matches(text, next_match);
}

}  // namespace

void line_input_init(std::vector<std::string> names) {
    g_names = std::move(names);
    rl_attempted_completion_function = complete;
}

std::optional<std::string> read_line(const char *prompt) {
    char *line = readline(prompt);
    if (!line) return std::nullopt;
    std::string s(line);
    std::free(line);
    if (!s.empty()) add_history(s.c_str());
    return s;
}

#else

void line_input_init(std::vector<std::string>) {}

std::optional<std::string> read_line(const char *prompt) {
    std::string s;
    for (;;) {
        std::cout << prompt << std::flush;
        if (!std::getline(std::cin, s)) return std::nullopt;
        // Without line editing the cursor keys arrive as escape sequences;
        // such a line is not a command.
        if (s.find('\x1b') == std::string::npos) return s;
        std::cout << "zesh: this build has no line editing (libedit); line ignored\n";
    }
}

#endif

}  // namespace zesh
