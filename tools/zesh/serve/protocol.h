// Frames on the wire (see ze_ifm_wire.h): cutting a client's input into
// frames, encoding answers, and the request bodies a client builds.
#pragma once

#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ze_ifm_wire.h"

namespace zesh::serve {

// What the front of a client's input holds.
enum class Framing { Incomplete, Frame, TooLarge };
// On Frame, `size` is the whole frame's size, length word included.
Framing next_frame(std::span<const uint8_t> in, uint32_t &size);

// A frame's header fields, read as far as the frame holds them.
struct Header {
    bool complete = false;  // the frame holds a whole header
    uint16_t version = 0;
    uint16_t kind = 0;
    uint32_t tag = 0;
    uint32_t flags = 0;
};
Header read_header(std::span<const uint8_t> frame);
inline std::span<const uint8_t> body_of(std::span<const uint8_t> frame) {
    return frame.subspan(ZE_IFM_HEADER_SIZE);
}

struct Answer {
    uint16_t kind = 0;  // the request's kind (0: its header could not be read)
    uint32_t tag = 0;
    uint32_t status = ZE_IFM_STATUS_OK;
    uint32_t result = 0;
    uint32_t reply_len = ZE_IFM_NO_REPLY;
    std::span<const uint8_t> data;
    std::string text;
    bool truncated = false;
};

// An answer to the request with this header (its kind and tag).
Answer answer_to(const Header &h);
// An error answer: a status and why.
Answer refusal(const Header &h, uint32_t status, std::string why);

// Appends the answer's frame.
void encode(const Answer &a, std::vector<uint8_t> &out);

using Bytes = std::vector<uint8_t>;

// A body built field by field: big-endian integers, and texts after their
// length (a u8, or a u16 for the long ones).
class BodyWriter {
public:
    void u8(uint32_t v) { out_.push_back(static_cast<uint8_t>(v)); }
    void u16(uint32_t v) {
        out_.resize(out_.size() + 2);
        ze_ifm_put16(&out_[out_.size() - 2], static_cast<uint16_t>(v));
    }
    void u32(uint32_t v) {
        out_.resize(out_.size() + 4);
        ze_ifm_put32(&out_[out_.size() - 4], v);
    }
    void bytes(std::span<const uint8_t> b) { append(b.data(), b.size()); }
    void bytes(std::string_view s) { append(s.data(), s.size()); }
    void text(std::string_view s) {
        u8(static_cast<uint32_t>(s.size()));
        bytes(s);
    }
    void long_text(std::string_view s) {
        u16(static_cast<uint32_t>(s.size()));
        bytes(s);
    }
    Bytes take() { return std::move(out_); }

private:
    void append(const void *p, size_t n) {
        const size_t at = out_.size();
        out_.resize(at + n);
        if (n) std::memcpy(out_.data() + at, p, n);
    }

    Bytes out_;
};

// A call of command `name` with the first `length` bytes of `buffer` as its
// request; the buffer's bytes past them go along up to its last non-zero
// byte, since the handlers that do not check their length read them.
Bytes call_body(std::string_view name, std::span<const uint8_t> buffer, uint32_t length);

// An API call: the function's name, then its parameters.
Bytes api_body(std::string_view name, const std::vector<Bytes> &args);
// The parameters of an API request or answer: per parameter a u32 size and
// its bytes. Reading takes exactly `count` of them and all of `in`.
void put_args(const std::vector<Bytes> &args, BodyWriter &out);
bool take_args(std::span<const uint8_t> in, size_t count, std::vector<Bytes> &args);

}  // namespace zesh::serve
