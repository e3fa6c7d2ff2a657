#include "values.h"

#include "ze_sim.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cctype>
#include <cstring>

namespace zesh {

namespace {

bool parse_ipv4(const std::string &s, uint32_t &v) {
    unsigned a, b, c, d;
    char tail;
    if (std::sscanf(s.c_str(), "%u.%u.%u.%u%c", &a, &b, &c, &d, &tail) != 4) return false;
    if (a > 255 || b > 255 || c > 255 || d > 255) return false;
    v = a << 24 | b << 16 | c << 8 | d;
    return true;
}

// Integers are kept at their own width so that a big-endian target reads
// the value where the handler or the API expects it.
void store_int(uint8_t *p, uint32_t size, uint64_t v) {
    if (size == 1) {
        uint8_t x = static_cast<uint8_t>(v);
        std::memcpy(p, &x, 1);
    } else if (size == 2) {
        uint16_t x = static_cast<uint16_t>(v);
        std::memcpy(p, &x, 2);
    } else if (size == 4) {
        uint32_t x = static_cast<uint32_t>(v);
        std::memcpy(p, &x, 4);
    } else {
        std::memcpy(p, &v, 8);
    }
}

uint64_t load_int(const uint8_t *p, uint32_t size) {
    if (size == 1) return *p;
    if (size == 2) {
        uint16_t x;
        std::memcpy(&x, p, 2);
        return x;
    }
    if (size == 4) {
        uint32_t x;
        std::memcpy(&x, p, 4);
        return x;
    }
    uint64_t x;
    std::memcpy(&x, p, 8);
    return x;
}

bool is_integer(FieldType t) {
    return t == FieldType::U8 || t == FieldType::U16 || t == FieldType::U32 || t == FieldType::U64 ||
           t == FieldType::I32;
}

// A MAC address as its bytes in hex, separated by ':'.
std::string mac_text(const uint8_t *p, uint32_t n) {
    std::string s;
    for (uint32_t i = 0; i < n; ++i) {
        if (i) s += ':';
        s += zesim::to_hex({p + i, 1});
    }
    return s;
}

std::string text_of(const Field &f, const uint8_t *base) {
    const char *p = reinterpret_cast<const char *>(base + f.offset);
    return std::string(p, strnlen(p, f.size));
}

size_t edit_distance(const std::string &a, const std::string &b) {
    std::vector<size_t> row(b.size() + 1);
    for (size_t j = 0; j <= b.size(); ++j) row[j] = j;
    for (size_t i = 1; i <= a.size(); ++i) {
        size_t diag = row[0];
        row[0] = i;
        for (size_t j = 1; j <= b.size(); ++j) {
            size_t up = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, diag + (a[i - 1] != b[j - 1])});
            diag = up;
        }
    }
    return row[b.size()];
}

}  // namespace

bool parse_number(const std::string &s, uint64_t &value) {
    const char *p = s.c_str();
    const bool neg = *p == '-';
    if (neg) ++p;
    int base = 10;
    if (p[0] == '0' && (p[1] == 'x' || p[1] == 'X')) {
        base = 16;
        p += 2;
    }
    if (!std::isxdigit(static_cast<unsigned char>(*p))) return false;  // also no sign after the prefix
    char *end = nullptr;
    errno = 0;
    unsigned long long v = std::strtoull(p, &end, base);
    if (errno || *end) return false;
    value = neg ? static_cast<uint64_t>(-static_cast<int64_t>(v)) : v;
    return true;
}

bool parse_hex_bytes(const std::string &s, std::vector<uint8_t> &out) {
    std::string digits;
    for (char c : s)
        if (c != ':' && c != '-' && c != '.') digits += c;
    zesim::Bytes bytes;
    if (!zesim::from_hex(digits, bytes)) return false;
    out.insert(out.end(), bytes.begin(), bytes.end());
    return true;
}

const char *type_name(FieldType t) {
    switch (t) {
        case FieldType::U8: return "u8";
        case FieldType::U16: return "u16";
        case FieldType::U32: return "u32";
        case FieldType::U64: return "u64";
        case FieldType::I32: return "i32";
        case FieldType::Mac: return "mac";
        case FieldType::Ipv4: return "ipv4";
        case FieldType::Bytes: return "bytes";
        case FieldType::Text: return "text";
    }
    return "?";
}

std::string accepted_values(const Field &f) {
    switch (f.type) {
        case FieldType::U8: return "0 to 255";
        case FieldType::U16: return "0 to 65535";
        case FieldType::U32: return "0 to 4294967295";
        case FieldType::U64: return "0 to 18446744073709551615";
        case FieldType::I32: return "-2147483648 to 2147483647";
        case FieldType::Mac: return "a MAC address aa:bb:cc:dd:ee:ff";
        case FieldType::Ipv4: return "a dotted IPv4 address or a u32";
        case FieldType::Bytes: return "up to " + std::to_string(f.size) + " bytes in hex";
        case FieldType::Text: return "text of up to " + std::to_string(f.size - 1) + " characters";
    }
    return "?";
}

