#include "shell.h"

#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <ostream>
#include <sstream>

#include "command_table.h"
#include "request.h"
#include "ze_host.h"

namespace zesh {

const char *result_meaning(uint32_t code) {
    switch (code) {
        case 0: return "ok";
        case 14: return "not found";
        case 15: return "already present";
        case 16: return "table full";
        case 18: return "invalid parameter";
        case 27: return "out of memory";
        case 31: return "null pointer";
        case 42: return "black MAC list full";
        case 44: return "black MAC not in list";
        case 46: return "unknown value from the driver";
        case 0xffffffffu: return "driver failure";
        default: return "unknown code";
    }
}

std::vector<std::vector<std::string>> split_line(const std::string &line) {
    std::vector<std::vector<std::string>> cmds(1);
    std::string word;
    bool in_word = false, quoted = false;
    auto end_word = [&] {
        if (in_word) cmds.back().push_back(word);
        word.clear();
        in_word = false;
    };
    for (char c : line) {
        if (quoted) {
            if (c == '"')
                quoted = false;
            else
                word += c;
        } else if (c == '"') {
            quoted = in_word = true;
        } else if (c == '#') {
            break;
        } else if (c == ';') {
            end_word();
            cmds.emplace_back();
        } else if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            end_word();
        } else {
            word += c;
            in_word = true;
        }
    }
    end_word();
    std::erase_if(cmds, [](const auto &c) { return c.empty(); });
    return cmds;
}

bool parse_number(const std::string &s, uint64_t &value) {
    if (s.empty()) return false;
    const char *p = s.c_str();
    bool neg = *p == '-';
    if (neg) ++p;
    char *end = nullptr;
    errno = 0;
    unsigned long long v = std::strtoull(p, &end, 0);
    if (errno || end == p || *end) return false;
    value = neg ? static_cast<uint64_t>(-static_cast<int64_t>(v)) : v;
    return true;
}

namespace {
void to_stream(const char *text, size_t len, void *ctx) {
    auto *sh = static_cast<Shell *>(ctx);
    sh->out().write(text, static_cast<std::streamsize>(len));
    if (len) sh->console_last_ = text[len - 1];
}
}  // namespace

// The library's console output goes to the shell's stream, in order with
// the shell's own lines.
Shell::Shell(std::ostream &out) : out_(out) { ze_host_set_print_sink(to_stream, this); }

Shell::~Shell() { ze_host_set_print_sink(nullptr, nullptr); }

bool Shell::run_line(const std::string &line) {
    bool ok = true;
    for (const auto &words : split_line(line)) {
        if (quit_) break;
        ok = run_words(words) && ok;
    }
    return ok;
}

bool Shell::run_words(const std::vector<std::string> &w) {
    const std::string &cmd = w[0];
    if (cmd == "quit" || cmd == "exit") {
        quit_ = true;
        return true;
    }
    if (cmd == "help" || cmd == "?") return help(w);
    if (cmd == "trace") return trace(w);
    if (cmd == "sim") return run_sim(*this, w);
    if (cmd == "echo") {
        for (size_t i = 1; i < w.size(); ++i) out_ << (i > 1 ? " " : "") << w[i];
        out_ << "\n";
        return true;
    }
    return run_command(w);
}

bool Shell::help(const std::vector<std::string> &w) {
    if (w.size() > 1) {
        const CommandSpec *row = find_command(w[1]);
        if (!row) {
            out_ << "help: no command '" << w[1] << "'\n";
            return false;
        }
        out_ << describe_command(*row);
        return true;
    }
    out_ << "Commands (run as NAME [values in field order | field=value ...] or NAME --hex HEX;\n"
            "the ze_adapter_cli_ prefix is optional; 'help NAME' shows the request fields):\n";
    for (uint32_t i = 0; i < ze_host_ifm_count(); ++i) {
        std::string name = ze_host_ifm_at(i, nullptr);
        out_ << "  " << name.substr(std::strlen(kCliPrefix)) << "\n";
    }
    out_ << "Built-ins:\n"
            "  help [NAME]            this list, or one command's request fields\n"
            "  trace [N|clear]        the last N trace and debug records (default 20)\n"
            "  echo TEXT              print TEXT\n"
            "  quit                   leave the shell\n";
    for (const SimCommand &s : sim_commands())
        out_ << "  sim " << s.usage << "\n";
    return true;
}

bool Shell::trace(const std::vector<std::string> &w) {
    if (w.size() > 1 && w[1] == "clear") {
        ze_host_trace_clear();
        return true;
    }
    uint64_t n = 20;
    if (w.size() > 1 && !parse_number(w[1], n)) {
        out_ << "usage: trace [N|clear]\n";
        return false;
    }
    uint32_t count = ze_host_trace_count();
    uint32_t first = n < count ? count - static_cast<uint32_t>(n) : 0;
    for (uint32_t i = first; i < count; ++i) {
        ze_host_trace_rec rec;
        ze_host_trace_get(i, &rec);
        char line[512];
        ze_host_trace_format(&rec, line, sizeof line);
        out_ << line << "\n";
    }
    return true;
}

bool Shell::run_command(const std::vector<std::string> &w) {
    const CommandSpec *row = find_command(w[0]);
    std::string full = std::string(kCliPrefix) + (row ? row->name : w[0]);
    ze_ifm_handler_f handler = ze_host_ifm_find(full.c_str());
    if (!row || !handler) {
        out_ << w[0] << ": no such command (try 'help')\n";
        return false;
    }
    Request req(*row);
    std::string error;
    if (!req.fill(std::span(w).subspan(1), error)) {
        out_ << row->name << ": " << error << "\n";
        return false;
    }
    uint32_t reply_len = kReplyUnset;
    console_last_ = '\n';
    uint32_t r = handler(req.data(), req.length(), &reply_len);
    if (console_last_ != '\n') out_ << "\n";  // the result line starts a line of its own
    out_ << row->name << ": result " << format_code(r) << " (" << result_meaning(r) << ")\n";
    if (reply_len != kReplyUnset) out_ << req.format_reply(reply_len);
    return true;
}

std::vector<std::string> Shell::completion_names() const {
    std::vector<std::string> names = {"help", "trace", "echo", "quit", "sim"};
    for (uint32_t i = 0; i < ze_host_ifm_count(); ++i) {
        std::string name = ze_host_ifm_at(i, nullptr);
        names.push_back(name);
        names.push_back(name.substr(std::strlen(kCliPrefix)));
    }
    return names;
}

}  // namespace zesh
