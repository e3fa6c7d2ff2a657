#include "protocol.h"

#include <algorithm>

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

Bytes call_body(std::string_view name, std::span<const uint8_t> buffer, uint32_t length) {
    auto last = std::find_if(buffer.rbegin(), buffer.rend(), [](uint8_t b) { return b != 0; });
    const size_t filled = static_cast<size_t>(buffer.rend() - last);
    const size_t sent = std::max<size_t>(length, filled), held = std::min(sent, buffer.size());
    BodyWriter b;
    b.u32(length);
    b.u16(static_cast<uint32_t>(name.size()));
    b.u16(static_cast<uint32_t>(sent - length));
    b.bytes(name);
    b.bytes(buffer.first(held));
    b.bytes(Bytes(sent - held, 0));  // a length past the buffer: zeros
    return b.take();
}

Bytes api_body(std::string_view name, const std::vector<Bytes> &args) {
    BodyWriter b;
    b.u16(static_cast<uint32_t>(name.size()));
    b.u16(static_cast<uint32_t>(args.size()));
    b.bytes(name);
    put_args(args, b);
    return b.take();
}

void put_args(const std::vector<Bytes> &args, BodyWriter &out) {
    for (const Bytes &a : args) {
        out.u32(static_cast<uint32_t>(a.size()));
        out.bytes(a);
    }
}

bool take_args(std::span<const uint8_t> in, size_t count, std::vector<Bytes> &args) {
    args.clear();
    for (size_t i = 0; i < count; ++i) {
        if (in.size() < 4 || in.size() - 4 < ze_ifm_get32(in.data())) return false;
        const uint32_t size = ze_ifm_get32(in.data());
        args.emplace_back(in.begin() + 4, in.begin() + 4 + size);
        in = in.subspan(4 + size);
    }
    return in.empty();
}

}  // namespace zesh::serve