bool store_value(const Field &f, uint8_t *base, const std::string &value, std::string &error) {
    uint8_t *p = base + f.offset;
    auto refuse = [&] {
        error = "bad value '" + value + "' for " + f.name + ": " + type_name(f.type) + ", " +
                accepted_values(f);
        return false;
    };
    if (f.type == FieldType::Text) {
        if (value.size() >= f.size) return refuse();
        std::memcpy(p, value.c_str(), value.size() + 1);
        return true;
    }
    if (f.type == FieldType::Mac || f.type == FieldType::Bytes) {
        std::vector<uint8_t> bytes;
        if (!parse_hex_bytes(value, bytes) || bytes.size() > f.size ||
            (f.type == FieldType::Mac && bytes.size() != f.size))
            return refuse();
        std::memcpy(p, bytes.data(), bytes.size());
        return true;
    }
    if (f.type == FieldType::Ipv4 && value.find('.') != std::string::npos) {
        uint32_t ip = 0;
        if (!parse_ipv4(value, ip)) return refuse();
        store_int(p, 4, ip);
        return true;
    }
    uint64_t v = 0;
    if (!parse_number(value, v)) return refuse();
    const bool negative = value[0] == '-';
    const int64_t sv = static_cast<int64_t>(v);
    bool fits;
    switch (f.type) {
        case FieldType::U8: fits = !negative && v <= 0xff; break;
        case FieldType::U16: fits = !negative && v <= 0xffff; break;
        case FieldType::I32: fits = negative ? sv >= INT32_MIN : v <= INT32_MAX; break;
        case FieldType::U64: fits = !negative; break;
        default: fits = !negative && v <= 0xffffffffu; break;
    }
    if (!fits) {
        error = f.name + "=" + value + " is out of range: " + f.name + " is " + type_name(f.type) + ", " +
                accepted_values(f);
        return false;
    }
    store_int(p, f.size, v);
    return true;
}

std::string format_value(const Field &f, const uint8_t *base) {
    const uint8_t *p = base + f.offset;
    char buf[64];
    switch (f.type) {
        case FieldType::Mac: return f.name + " = " + mac_text(p, f.size);
        case FieldType::Bytes: return f.name + " = " + zesim::to_hex({p, f.size});
        case FieldType::Text: return f.name + " = \"" + text_of(f, base) + "\"";
        case FieldType::Ipv4: {
            uint32_t v = static_cast<uint32_t>(load_int(p, 4));
            std::snprintf(buf, sizeof buf, "%u.%u.%u.%u", v >> 24, v >> 16 & 0xff, v >> 8 & 0xff, v & 0xff);
            break;
        }
        case FieldType::I32:
            std::snprintf(buf, sizeof buf, "%d", static_cast<int32_t>(load_int(p, 4)));
            break;
        default: {
            unsigned long long v = load_int(p, f.size);
            std::snprintf(buf, sizeof buf, "%llu (0x%llx)", v, v);
        }
    }
    return f.name + " = " + buf;
}

std::string json_value(const Field &f, const uint8_t *base) {
    const uint8_t *p = base + f.offset;
    if (f.type == FieldType::I32) return std::to_string(static_cast<int32_t>(load_int(p, 4)));
    if (is_integer(f.type)) return std::to_string(load_int(p, f.size));
    if (f.type == FieldType::Text) return json_string(text_of(f, base));
    std::string text = format_value(f, base);
    return json_string(text.substr(f.name.size() + 3));
}

void add_json_member(std::string &members, const std::string &name, const std::string &value) {
    if (!members.empty()) members += ',';
    members += json_string(name);
    members += ':';
    members += value;
}

std::string json_string(const std::string &s) {
    std::string out = "\"";
    for (unsigned char c : s) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else if (c == '\n') {
            out += "\\n";
        } else if (c == '\r') {
            out += "\\r";
        } else if (c == '\t') {
            out += "\\t";
        } else if (c < 0x20) {
            char b[8];
            std::snprintf(b, sizeof b, "\\u%04x", c);
            out += b;
        } else {
            out += static_cast<char>(c);
        }
    }
    return out + "\"";
}

std::string did_you_mean(const std::string &word, const std::vector<std::string> &candidates) {
    std::vector<std::pair<size_t, std::string>> close;
    const size_t limit = std::max<size_t>(2, word.size() / 4);
    for (const std::string &c : candidates) {
        size_t d = edit_distance(word, c);
        if (d <= limit) close.emplace_back(d, c);
    }
    if (close.empty()) return "";
    std::stable_sort(close.begin(), close.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::string s = "did you mean ";
    for (size_t i = 0; i < close.size() && i < 3; ++i) s += (i ? ", " : "") + close[i].second;
    return s + "?";
}

}  // namespace zesh
