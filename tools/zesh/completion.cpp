#include "completion.h"

#include "api_call.h"
#include "command_table.h"
#include "help.h"
#include "shell.h"

namespace zesh {

namespace {

std::vector<std::string> api_names() {
    std::vector<std::string> names;
    for (const api::Area &a : api::areas())
        for (const api::Row &r : a.rows) names.push_back(r.name);
    return names;
}

std::vector<std::string> inputs_of(const std::vector<Field> &fields) {
    std::vector<std::string> names;
    for (const Field &f : fields)
        if (f.dir != Dir::Out) names.push_back(f.name + "=");
    return names;
}

std::vector<std::string> candidates(const std::vector<std::string> &before) {
    if (before.empty()) return command_words();
    const std::string &cmd = before[0];
    if (cmd == "sim" && before.size() == 1) {
        std::vector<std::string> names;
        for (const SimCommand &s : sim_commands()) names.push_back(s.name);
        return names;
    }
    if (cmd == "help" || cmd == "?") {
        if (before.size() == 1) return help_topics();
        return before.size() == 2 && before[1] == "api" ? api_names() : std::vector<std::string>{};
    }
    if (cmd == "api") {
        if (before.size() == 1) return api_names();
        const api::Row *row = api::find(before[1]);
        if (!row) return {};
        std::vector<Field> fields;
        for (const api::Slot &s : api::slots_of(*row)) fields.push_back(s.field);
        return inputs_of(fields);
    }
    const CommandSpec *row = find_command(cmd);
    return row ? inputs_of(fields_of(*row)) : std::vector<std::string>{};
}

}  // namespace

std::vector<std::string> completions(const std::vector<std::string> &before, const std::string &partial) {
    std::vector<std::string> out;
    for (std::string &c : candidates(before))
        if (c.starts_with(partial)) out.push_back(std::move(c));
    return out;
}

}  // namespace zesh
