// The describe answer's data (layout in ze_ifm_wire.h), read from the
// shell's command tables and the interface manager's registry.
#include <bit>
#include <string_view>

#include "command_table.h"
#include "dispatcher.h"
#include "request.h"
#include "shell.h"
#include "ze_host.h"

namespace zesh::serve {
namespace {

class Writer {
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
    void text(std::string_view s) {
        u8(static_cast<uint32_t>(s.size()));
        out_.insert(out_.end(), s.begin(), s.end());
    }
    std::vector<uint8_t> take() { return std::move(out_); }

private:
    std::vector<uint8_t> out_;
};

uint32_t wire_type(FieldType t) {
    switch (t) {
        case FieldType::U8: return ZE_IFM_FIELD_U8;
        case FieldType::U16: return ZE_IFM_FIELD_U16;
        case FieldType::U32: return ZE_IFM_FIELD_U32;
        case FieldType::I32: return ZE_IFM_FIELD_I32;
        case FieldType::Mac: return ZE_IFM_FIELD_MAC;
        case FieldType::Ipv4: return ZE_IFM_FIELD_IPV4;
        case FieldType::Bytes: return ZE_IFM_FIELD_BYTES;
        case FieldType::U64: return ZE_IFM_FIELD_U64;
        case FieldType::Text: return ZE_IFM_FIELD_TEXT;
    }
    return ZE_IFM_FIELD_BYTES;
}

uint32_t wire_dir(Dir d) {
    return d == Dir::In ? ZE_IFM_DIR_IN : d == Dir::Out ? ZE_IFM_DIR_OUT : ZE_IFM_DIR_INOUT;
}

void command(Writer &w, const char *family, const CommandSpec &c) {
    w.text(c.name);
    w.text(family);
    w.text(c.summary);
    w.u32(c.request);
    w.u32(c.reply == kNoReply ? ZE_IFM_NO_REPLY : static_cast<uint32_t>(c.reply));
    w.u8(c.checked ? 1 : 0);
    const std::vector<Field> fields = fields_of(c);
    w.u8(static_cast<uint32_t>(fields.size()));
    for (const Field &f : fields) {
        w.text(f.name);
        w.u8(wire_type(f.type));
        w.u8(wire_dir(f.dir));
        w.u16(f.offset);
        w.u16(f.size);
        w.u8(f.optional ? 1 : 0);
        w.text(f.fallback);
    }
}

bool registered(const CommandSpec &c) {
    return ze_host_ifm_find((std::string(kCliPrefix) + c.name).c_str()) != nullptr;
}

// The codes the shell names: the library's own codes are small, or
// 0xffffffff.
std::vector<uint32_t> named_codes() {
    std::vector<uint32_t> codes;
    for (uint32_t code = 0; code < 256; ++code)
        if (result_name(code)) codes.push_back(code);
    codes.push_back(0xffffffffu);
    return codes;
}

}  // namespace

std::vector<uint8_t> describe_commands() {
    Writer w;
    w.u8(std::endian::native == std::endian::big ? ZE_IFM_ORDER_BIG : ZE_IFM_ORDER_LITTLE);
    w.u8(ze_host_backend_is_simulator() ? ZE_IFM_BACKEND_SIMULATOR : ZE_IFM_BACKEND_DEVICE);
    uint32_t count = 0;
    for (const CommandSpec &c : all_commands()) count += registered(c) ? 1 : 0;
    w.u16(count);
    w.u32(kRequestBufferSize);
    for (const Family &f : families())
        for (const CommandSpec &c : f.commands)
            if (registered(c)) command(w, f.name, c);
    const std::vector<uint32_t> codes = named_codes();
    w.u16(static_cast<uint32_t>(codes.size()));
    for (uint32_t code : codes) {
        w.u32(code);
        w.text(result_name(code));
        w.text(result_meaning(code));
    }
    return w.take();
}

}  // namespace zesh::serve
