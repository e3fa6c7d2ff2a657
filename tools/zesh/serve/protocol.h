// Frames on the wire (see ze_ifm_wire.h): cutting a client's input into
// frames and encoding answers.
#pragma once

#include <cstdint>
#include <span>
#include <string>
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

}  // namespace zesh::serve
