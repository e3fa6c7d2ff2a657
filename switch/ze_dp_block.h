// Attribute blocks and the get/modify/set exchange every API function makes
// with the datapath driver. Internal to the library.
//
// A block layout is a struct naming the block's commands, its size and its
// fields; field offsets are checked against the size at compile time:
//
//   struct GlobalAttr {
//       static constexpr uint32_t kGet = 0x100, kSet = 0x101, kSize = 76;
//       static constexpr ze::U32<kSize> mtu{0};
//   };
//   ze::Block<GlobalAttr> b;              // zeroed
//   b.set(GlobalAttr::mtu, 1600);
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "ze_lsw_common.h"
#include "ze_ubasic.h"

namespace ze {

inline constexpr uint32_t kModLsw = 0xf8005800;
inline constexpr uint32_t kModBoard = 0xf8005500;

// Reached only when a field lies outside its block, which makes the
// constant evaluation fail and the build stop.
void field_lies_outside_its_block();

template <uint32_t Width, uint32_t Size>
struct Field {
    uint32_t offset;
    consteval Field(uint32_t off) : offset(off) {
        if (off + Width > Size) field_lies_outside_its_block();
    }
};
template <uint32_t Size> using U32 = Field<4, Size>;
template <uint32_t Size> using U16 = Field<2, Size>;
template <uint32_t Size> using U8 = Field<1, Size>;
template <uint32_t N, uint32_t Size> using Bytes = Field<N, Size>;

// A fixed-size byte block on the caller's stack, zeroed at construction.
template <class Layout>
class Block {
public:
    static constexpr uint32_t kSize = Layout::kSize;

    Block() { clear(); }
    void clear() { ze_os_memset(bytes_, 0, kSize); }

    uint8_t *data() { return bytes_; }
    const uint8_t *data() const { return bytes_; }

    uint32_t get(U32<kSize> f) const { return load<uint32_t>(f.offset); }
    uint16_t get(U16<kSize> f) const { return load<uint16_t>(f.offset); }
    uint8_t get(U8<kSize> f) const { return bytes_[f.offset]; }
    void set(U32<kSize> f, uint32_t v) { store(f.offset, v); }
    void set(U16<kSize> f, uint16_t v) { store(f.offset, v); }
    void set(U8<kSize> f, uint8_t v) { bytes_[f.offset] = v; }

    // Word access at an offset computed at run time (indexed arrays of
    // words); the caller keeps the index inside the block.
    uint32_t word(uint32_t off) const { return load<uint32_t>(off); }
    void set_word(uint32_t off, uint32_t v) { store(off, v); }

private:
    template <class T>
    T load(uint32_t off) const {
        T v;
        __builtin_memcpy(&v, bytes_ + off, sizeof v);
        return v;
    }
    template <class T>
    void store(uint32_t off, T v) { __builtin_memcpy(bytes_ + off, &v, sizeof v); }

    alignas(4) uint8_t bytes_[kSize];
};

// Where a trace record comes from: the module's file string and the function.
struct TraceSite {
    const char *file;
    const char *func;
    uint32_t line;
    uint32_t module = kModLsw;
};
#define ZE_SITE (::ze::TraceSite{kTraceFile, __func__, __LINE__})
#define ZE_SITE_AS(name) (::ze::TraceSite{kTraceFile, name, __LINE__})

inline uint32_t trace(const TraceSite &s, uint32_t result, uint32_t v1, uint32_t v2 = 0,
                      uint32_t v3 = 0, uint32_t v4 = 0) {
    ze_log_systrace(s.module, s.file, s.func, s.line, result, v1, v2, v3, v4);
    return result;
}

// The usual exit: the result, the result again and three zeros.
inline uint32_t traced(const TraceSite &s, uint32_t result) { return trace(s, result, result); }

// Folds a non-zero code of the driver or of an inner call: the driver's
// invalid-parameter answer becomes 18, anything else 0xffffffff.
constexpr uint32_t map_err(uint32_t r) {
    return r == 0 ? 0 : r == ZE_DRV_INVALID_PARAM ? ZE_ERR_PARAM : ZE_ERR_FAIL;
}

// ze_hlp_sdk_dp_cmdtype as the library itself calls it: directly, not
// through the exported symbol's PLT entry.
uint32_t dp_command(uint32_t cmd, void *block, uint32_t len, uint32_t *outlen);

// One bracketed command, mapped. `len` is recorded only (it never reaches
// the driver), so a caller may record a length other than the block's.
inline uint32_t dp_send(uint32_t cmd, void *block, uint32_t len) {
    uint32_t outlen = 0;
    return map_err(dp_command(cmd, block, len, &outlen));
}

template <class L>
uint32_t dp_read(Block<L> &b, uint32_t len = L::kSize) { return dp_send(L::kGet, b.data(), len); }
template <class L>
uint32_t dp_write(Block<L> &b, uint32_t len = L::kSize) { return dp_send(L::kSet, b.data(), len); }

// Reads the block (whose key fields the caller has stored), lets `use` copy
// what it needs, and traces the outcome under `site`.
template <class L, class Use>
uint32_t fetch(const TraceSite &site, Block<L> &b, Use &&use) {
    uint32_t r = dp_read(b);
    if (r == 0) use(static_cast<const Block<L> &>(b));
    return traced(site, r);
}

// Get/modify/set: reads the block, lets `edit` change only its own fields,
// writes the whole block back and traces the outcome under `site`. A failed
// read stops before the write.
template <class L, class Edit>
uint32_t update(const TraceSite &site, Block<L> &b, Edit &&edit) {
    uint32_t r = dp_read(b);
    if (r == 0) {
        edit(b);
        r = dp_write(b);
    }
    return traced(site, r);
}

}  // namespace ze
