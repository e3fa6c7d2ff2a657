// Layer-2 blocks: VLAN membership, hybrid tag mode, VLAN filter read-out and
// attributes, L2 attributes, the address table with its static entry
// commands, and the per-VLAN broadcast egress tables.
//
// The address table is the set of stored 0x704 blocks (index 0..1023).
// Static adds take the entry of the same MAC and VLAN, or the lowest free
// index; get and delete of an absent entry answer kErrNoEntry. Broadcast
// egress adds of a port already present in the VLAN's table succeed without
// a second entry; a delete of an absent port answers kErrNoEntry.
#include "areas.h"

namespace zesim {
namespace {

// Answers of the simulated driver's own tables.
constexpr uint32_t kErrNoEntry = 0xf0000110;
constexpr uint32_t kErrTableFull = 0xf0000111;

constexpr uint32_t kL2Items = 1024;
constexpr uint32_t kBcEntries = 32;

// A fresh switch learns on ports 0..6 and ages entries after 300 seconds.
void l2_attr_defaults(uint8_t *b) {
    for (uint32_t p = 0; p < 7; ++p) put_u32(b, 8 + 4 * p, 1);
    put_u32(b, 168, 1);
    put_u32(b, 172, 300);
}

// L2 item (0x704) and static entry (0x712..0x714) fields.
namespace item {
constexpr uint32_t kLength = 36, kMac = 4, kVlan = 12, kUntag = 16, kEgress = 24, kAgeEn = 28,
                   kValid = 32;
}
namespace st {
constexpr uint32_t kLength = 28, kMac = 0, kVlan = 8, kUntag = 12, kEgress = 20, kAgeEn = 24;
}

bool same_entry(const uint8_t *it, const uint8_t *entry) {
    return get_u32(it, item::kValid) == 1 && std::memcmp(it + item::kMac, entry + st::kMac, 6) == 0 &&
           get_u32(it, item::kVlan) == get_u32(entry, st::kVlan);
}

uint8_t *l2_item(uint32_t index) {
    uint8_t key[item::kLength] = {};
    put_u32(key, 0, index);
    return stored_block(0x704, key);
}

// The index holding the entry's MAC and VLAN, or kL2Items.
uint32_t find_item(const uint8_t *entry) {
    uint32_t i = 0;
    while (i < kL2Items && !same_entry(l2_item(i), entry)) ++i;
    return i;
}

uint32_t static_add(uint8_t *entry) {
    uint32_t i = find_item(entry);
    if (i == kL2Items) {
        i = 0;
        while (i < kL2Items && get_u32(l2_item(i), item::kValid) == 1) ++i;
        if (i == kL2Items) return kErrTableFull;
    }
    uint8_t *it = l2_item(i);
    std::memcpy(it + item::kMac, entry + st::kMac, 6);
    put_u32(it, item::kVlan, get_u32(entry, st::kVlan));
    put_u32(it, item::kUntag, get_u32(entry, st::kUntag));
    put_u32(it, item::kEgress, get_u32(entry, st::kEgress));
    put_u32(it, item::kAgeEn, get_u32(entry, st::kAgeEn));
    put_u32(it, item::kValid, 1);
    return 0;
}

uint32_t static_get(uint8_t *entry) {
    uint32_t i = find_item(entry);
    if (i == kL2Items) return kErrNoEntry;
    const uint8_t *it = l2_item(i);
    put_u32(entry, st::kUntag, get_u32(it, item::kUntag));
    put_u32(entry, st::kEgress, get_u32(it, item::kEgress));
    put_u32(entry, st::kAgeEn, get_u32(it, item::kAgeEn));
    return 0;
}

uint32_t static_del(uint8_t *entry) {
    uint32_t i = find_item(entry);
    if (i == kL2Items) return kErrNoEntry;
    uint8_t *it = l2_item(i);
    std::memset(it + 4, 0, item::kLength - 4);
    return 0;
}

// Broadcast egress command (0x716/0x717) fields: VLAN, fid, port, enable.
// The VLAN's table (0x718) holds fid, port, valid per entry.
uint32_t bc_at(uint32_t k) { return 4 + 12 * k; }

uint32_t bc_find(const uint8_t *table, const uint8_t *cmd) {
    uint32_t k = 0;
    while (k < kBcEntries && !(get_u32(table, bc_at(k) + 8) == 1 &&
                               get_u32(table, bc_at(k)) == get_u32(cmd, 4) &&
                               get_u32(table, bc_at(k) + 4) == get_u32(cmd, 8)))
        ++k;
    return k;
}

uint32_t bc_add(uint8_t *cmd) {
    uint8_t *table = stored_block(0x718, cmd);
    if (bc_find(table, cmd) < kBcEntries) return 0;
    uint32_t k = 0;
    while (k < kBcEntries && get_u32(table, bc_at(k) + 8) == 1) ++k;
    if (k == kBcEntries) return kErrTableFull;
    put_u32(table, bc_at(k), get_u32(cmd, 4));
    put_u32(table, bc_at(k) + 4, get_u32(cmd, 8));
    put_u32(table, bc_at(k) + 8, 1);
    return 0;
}

uint32_t bc_del(uint8_t *cmd) {
    uint8_t *table = stored_block(0x718, cmd);
    uint32_t k = bc_find(table, cmd);
    if (k == kBcEntries) return kErrNoEntry;
    std::memset(table + bc_at(k), 0, 12);
    return 0;
}

// The filter read-out reports each port's first filter word of the filter
// mode block (0x40a, word 8 + 4p).
uint32_t vlan_filter_readout(uint8_t *b) {
    const uint8_t *modes = stored_block(0x40a, b);
    for (uint32_t p = 0; p < 7; ++p) put_u32(b, 4 * p, get_u32(modes, 8 + 4 * p));
    return 0;
}

const BlockDesc kBlocks[] = {
    {"VLAN membership", 0x400, 0x401, 32, {{0, 4}}},
    {"hybrid tag mode", 0x343, 0x342, 28, {{0, 4}}},
    {"VLAN filter attributes", 0x406, 0x407, 32},
    {"L2 attributes", 0x700, 0x701, 468, {}, l2_attr_defaults},
    {"L2 table item", 0x704, 0, item::kLength, {{0, 4}}},
    {"VLAN broadcast egress table", 0x718, 0, 388, {{0, 4}}},
};

const ActionDesc kActions[] = {
    {"VLAN filter read-out", 0x404, 28, vlan_filter_readout},
    {"static MAC add", 0x712, st::kLength, static_add},
    {"static MAC delete", 0x713, st::kLength, static_del},
    {"static MAC get", 0x714, st::kLength, static_get},
    {"VLAN broadcast egress add", 0x716, 16, bc_add},
    {"VLAN broadcast egress delete", 0x717, 16, bc_del},
};

}  // namespace

const Area kL2Area{"l2", kBlocks, kActions};

}  // namespace zesim
