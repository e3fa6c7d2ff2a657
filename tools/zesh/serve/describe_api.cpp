// The describe-API answer's data (layout in ze_ifm_wire.h), read from the
// shell's API table: what a client needs to call every exported function.
#include "api_call.h"
#include "dispatcher.h"

namespace zesh::serve {
namespace {

using api::Role;

uint32_t wire_role(Role r) {
    switch (r) {
        case Role::Value: return ZE_IFM_ROLE_VALUE;
        case Role::In: return ZE_IFM_ROLE_IN;
        case Role::Out: return ZE_IFM_ROLE_OUT;
        case Role::InOut: return ZE_IFM_ROLE_INOUT;
        case Role::Bytes: return ZE_IFM_ROLE_BYTES;
        case Role::Length: return ZE_IFM_ROLE_LENGTH;
        case Role::OutBytes: return ZE_IFM_ROLE_OUT_BYTES;
        case Role::Address: return ZE_IFM_ROLE_ADDRESS;
    }
    return ZE_IFM_ROLE_VALUE;
}

static_assert(api::kNoDriver == ZE_IFM_API_NO_DRIVER && api::kKernelCall == ZE_IFM_API_KERNEL_CALL &&
              api::kDpLibrary == ZE_IFM_API_DP_LIBRARY && api::kWritesBoard == ZE_IFM_API_WRITES_BOARD &&
              api::kRawAnswer == ZE_IFM_API_RAW_ANSWER);

// The parameter a byte string or output buffer goes with.
uint32_t partner(const api::Row &row, const api::Param &p) {
    for (size_t i = 0; p.of && i < row.params.size(); ++i)
        if (std::string_view(row.params[i].name) == p.of) return static_cast<uint32_t>(i);
    return 0xff;
}

void function(BodyWriter &w, const char *area, const api::Row &row) {
    w.text(row.name);
    w.text(area);
    w.text(row.summary);
    w.u32(row.flags);
    w.long_text(api::describe(row));
    w.u8(static_cast<uint32_t>(row.params.size()));
    for (const api::Param &p : row.params) {
        w.text(p.name);
        w.u8(wire_role(p.role));
        w.u8(wire_type(p.field));
        w.u32(p.size);
        w.u16(p.count);
        w.u8(partner(row, p));
        const std::vector<Field> fields = p.fields ? parse_fields(p.fields, p.size, row.name) : std::vector<Field>{};
        w.u8(static_cast<uint32_t>(fields.size()));
        for (const Field &f : fields) {
            w.text(f.name);
            w.u8(wire_type(f.type));
            w.u16(f.offset);
            w.u16(f.size);
        }
    }
}

}  // namespace

std::vector<uint8_t> describe_api() {
    BodyWriter w;
    uint32_t count = 0;
    for (const api::Area &a : api::areas()) count += static_cast<uint32_t>(a.rows.size());
    w.u16(count);
    for (const api::Area &a : api::areas())
        for (const api::Row &r : a.rows) function(w, a.name, r);
    return w.take();
}

}  // namespace zesh::serve
