#include "help.h"

#include <cstdio>

#include "api_call.h"
#include "command_table.h"
#include "request.h"
#include "shell.h"
#include "values.h"

namespace zesh {

std::string help_line(const char *usage, const char *summary) {
    char buf[256];
    std::snprintf(buf, sizeof buf, "  %-36s %s\n", usage, summary);
    return buf;
}

namespace {

std::string family_text(const Family &f) {
    std::string s = std::string(f.name) + ": " + f.summary + "\n";
    for (const CommandSpec &c : f.commands) s += help_line(c.name, c.summary);
    return s;
}

std::string overview() {
    std::string s =
        "Commands by family: NAME [values in field order | field=value ...] or NAME --hex HEX;\n"
        "the ze_adapter_cli_ prefix is optional. 'help NAME' shows a command's fields,\n"
        "'help FAMILY' one family, 'help api' the API functions.\n";
    for (const Family &f : families()) s += family_text(f);
    s += "Built-ins:\n";
    for (const Builtin &b : builtins()) s += help_line(b.usage, b.summary);
    for (const SimCommand &c : sim_commands()) s += help_line(c.usage, c.summary);
    return s;
}

std::string api_overview() {
    std::string s = "API functions by area: api NAME ARGS...; 'help api NAME' shows one.\n";
    for (const api::Area &a : api::areas()) {
        s += std::string(a.name) + ": " + a.summary + "\n";
        for (const api::Row &r : a.rows) s += help_line(r.name, r.summary);
    }
    return s;
}

std::string trimmed(std::string s) {
    size_t nl;
    while ((nl = s.find(" \n")) != std::string::npos) s.erase(nl, 1);
    return s;
}

}  // namespace

std::string help_text(const std::vector<std::string> &w, bool &ok) {
    ok = true;
    if (w.size() == 1) return trimmed(overview());
    if (w[1] == "api") {
        if (w.size() == 2) return trimmed(api_overview());
        if (const api::Row *row = api::find(w[2])) return api::describe(*row);
        ok = false;
        return "help: no API function '" + w[2] + "'\n";
    }
    if (const Family *f = find_family(w[1])) return family_text(*f);
    if (const CommandSpec *row = find_command(w[1])) return describe_command(*row);
    ok = false;
    std::string hint = did_you_mean(w[1], help_topics());
    return "help: no command or family '" + w[1] + "'" + (hint.empty() ? "" : "; " + hint) + "\n";
}

std::vector<std::string> help_topics() {
    std::vector<std::string> topics = {"api"};
    for (const Family &f : families()) topics.push_back(f.name);
    for (const CommandSpec &c : all_commands()) topics.push_back(c.name);
    return topics;
}

std::span<const Builtin> builtins() {
    static const Builtin kBuiltins[] = {
        {"help", "help [NAME|FAMILY|api [NAME]]", "commands by family, one family or command, API functions"},
        {"api", "api NAME ARGS...", "call an exported API function by name"},
        {"trace", "trace [N|clear]", "the last N trace and debug records (default 20)"},
        {"echo", "echo TEXT", "print TEXT"},
        {"quit", "quit", "leave the shell"},
        {"sim", "sim SUB-COMMAND", "look into and steer the simulator:"},
    };
    return kBuiltins;
}

}  // namespace zesh
