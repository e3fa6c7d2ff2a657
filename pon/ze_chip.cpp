// Chip-wide attributes: the global attribute block (up mode, access mode,
// priority selection) and the read-only chip identity block.
#include "ze_chip.h"

#include "ze_blocks_global.h"
#include "ze_dp_block.h"

namespace {

constexpr char kTraceFile[] = "ze_chip.cpp";

struct ChipIdentity {
    static constexpr uint32_t kGet = 0x102, kSize = 28;
    static constexpr ze::U32<kSize> version{12};
    static constexpr ze::U32<kSize> vendor{24};
};

using ze::GlobalAttr;

// The up-mode write records this length although the block is 76 bytes; the
// driver never sees it.
constexpr uint32_t kUpmodeSetRecordedLength = 468;

// Priority selection defaults: mode 5, three (0, 3) pairs and a closing 0.
constexpr uint32_t kPriSelectInit[] = {5, 0, 3, 0, 3, 0, 3, 0};

bool upmode_known(uint32_t mode) { return mode <= 2; }

}  // namespace

extern "C" {

uint32_t ze_chip_init_vlan_pri_select(void) {
    ze::Block<GlobalAttr> b;
    return ze::update(ZE_SITE, b, [](auto &blk) {
        uint32_t off = GlobalAttr::pri_select_mode.offset;
        for (uint32_t v : kPriSelectInit) {
            blk.set_word(off, v);
            off += 4;
        }
    });
}

uint32_t ze_chip_clr_watchdog(void) { return ze::traced(ZE_SITE, ZE_OK); }

uint32_t ze_chip_get_access_mode(uint32_t *mode) {
    if (!mode) return ZE_ERR_NULL_PTR;
    ze::Block<GlobalAttr> b;
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) { *mode = blk.get(GlobalAttr::access_mode); });
}

uint32_t ze_chip_set_access_mode(uint32_t mode) {
    ze::Block<GlobalAttr> b;
    return ze::update(ZE_SITE, b, [&](auto &blk) { blk.set(GlobalAttr::access_mode, mode); });
}

uint32_t ze_chip_get_upmode(uint32_t *mode) {
    if (!mode) return ZE_ERR_NULL_PTR;
    ze::Block<GlobalAttr> b;
    uint32_t r = ze::dp_read(b);
    if (r == 0) {
        uint32_t m = b.get(GlobalAttr::upmode);
        if (upmode_known(m))
            *mode = m;
        else
            r = ZE_ERR_UNKNOWN_VALUE;
    }
    return ze::traced(ZE_SITE, r);
}

// Only 0 and 1 are stored; any other request writes the block back as read
// and reports success.
uint32_t ze_chip_set_upmode(uint32_t mode) {
    ze::Block<GlobalAttr> b;
    uint32_t r = ze::dp_read(b);
    if (r == 0) {
        if (mode == 0 || mode == 1) b.set(GlobalAttr::upmode, mode);
        r = ze::dp_write(b, kUpmodeSetRecordedLength);
    }
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_chip_get_chip_version(uint32_t *version, uint32_t *vendor, uint32_t *flag) {
    if (!version || !vendor || !flag) return ZE_ERR_NULL_PTR;
    ze::Block<ChipIdentity> b;
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) {
        *version = blk.get(ChipIdentity::version);
        *vendor = blk.get(ChipIdentity::vendor);
        *flag = 1;
    });
}

uint32_t ze_chip_get_vendor(uint16_t *vendor) {
    if (!vendor) return ZE_ERR_NULL_PTR;
    ze::Block<ChipIdentity> b;
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) {
        *vendor = static_cast<uint16_t>(blk.get(ChipIdentity::vendor));
    });
}

uint32_t ze_chip_get_version(uint32_t *version) {
    if (!version) return ZE_ERR_NULL_PTR;
    ze::Block<ChipIdentity> b;
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) { *version = blk.get(ChipIdentity::version); });
}

}  // extern "C"
