#include "protocol.h"

namespace zesh::serve {

Framing next_frame(std::span<const uint8_t> in, uint32_t &size) {
    if (in.size() < 4) return Framing::Incomplete;
    uint32_t length = ze_ifm_get32(in.data());
    if (length > ZE_IFM_FRAME_MAX - 4) return Framing::TooLarge;
    size = length + 4;
    return in.size() < size ? Framing::Incomplete : Framing::Frame;
}

Header read_header(std::span<const uint8_t> frame) {
    Header h;
    if (frame.size() < ZE_IFM_HEADER_SIZE) return h;
    h.complete = true;
    h.version = ze_ifm_get16(&frame[4]);
    h.kind = ze_ifm_get16(&frame[6]);
    h.tag = ze_ifm_get32(&frame[8]);
    h.flags = ze_ifm_get32(&frame[12]);
    return h;
}

Answer answer_to(const Header &h) {
    Answer a;
    a.kind = h.kind;
    a.tag = h.tag;
    return a;
}

Answer refusal(const Header &h, uint32_t status, std::string why) {
    Answer a = answer_to(h);
    a.status = status;
    a.text = std::move(why);
    return a;
}

void encode(const Answer &a, std::vector<uint8_t> &out) {
    const size_t body = ZE_IFM_ANSWER_SIZE + a.data.size() + a.text.size();
    const size_t at = out.size();
    out.resize(at + ZE_IFM_HEADER_SIZE + ZE_IFM_ANSWER_SIZE);
    uint8_t *p = out.data() + at;
    ze_ifm_put_header(p, static_cast<uint32_t>(body), static_cast<uint16_t>(a.kind | ZE_IFM_ANSWER_BIT),
                      a.tag, a.truncated ? ZE_IFM_ANSWER_TRUNCATED : 0);
    p += ZE_IFM_HEADER_SIZE;
    ze_ifm_put32(p, a.status);
    ze_ifm_put32(p + 4, a.result);
    ze_ifm_put32(p + 8, a.reply_len);
    ze_ifm_put32(p + 12, static_cast<uint32_t>(a.data.size()));
    ze_ifm_put32(p + 16, static_cast<uint32_t>(a.text.size()));
    out.insert(out.end(), a.data.begin(), a.data.end());
    out.insert(out.end(), a.text.begin(), a.text.end());
}

}  // namespace zesh::serve
