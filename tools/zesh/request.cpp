#include "request.h"

#include <cstdio>
#include <cstring>

#include "shell.h"
#include "ze_sim.h"

namespace zesh {

namespace {

const char *type_name(const Field &f) {
    switch (f.type) {
        case FieldType::U8: return "u8";
        case FieldType::U16: return "u16";
        case FieldType::U32: return "u32";
        case FieldType::I32: return "i32";
        case FieldType::Mac: return "mac";
        case FieldType::Ipv4: return "ipv4";
        case FieldType::Bytes: return "bytes";
    }
    return "?";
}

bool parse_hex_bytes(const std::string &s, std::vector<uint8_t> &out) {
    std::string digits;
    for (char c : s)
        if (c != ':' && c != '-' && c != '.') digits += c;
    if (digits.size() % 2) return false;
    for (size_t i = 0; i < digits.size(); i += 2) {
        char *end = nullptr;
        std::string pair = digits.substr(i, 2);
        unsigned long v = std::strtoul(pair.c_str(), &end, 16);
        if (*end) return false;
        out.push_back(static_cast<uint8_t>(v));
    }
    return true;
}

bool parse_ipv4(const std::string &s, uint32_t &v) {
    unsigned a, b, c, d;
    char tail;
    if (std::sscanf(s.c_str(), "%u.%u.%u.%u%c", &a, &b, &c, &d, &tail) != 4) return false;
    if (a > 255 || b > 255 || c > 255 || d > 255) return false;
    v = a << 24 | b << 16 | c << 8 | d;
    return true;
}

}  // namespace

std::string format_code(uint32_t code) {
    char buf[16];
    std::snprintf(buf, sizeof buf, code < 0x10000 ? "%u" : "0x%08x", code);
    return buf;
}

Request::Request(const CommandSpec &row)
    : row_(row), fields_(fields_of(row)), buf_(kRequestBufferSize, 0), length_(row.request) {}

bool Request::set_field(const Field &f, const std::string &value, std::string &error) {
    uint8_t *p = buf_.data() + f.offset;
    if (f.type == FieldType::Mac || f.type == FieldType::Bytes) {
        std::vector<uint8_t> bytes;
        if (!parse_hex_bytes(value, bytes) || bytes.size() > f.size) {
            error = "bad value '" + value + "' for " + f.name + " (" + std::to_string(f.size) +
                    " bytes in hex)";
            return false;
        }
        std::memcpy(p, bytes.data(), bytes.size());
        return true;
    }
    uint64_t v = 0;
    if (f.type == FieldType::Ipv4 && value.find('.') != std::string::npos) {
        uint32_t ip = 0;
        if (!parse_ipv4(value, ip)) {
            error = "bad address '" + value + "' for " + f.name;
            return false;
        }
        v = ip;
    } else if (!parse_number(value, v)) {
        error = "bad number '" + value + "' for " + f.name;
        return false;
    }
    zesim::store_field(p, f.size, static_cast<uint32_t>(v));
    return true;
}

bool Request::fill(std::span<const std::string> words, std::string &error) {
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
            continue;
        }
        size_t eq = w.find('=');
        const Field *target = nullptr;
        std::string value = w;
        if (eq != std::string::npos) {
            std::string name = w.substr(0, eq);
            value = w.substr(eq + 1);
            for (const Field &f : fields_)
                if (f.name == name) target = &f;
            if (!target) {
                error = "no field '" + name + "' (see 'help " + row_.name + "')";
                return false;
            }
        } else {
            size_t seen = 0;
            for (const Field &f : fields_)
                if (f.dir != Dir::Out && seen++ == positional) target = &f;
            ++positional;
            if (!target) {
                error = "too many values (see 'help " + std::string(row_.name) + "')";
                return false;
            }
        }
        if (!set_field(*target, value, error)) return false;
    }
    return true;
}

std::string Request::format_reply(uint32_t reply_len) const {
    std::string s;
    char line[160];
    for (const Field &f : fields_) {
        if (f.dir == Dir::In || f.offset + f.size > reply_len) continue;
        const uint8_t *p = buf_.data() + f.offset;
        if (f.type == FieldType::Mac || f.type == FieldType::Bytes) {
            std::string hex;
            for (uint32_t i = 0; i < f.size; ++i) {
                char b[4];
                std::snprintf(b, sizeof b, f.type == FieldType::Mac && i ? ":%02x" : "%02x", p[i]);
                hex += b;
            }
            std::snprintf(line, sizeof line, "  %s = %s\n", f.name.c_str(), hex.c_str());
        } else if (f.type == FieldType::Ipv4) {
            uint32_t v;
            std::memcpy(&v, p, 4);
            std::snprintf(line, sizeof line, "  %s = %u.%u.%u.%u\n", f.name.c_str(), v >> 24,
                          v >> 16 & 0xff, v >> 8 & 0xff, v & 0xff);
        } else {
            uint32_t v = zesim::load_field(p, f.size);
            if (f.type == FieldType::I32)
                std::snprintf(line, sizeof line, "  %s = %d\n", f.name.c_str(), static_cast<int32_t>(v));
            else
                std::snprintf(line, sizeof line, "  %s = %u (0x%x)\n", f.name.c_str(), v, v);
        }
        s += line;
    }
    return s;
}

std::string describe_command(const CommandSpec &row) {
    std::string s = std::string(kCliPrefix) + row.name + ": request " +
                    std::to_string(row.request) + " bytes" +
                    (row.checked ? "" : " (length not checked)") + ", reply " +
                    (row.reply == kNoReply ? std::string("none") : std::to_string(row.reply) + " bytes") +
                    "\n";
    for (const Field &f : fields_of(row)) {
        char line[160];
        std::snprintf(line, sizeof line, "  %-20s %-6s at %-4u %s\n", f.name.c_str(), type_name(f),
                      f.offset, f.dir == Dir::In ? "in" : f.dir == Dir::Out ? "out" : "in/out");
        s += line;
    }
    return s;
}

}  // namespace zesh
