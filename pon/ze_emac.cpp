// EPON MAC forward error correction: one switch per LLID or one for the MAC.
#include "ze_emac.h"

#include "ze_dp_block.h"

namespace {

constexpr char kTraceFile[] = "ze_emac.cpp";

// One FEC word per LLID at 4 x LLID; the rest of the block is carried.
struct EponLlidFec {
    static constexpr uint32_t kGet = 0xf00, kSet = 0xf01, kSize = 84;
};

struct EponFec {
    static constexpr uint32_t kGet = 0xe50, kSet = 0xe51, kSize = 28;
    static constexpr ze::U32<kSize> fec{0};
};

// Runs `op` on the zeroed block the selector names, with the offset of the
// FEC word in it. A bad LLID gives 18 and an unknown selector 0xffffffff,
// both untraced and with nothing sent.
template <class Op>
uint32_t on_fec_word(uint32_t llid, uint32_t selector, Op &&op) {
    if (selector == ZE_EMAC_FEC_PER_LLID) {
        if (llid >= ZE_EMAC_LLID_COUNT) return ZE_ERR_PARAM;
        ze::Block<EponLlidFec> b;
        return op(b, 4 * llid);
    }
    if (selector == ZE_EMAC_FEC_GLOBAL) {
        ze::Block<EponFec> b;
        return op(b, EponFec::fec.offset);
    }
    return ZE_ERR_FAIL;
}

}  // namespace

extern "C" {

uint32_t ze_emac_get_fec(uint32_t llid, uint32_t selector, uint8_t *fec) {
    const ze::TraceSite site = ZE_SITE;
    return on_fec_word(llid, selector, [&](auto &b, uint32_t off) {
        return ze::fetch(site, b, [&](const auto &blk) { *fec = static_cast<uint8_t>(blk.word(off)); });
    });
}

uint32_t ze_emac_set_fec(uint32_t llid, uint32_t selector, uint32_t fec) {
    const ze::TraceSite site = ZE_SITE;
    return on_fec_word(llid, selector, [&](auto &b, uint32_t off) {
        return ze::update(site, b, [&](auto &blk) { blk.set_word(off, fec); });
    });
}

}  // extern "C"
