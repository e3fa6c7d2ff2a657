#include "shell.h"

#include <ostream>

#include "api_call.h"
#include "command_table.h"
#include "help.h"
#include "request.h"
#include "values.h"
#include "ze_result.h"

namespace zesh {

namespace {

struct CodeText {
    uint32_t code;
    const char *name;
    const char *meaning;
};

// 0xffffffff folds every other driver answer and, in the strict families,
// a refused argument too: it tells that the call failed, not why.
constexpr CodeText kCodes[] = {
    {ZE_OK, "ZE_OK", "ok"},
    {ZE_ERR_NOT_FOUND, "ZE_ERR_NOT_FOUND", "not found"},
    {ZE_ERR_EXISTS, "ZE_ERR_EXISTS", "already present"},
    {ZE_ERR_FULL, "ZE_ERR_FULL", "table full"},
    {ZE_ERR_PARAM, "ZE_ERR_PARAM", "invalid parameter"},
    {ZE_ERR_NO_MEMORY, "ZE_ERR_NO_MEMORY", "out of memory"},
    {ZE_ERR_NULL_PTR, "ZE_ERR_NULL_PTR", "null pointer"},
    {ZE_ERR_BLACKMAC_FULL, "ZE_ERR_BLACKMAC_FULL", "black MAC list full"},
    {ZE_ERR_BLACKMAC_MISSING, "ZE_ERR_BLACKMAC_MISSING", "black MAC not in list"},
    {ZE_ERR_UNKNOWN_VALUE, "ZE_ERR_UNKNOWN_VALUE", "unknown value from the driver"},
    {ZE_ERR_FAIL, "ZE_ERR_FAIL", "failed; the code does not say why"},
};

const CodeText *code_text(uint32_t code) {
    for (const CodeText &c : kCodes)
        if (c.code == code) return &c;
    return nullptr;
}

}  // namespace

std::string joined(const std::vector<std::string> &words) {
    std::string s;
    for (const std::string &w : words) s += (s.empty() ? "" : " ") + w;
    return s;
}

std::vector<std::string> command_words() {
    std::vector<std::string> names;
    for (const Builtin &b : builtins()) names.push_back(b.name);
    for (const CommandSpec &c : all_commands()) names.push_back(c.name);
    return names;
}

const char *result_meaning(uint32_t code) {
    const CodeText *c = code_text(code);
    return c ? c->meaning : "unknown code";
}

const char *result_name(uint32_t code) {
    const CodeText *c = code_text(code);
    return c ? c->name : nullptr;
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

std::string quoted_line(const std::vector<std::string> &words) {
    std::string line;
    for (const std::string &w : words) {
        const bool quote = w.empty() || w.find_first_of(" \t\r\n;#") != std::string::npos;
        line += (line.empty() ? "" : " ") + (quote ? "\"" + w + "\"" : w);
    }
    return line;
}

Shell::Shell(std::ostream &out, Executor *executor)
    : out_(out),
      own_(executor ? nullptr : std::make_unique<LocalExecutor>(out)),
      exec_(executor ? *executor : *own_) {}

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
    if (cmd == "help" || cmd == "?") {
        bool ok = true;
        std::string text = help_text(w, ok);
        return local(w, ok, text);
    }
    if (cmd == "echo") {
        std::vector<std::string> rest(w.begin() + 1, w.end());
        return local(w, true, joined(rest) + "\n");
    }
    if (cmd == "sim" || cmd == "trace") return run_builtin(w);
    if (cmd == "api") return run_api(w);
    return run_command(w);
}

bool Shell::local(const std::vector<std::string> &w, bool ok, const std::string &text) {
    if (json_)
        out_ << "{\"builtin\":" << json_string(w[0]) << ",\"ok\":" << (ok ? "true" : "false")
             << ",\"printed\":" << json_string(text) << "}\n";
    else
        out_ << text;
    return ok;
}

bool Shell::refuse(const std::string &input, const std::string &message) {
    if (json_)
        out_ << "{\"error\":" << json_string(message) << ",\"input\":" << json_string(input) << "}\n";
    else
        out_ << message << "\n";
    return false;
}

// False when the request did not run: refused before it ran (reported as a
// refused line is), or lost with its executor (the shell stops; whoever
// made the executor says why).
bool Shell::ran(const std::vector<std::string> &w, const Outcome &o) {
    if (exec_.lost()) {
        quit_ = true;
        return false;
    }
    return o.refused.empty() || refuse(joined(w), o.refused);
}

bool Shell::run_builtin(const std::vector<std::string> &w) {
    Outcome o = exec_.run_builtin(w);
    if (!ran(w, o)) return false;
    const bool sub = w[0] == "sim" && w.size() > 1;  // "sim log", "sim fail": the sub-command names it
    return local({sub ? w[0] + " " + w[1] : w[0]}, o.code == 0, o.printed);
}

void Shell::result(const char *kind, const std::string &name, const Outcome &o, const std::string &fields,
                   const std::string &json_fields) {
    if (json_) {
        const char *sym = result_name(o.code);
        out_ << "{\"" << kind << "\":" << json_string(name) << ",\"result\":" << o.code
             << ",\"name\":" << (sym ? json_string(sym) : "null")
             << ",\"meaning\":" << json_string(result_meaning(o.code)) << ",\"" << json_fields
             << ",\"printed\":" << json_string(o.printed) << "}\n";
        return;
    }
    out_ << o.printed;
    if (!o.printed.empty() && o.printed.back() != '\n') out_ << "\n";  // the result starts a line of its own
    out_ << name << ": result " << format_code(o.code) << " (" << result_meaning(o.code) << ")\n" << fields;
}

bool Shell::run_command(const std::vector<std::string> &w) {
    const CommandSpec *row = find_command(w[0]);
    if (!row) {
        std::string hint = did_you_mean(w[0], command_words());
        return refuse(joined(w), w[0] + ": no such command" + (hint.empty() ? " (try 'help')" : "; " + hint));
    }
    Request req(*row);
    std::string error;
    if (!req.fill(std::span(w).subspan(1), error)) return refuse(joined(w), std::string(row->name) + ": " + error);
    Outcome o = exec_.run_command(kCliPrefix + std::string(row->name), std::span(req.data(), kRequestBufferSize),
                                  req.length());
    if (!ran(w, o)) return false;
    const bool replied = o.reply_len != kReplyUnset;
    result("command", row->name, o, replied ? format_reply(*row, o.reply) : "",
           "reply\":" + (replied ? json_reply(*row, o.reply) : std::string("null")));
    return true;
}

bool Shell::run_api(const std::vector<std::string> &w) {
    if (w.size() < 2) return refuse(joined(w), "usage: api NAME ARGS... ('help api' lists the functions)");
    const api::Row *row = api::find(w[1]);
    if (!row) {
        std::vector<std::string> names;
        for (const api::Area &a : api::areas())
            for (const api::Row &r : a.rows) names.push_back(r.name);
        std::string hint = did_you_mean(w[1], names);
        return refuse(joined(w), "api: no function '" + w[1] + "'" + (hint.empty() ? " (try 'help api')" : "; " + hint));
    }
    std::vector<api::Bytes> args = api::empty_args(*row);
    std::string error;
    if (!api::fill_args(*row, std::span(w).subspan(2), args, error))
        return refuse(joined(w), std::string(row->name) + ": " + error);
    Outcome o = exec_.call_api(row->name, std::move(args));
    if (!ran(w, o)) return false;
    result("api", row->name, o, api::format_outputs(*row, o.args), "outputs\":" + api::json_outputs(*row, o.args));
    return true;
}

}  // namespace zesh
