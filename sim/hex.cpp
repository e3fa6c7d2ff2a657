// Blocks as text: the hex form of the state file and of recordings.
#include "ze_sim.h"

namespace zesim {

std::string to_hex(std::span<const uint8_t> bytes) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string s;
    s.reserve(2 * bytes.size());
    for (uint8_t b : bytes) {
        s += kDigits[b >> 4];
        s += kDigits[b & 0xf];
    }
    return s;
}

namespace {
int digit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}
}  // namespace

bool from_hex(std::string_view text, Bytes &out) {
    if (text.size() % 2) return false;
    Bytes bytes(text.size() / 2);
    for (size_t i = 0; i < bytes.size(); ++i) {
        const int hi = digit(text[2 * i]), lo = digit(text[2 * i + 1]);
        if (hi < 0 || lo < 0) return false;
        bytes[i] = static_cast<uint8_t>(hi << 4 | lo);
    }
    out = std::move(bytes);
    return true;
}

}  // namespace zesim
