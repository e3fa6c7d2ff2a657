#include "command_table.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
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

const Family *find_family(std::string_view name) {
    for (const Family &f : families())
        if (name == f.name) return &f;
    return nullptr;
}

namespace {

[[noreturn]] void malformed(const char *owner, const std::string &word) {
    std::fprintf(stderr, "zesh: table row %s: bad field '%s'\n", owner, word.c_str());
    std::abort();
}

std::optional<std::pair<FieldType, uint32_t>> parse_type(const std::string &t) {
    if (t == "u8") return {{FieldType::U8, 1}};
    if (t == "u16") return {{FieldType::U16, 2}};
    if (t == "u32") return {{FieldType::U32, 4}};
    if (t == "u64") return {{FieldType::U64, 8}};
    if (t == "i32") return {{FieldType::I32, 4}};
    if (t == "mac") return {{FieldType::Mac, 6}};
    if (t == "ipv4") return {{FieldType::Ipv4, 4}};
    for (auto [prefix, type] : {std::pair{"bytes", FieldType::Bytes}, std::pair{"text", FieldType::Text}}) {
        const size_t len = std::strlen(prefix);
        if (!t.starts_with(prefix) || t.size() == len) continue;
        uint32_t n = static_cast<uint32_t>(std::strtoul(t.c_str() + len, nullptr, 10));
        if (n) return {{type, n}};
    }
    return std::nullopt;
}

}  // namespace

std::vector<Field> fields_of(const CommandSpec &row) { return parse_fields(row.fields, row.request, row.name); }

std::vector<Field> parse_fields(const char *list, uint32_t size, const char *owner) {
    std::vector<Field> out;
    std::istringstream in(list);
    std::string word;
    while (in >> word) {
        Dir dir = Dir::In;
        std::string w = word;
        if (w[0] == '>' || w[0] == '=') {
            dir = w[0] == '>' ? Dir::Out : Dir::InOut;
            w.erase(0, 1);
        }
        size_t colon = w.find(':'), at = w.find('@'), opt = w.find('?');
        if (colon == std::string::npos || at == std::string::npos || at < colon || opt < at ||
            (opt != std::string::npos && dir == Dir::Out))
            malformed(owner, word);
        auto type = parse_type(w.substr(colon + 1, at - colon - 1));
        if (!type) malformed(owner, word);
        uint32_t off = static_cast<uint32_t>(std::strtoul(w.c_str() + at + 1, nullptr, 10));
        if (off + type->second > size) malformed(owner, word);
        Field f{w.substr(0, colon), type->first, off, type->second, dir, false, {}};
        if (opt != std::string::npos) {
            f.optional = true;
            f.fallback = w.substr(opt + 1);
        }
        out.push_back(f);
    }
    return out;
}

}  // namespace zesh
