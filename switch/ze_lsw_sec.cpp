// IP filter modes and the per-port source-MAC (black) lists.
#include "ze_lsw_sec.h"

#include "ze_blocks_l2.h"
#include "ze_dp_block.h"
#include "ze_lsw_sec_blocks.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_sec.cpp";
constexpr uint32_t kSelectors = 2;

using ze::BlackMac;
using ze::FilterMode;

bool holds(const ze::Block<BlackMac> &b, uint32_t k, const uint8_t *mac) {
    return b.word(BlackMac::valid(k)) == 1 && __builtin_memcmp(b.data() + BlackMac::mac(k), mac, 6) == 0;
}

// The first valid entry holding the MAC, or kEntries.
uint32_t find_mac(const ze::Block<BlackMac> &b, const uint8_t *mac) {
    uint32_t k = 0;
    while (k < BlackMac::kEntries && !holds(b, k, mac)) ++k;
    return k;
}

uint32_t read_list(uint32_t port, ze::Block<BlackMac> &b) {
    b.set(BlackMac::port, port);
    return ze::dp_read(b);
}

}  // namespace

extern "C" {

// The output is not tested.
uint32_t ze_lsw_sec_get_ip_filtermode(uint32_t selector, uint32_t *mode) {
    ze::Block<FilterMode> b;
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) {
        if (selector < kSelectors) *mode = blk.get(FilterMode::ip_mode[selector]);
    });
}

uint32_t ze_lsw_sec_set_ip_filtermode(uint32_t selector, uint32_t mode) {
    ze::Block<FilterMode> b;
    return ze::update(ZE_SITE, b, [&](auto &blk) {
        if (selector < kSelectors) blk.set(FilterMode::ip_mode[selector], mode);
    });
}

uint32_t ze_lsw_sec_get_blackmode(uint32_t port, uint32_t *mode) {
    if (!mode) return ZE_ERR_NULL_PTR;
    ze::Block<BlackMac> b;
    b.set(BlackMac::port, port);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) { *mode = blk.get(BlackMac::mode); });
}

uint32_t ze_lsw_sec_set_blackmode(uint32_t port, uint32_t mode) {
    ze::Block<BlackMac> b;
    b.set(BlackMac::port, port);
    return ze::update(ZE_SITE, b, [&](auto &blk) { blk.set(BlackMac::mode, mode); });
}

// A MAC already listed is reported (traced 15) and accepted without a write.
uint32_t ze_lsw_sec_add_blackmac(uint32_t port, const uint8_t *mac) {
    if (!mac) return ZE_ERR_NULL_PTR;
    ze::Block<BlackMac> b;
    uint32_t r = read_list(port, b);
    if (r) return ze::traced(ZE_SITE, r);
    if (find_mac(b, mac) < BlackMac::kEntries) {
        ze::traced(ZE_SITE, ZE_ERR_EXISTS);
        return ZE_OK;
    }
    uint32_t k = 0;
    while (k < BlackMac::kEntries && b.word(BlackMac::valid(k)) != 0) ++k;
    if (k == BlackMac::kEntries) return ze::traced(ZE_SITE, ZE_ERR_BLACKMAC_FULL);
    b.set_word(BlackMac::valid(k), 1);
    __builtin_memcpy(b.data() + BlackMac::mac(k), mac, 6);
    return ze::traced(ZE_SITE, ze::dp_write(b));
}

// The entry is only marked free; its MAC bytes stay.
uint32_t ze_lsw_sec_del_blackmac(uint32_t port, const uint8_t *mac) {
    if (!mac) return ZE_ERR_NULL_PTR;
    ze::Block<BlackMac> b;
    uint32_t r = read_list(port, b);
    if (r) return ze::traced(ZE_SITE, r);
    uint32_t k = find_mac(b, mac);
    if (k == BlackMac::kEntries) return ze::traced(ZE_SITE, ZE_ERR_BLACKMAC_MISSING);
    b.set_word(BlackMac::valid(k), 0);
    return ze::traced(ZE_SITE, ze::dp_write(b));
}

}  // extern "C"
