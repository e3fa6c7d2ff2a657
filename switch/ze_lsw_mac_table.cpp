// Static address-table entries, the entry read-out by index and the table
// listing.
#include "ze_dp_block.h"
#include "ze_lsw_mac.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_mac.cpp";
constexpr uint32_t kTableSize = 1024;

// Static entry: added with 0x712, deleted with 0x713, looked up with 0x714.
struct StaticEntry {
    static constexpr uint32_t kAdd = 0x712, kDel = 0x713, kGet = 0x714, kSize = 28;
    static constexpr ze::Bytes<6, kSize> mac{0};
    static constexpr ze::U32<kSize> vlan{8};
    static constexpr ze::U32<kSize> untag{12};
    static constexpr ze::U32<kSize> egress{20};
    static constexpr ze::U32<kSize> age_en{24};
};

// The table entry at an index (read-only).
struct L2Item {
    static constexpr uint32_t kGet = 0x704, kSize = 36;
    static constexpr ze::U32<kSize> index{0};
    static constexpr ze::Bytes<6, kSize> mac{4};
    static constexpr ze::U32<kSize> vlan{12};
    static constexpr ze::U32<kSize> untag{16};
    static constexpr ze::U32<kSize> fid{20};
    static constexpr ze::U32<kSize> egress{24};
    static constexpr ze::U32<kSize> age_en{28};
    static constexpr ze::U32<kSize> valid{32};
};

template <class L>
void put_mac(ze::Block<L> &b, const uint8_t *mac) {
    __builtin_memcpy(b.data() + L::mac.offset, mac, 6);
}

uint32_t send_static(uint32_t cmd, ze::Block<StaticEntry> &b) {
    return ze::dp_send(cmd, b.data(), StaticEntry::kSize);
}

uint32_t read_item(uint32_t index, ze::Block<L2Item> &b) {
    b.set(L2Item::index, index);
    return ze::dp_read(b);
}

// The table, index by index, up to the first failed read.
uint32_t print_table() {
    ze_os_printf("index   mac                 vlan    fid     egr     age_en     untag   \r\n");
    uint32_t r = ZE_OK;
    for (uint32_t i = 0; i < kTableSize; ++i) {
        ze::Block<L2Item> b;
        if ((r = read_item(i, b)) != ZE_OK) break;
        if (b.get(L2Item::valid) != 1) continue;
        const uint8_t *m = b.data() + L2Item::mac.offset;
        ze_os_printf("%-8d%02x:%02x:%02x:%02x:%02x:%02x   %-8d%-8d%-8d%-8d%-8d\r\n", static_cast<int>(i),
                     m[0], m[1], m[2], m[3], m[4], m[5], static_cast<int>(b.get(L2Item::vlan)),
                     static_cast<int>(b.get(L2Item::fid)), static_cast<int>(b.get(L2Item::egress)),
                     static_cast<int>(b.get(L2Item::age_en)), static_cast<int>(b.get(L2Item::untag)));
    }
    return ze::traced(ZE_SITE_AS("ze_lsw_mac_inner_printfl2mac"), r);
}

}  // namespace

extern "C" {

uint32_t ze_lsw_mac_add(const ze_lsw_l2_entry_s *entry) {
    if (!entry) return ZE_ERR_NULL_PTR;
    ze::Block<StaticEntry> b;
    uint32_t bitmap = 0;
    ze_lsw_port_get_bitmap(entry->port, &bitmap);
    b.set(StaticEntry::untag, entry->untag);
    b.set(StaticEntry::age_en, entry->age_en);
    put_mac(b, entry->mac);
    b.set(StaticEntry::vlan, entry->vlan);
    b.set(StaticEntry::egress, bitmap);
    return ze::traced(ZE_SITE, send_static(StaticEntry::kAdd, b));
}

uint32_t ze_lsw_mac_get(ze_lsw_l2_entry_s *entry) {
    if (!entry) return ZE_ERR_NULL_PTR;
    ze::Block<StaticEntry> b;
    put_mac(b, entry->mac);
    b.set(StaticEntry::vlan, entry->vlan);
    uint32_t r = send_static(StaticEntry::kGet, b);
    if (r == ZE_OK) {
        ze_lsw_bitmap_get_port(b.get(StaticEntry::egress), &entry->port);
        entry->untag = static_cast<uint8_t>(b.get(StaticEntry::untag));
        entry->age_en = static_cast<uint8_t>(b.get(StaticEntry::age_en));
    }
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_mac_del(const uint8_t *mac, uint32_t vlan) {
    if (!mac) return ZE_ERR_NULL_PTR;
    ze::Block<StaticEntry> b;
    put_mac(b, mac);
    b.set(StaticEntry::vlan, vlan);
    return ze::traced(ZE_SITE, send_static(StaticEntry::kDel, b));
}

// A unicast entry reports the port of its egress bitmap, a multicast one
// (01:00:5e) the raw bitmap.
uint32_t ze_lsw_mac_get_l2item(uint32_t index, ze_lsw_l2_entry_s *entry) {
    if (!entry) return ZE_ERR_NULL_PTR;
    ze::Block<L2Item> b;
    uint32_t r = read_item(index, b);
    if (r != ZE_OK || b.get(L2Item::valid) != 1) return ze::traced(ZE_SITE, r);
    const uint8_t *mac = b.data() + L2Item::mac.offset;
    uint8_t multicast = 0;
    if ((r = ze::map_err(ze_lsw_mc_mac_check(mac, &multicast))) != ZE_OK) return ze::traced(ZE_SITE, r);
    uint32_t egress = b.get(L2Item::egress);
    if (multicast)
        entry->port = egress;
    else if ((r = ze::map_err(ze_lsw_bitmap_get_port(egress, &entry->port))) != ZE_OK)
        return ze::traced(ZE_SITE, r);
    entry->valid = 1;
    entry->age_en = static_cast<uint8_t>(b.get(L2Item::age_en));
    entry->vlan = static_cast<uint16_t>(b.get(L2Item::vlan));
    __builtin_memcpy(entry->mac, mac, 6);
    entry->untag = static_cast<uint8_t>(b.get(L2Item::untag));
    return ze::traced(ZE_SITE, ZE_OK);
}

uint32_t ze_lsw_mac_diagnose(uint32_t item) {
    if (item == 0) print_table();
    return ZE_OK;
}

}  // extern "C"
