#include "request.h"

#include <cstdio>
#include <cstring>

#include "values.h"

namespace zesh {

namespace {

bool is_input(const Field &f) { return f.dir != Dir::Out; }

std::vector<std::string> field_names(const std::vector<Field> &fields) {
    std::vector<std::string> names;
    for (const Field &f : fields) names.push_back(f.name);
    return names;
}

bool replied(const Field &f, size_t reply_len) { return f.dir != Dir::In && f.offset + f.size <= reply_len; }

}  // namespace

std::string format_code(uint32_t code) {
    char buf[16];
    std::snprintf(buf, sizeof buf, code < 0x10000 ? "%u" : "0x%08x", code);
    return buf;
}

Request::Request(const CommandSpec &row)
    : row_(row), fields_(fields_of(row)), buf_(kRequestBufferSize, 0), length_(row.request) {}

bool Request::fill(std::span<const std::string> words, std::string &error) {
    std::vector<bool> given(fields_.size(), false);
    bool raw = false;
    size_t positional = 0;
    for (size_t i = 0; i < words.size(); ++i) {
        const std::string &w = words[i];
        if (w == "--hex" || w == "--len") {
            if (i + 1 >= words.size()) {
                error = w + " needs a value";
                return false;
            }
            const std::string &arg = words[++i];
            if (w == "--len") {
                uint64_t n;
                if (!parse_number(arg, n) || n > kRequestBufferSize) {
                    error = "bad length '" + arg + "'";
                    return false;
                }
                length_ = static_cast<uint32_t>(n);
                continue;
            }
            std::vector<uint8_t> bytes;
            if (!parse_hex_bytes(arg, bytes) || bytes.size() > kRequestBufferSize) {
                error = "bad hex request '" + arg + "'";
                return false;
            }
            std::memcpy(buf_.data(), bytes.data(), bytes.size());
            length_ = static_cast<uint32_t>(bytes.size());
            raw = true;
            continue;
        }
        size_t eq = w.find('=');
        size_t target = fields_.size();
        std::string value = w;
        if (eq != std::string::npos) {
            std::string name = w.substr(0, eq);
            value = w.substr(eq + 1);
            for (size_t k = 0; k < fields_.size(); ++k)
                if (fields_[k].name == name && is_input(fields_[k])) target = k;
            if (target == fields_.size()) {
                std::string hint = did_you_mean(name, field_names(fields_));
                error = "no input field '" + name + "'" + (hint.empty() ? "" : "; " + hint) +
                        "\nusage: " + usage_of(row_);
                return false;
            }
        } else {
            size_t seen = 0;
            for (size_t k = 0; k < fields_.size() && target == fields_.size(); ++k)
                if (is_input(fields_[k]) && seen++ == positional) target = k;
            ++positional;
            if (target == fields_.size()) {
                error = "too many values\nusage: " + usage_of(row_);
                return false;
            }
        }
        if (!store_value(fields_[target], buf_.data(), value, error)) return false;
        given[target] = true;
    }
    if (raw) return true;
    std::string missing;
    for (size_t k = 0; k < fields_.size(); ++k) {
        const Field &f = fields_[k];
        if (given[k] || !is_input(f)) continue;
        if (f.optional) {
            if (!store_value(f, buf_.data(), f.fallback, error)) return false;
        } else {
            missing += (missing.empty() ? "" : " ") + f.name;
        }
    }
    if (missing.empty()) return true;
    error = "missing " + missing + "\nusage: " + usage_of(row_);
    return false;
}

std::string usage_of(const CommandSpec &row) {
    std::string s = row.name;
    for (const Field &f : fields_of(row)) {
        if (!is_input(f)) continue;
        s += " " + (f.optional ? "[" + f.name + "=" + f.fallback + "]" : f.name);
    }
    return s;
}

std::string format_reply(const CommandSpec &row, std::span<const uint8_t> reply) {
    std::string s;
    for (const Field &f : fields_of(row))
        if (replied(f, reply.size())) s += "  " + format_value(f, reply.data()) + "\n";
    return s;
}

std::string json_reply(const CommandSpec &row, std::span<const uint8_t> reply) {
    std::string s;
    for (const Field &f : fields_of(row))
        if (replied(f, reply.size()))
            add_json_member(s, f.name, json_value(f, reply.data()));
    return "{" + s + "}";
}

std::string describe_command(const CommandSpec &row) {
    std::string s = std::string(kCliPrefix) + row.name + ": " + row.summary + "\n  request " +
                    std::to_string(row.request) + " bytes" + (row.checked ? "" : " (length not checked)") +
                    ", reply " +
                    (row.reply == kNoReply ? std::string("none") : std::to_string(row.reply) + " bytes") +
                    "\n  usage: " + usage_of(row) + "\n";
    for (const Field &f : fields_of(row)) {
        char line[200];
        std::snprintf(line, sizeof line, "  %-20s %-6s at %-4u %-6s %s\n", f.name.c_str(),
                      type_name(f.type), f.offset,
                      f.dir == Dir::In ? "in" : f.dir == Dir::Out ? "out" : "in/out",
                      f.optional ? ("optional, default " + f.fallback).c_str() : "");
        std::string text = line;
        text.erase(text.find_last_not_of(" \n") + 1);
        s += text + "\n";
    }
    return s;
}

}  // namespace zesh
