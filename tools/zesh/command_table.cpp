#include "command_table.h"

#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace zesh {

std::span<const CommandSpec> all_commands() {
    static const std::vector<CommandSpec> rows = [] {
        std::vector<CommandSpec> v;
        for (const Family &f : families()) v.insert(v.end(), f.commands.begin(), f.commands.end());
        return v;
    }();
    return rows;
}

const CommandSpec *find_command(std::string_view name) {
    if (name.starts_with(kCliPrefix)) name.remove_prefix(std::string_view(kCliPrefix).size());
    for (const CommandSpec &c : all_commands())
        if (name == c.name) return &c;
    return nullptr;
}

namespace {

[[noreturn]] void malformed(const CommandSpec &row, const std::string &word) {
    std::fprintf(stderr, "zesh: command table row %s: bad field '%s'\n", row.name, word.c_str());
    std::abort();
}

std::optional<std::pair<FieldType, uint32_t>> parse_type(const std::string &t) {
    if (t == "u8") return {{FieldType::U8, 1}};
    if (t == "u16") return {{FieldType::U16, 2}};
    if (t == "u32") return {{FieldType::U32, 4}};
    if (t == "i32") return {{FieldType::I32, 4}};
    if (t == "mac") return {{FieldType::Mac, 6}};
    if (t == "ipv4") return {{FieldType::Ipv4, 4}};
    if (t.starts_with("bytes") && t.size() > 5) {
        uint32_t n = static_cast<uint32_t>(std::strtoul(t.c_str() + 5, nullptr, 10));
        if (n) return {{FieldType::Bytes, n}};
    }
    return std::nullopt;
}

}  // namespace

std::vector<Field> fields_of(const CommandSpec &row) {
    std::vector<Field> out;
    std::istringstream in(row.fields);
    std::string word;
    while (in >> word) {
        Dir dir = Dir::In;
        std::string w = word;
        if (w[0] == '>' || w[0] == '=') {
            dir = w[0] == '>' ? Dir::Out : Dir::InOut;
            w.erase(0, 1);
        }
        size_t colon = w.find(':'), at = w.find('@');
        if (colon == std::string::npos || at == std::string::npos || at < colon) malformed(row, word);
        auto type = parse_type(w.substr(colon + 1, at - colon - 1));
        if (!type) malformed(row, word);
        uint32_t off = static_cast<uint32_t>(std::strtoul(w.c_str() + at + 1, nullptr, 10));
        if (off + type->second > row.request) malformed(row, word);
        out.push_back({w.substr(0, colon), type->first, off, type->second, dir});
    }
    return out;
}

}  // namespace zesh
