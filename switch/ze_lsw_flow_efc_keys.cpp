// Turning a service rule into the key items of extended classifier entries:
// each item holds up to two keys; MAC addresses take a whole item, every
// other key half of one, filled in mask-bit order.
#include <stddef.h>

#include "ze_dp_block.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_flow_shadow.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_flow_function.cpp";
// The conversion whose steps the helpers below log.
constexpr char kGetAttr[] = "ze_lsw_efc_get_attr";

// How a key mask bit turns into key halves.
enum class KeyKind : uint8_t {
    None,     // the ingress port: selects the bitmap, no key
    Mac,      // a whole item: address bytes 0..3 and 4..5
    Ipv4,     // a half: address word with its mask word
    Counted,  // a half: u16 value with the mask count given in the rule
    Single,   // a half: a value without mask
};

struct KeyBit {
    KeyKind kind;
    uint32_t type;    // the datapath's key type
    uint32_t offset;  // of the value in the rule
    uint32_t width;   // of a Single value: 1 or 2 bytes
};

constexpr uint32_t kNoType = 0;

// Mask bits 0..21 in the order the conversion examines them.
const KeyBit kKeyBits[] = {
    {KeyKind::None, kNoType, 0, 0},
    {KeyKind::Mac, 1, offsetof(ze_efc_rule_s, dmac), 0},
    {KeyKind::Mac, 2, offsetof(ze_efc_rule_s, smac), 0},
    {KeyKind::Ipv4, 3, offsetof(ze_efc_rule_s, dip), 0},
    {KeyKind::Ipv4, 4, offsetof(ze_efc_rule_s, sip), 0},
    {KeyKind::Single, 17, offsetof(ze_efc_rule_s, key5), 2},
    {KeyKind::Single, 17, offsetof(ze_efc_rule_s, key6), 1},
    {KeyKind::Single, 6, offsetof(ze_efc_rule_s, key7), 2},
    {KeyKind::Single, 31, offsetof(ze_efc_rule_s, key8), 2},
    {KeyKind::Single, 33, offsetof(ze_efc_rule_s, key9_12), 2},
    {KeyKind::Single, 15, offsetof(ze_efc_rule_s, key10), 1},
    {KeyKind::Single, 5, offsetof(ze_efc_rule_s, key11_14), 2},
    {KeyKind::Single, 34, offsetof(ze_efc_rule_s, key9_12), 2},
    {KeyKind::Single, 28, offsetof(ze_efc_rule_s, key13), 1},
    {KeyKind::Single, 16, offsetof(ze_efc_rule_s, key11_14), 2},
    {KeyKind::Single, 7, offsetof(ze_efc_rule_s, key15), 1},
    {KeyKind::Single, 8, offsetof(ze_efc_rule_s, key16), 1},
    {KeyKind::Single, 9, offsetof(ze_efc_rule_s, key17), 1},
    {KeyKind::Counted, 11, offsetof(ze_efc_rule_s, key18_19), 2},
    {KeyKind::Counted, 17, offsetof(ze_efc_rule_s, key18_19), 2},
    {KeyKind::Single, 14, offsetof(ze_efc_rule_s, key20), 1},
    {KeyKind::Single, 18, offsetof(ze_efc_rule_s, key21), 1},
};

constexpr uint32_t kKnownKeyBits = (1u << (sizeof kKeyBits / sizeof kKeyBits[0])) - 1;
constexpr uint8_t kLastItem = ZE_EFC_ITEM_COUNT - 1;
constexpr uint32_t kWordBits = 32;

uint32_t rule_value(const ze_efc_rule_s &rule, uint32_t offset, uint32_t width) {
    uint32_t v = 0;
    __builtin_memcpy(&v, reinterpret_cast<const uint8_t *>(&rule) + offset, width);
    return v;
}

uint32_t masknum(uint32_t value) {
    uint32_t n = 0;
    ze_lsw_efc_get_masknum(value, &n);
    return n;
}

// A key that fills the next free half: the first half opens the item, the
// second closes it and moves on.
void put_half(uint8_t &index, ze_efc_item_s *items, uint32_t type, uint32_t key, uint32_t count) {
    ze_efc_item_s &it = items[index];
    if (ui_g0status == 0) {
        it.g0 = type;
        it.k0 = key;
        it.m0 = count;
        ui_g0status = 1;
    } else {
        it.g1 = type;
        it.k1 = key;
        it.m1 = count;
        ++index;
        ui_g0status = 0;
    }
}

void put_mac(uint8_t &index, ze_efc_item_s *items, uint32_t type, const uint8_t *addr) {
    const uint8_t *mask = addr + 6;
    ze_efc_item_s &it = items[index];
    it.g0 = type;
    it.g1 = type;
    __builtin_memcpy(&it.k0, addr, 4);
    it.k1 = 0;
    __builtin_memcpy(&it.k1, addr + 4, 2);
    uint32_t head = static_cast<uint32_t>(mask[0]) << 24 | static_cast<uint32_t>(mask[1]) << 16 |
                    static_cast<uint32_t>(mask[2]) << 8 | mask[3];
    uint16_t tail = static_cast<uint16_t>(mask[4] << 8 | mask[5]);
    it.m0 = masknum(~head);
    it.m1 = masknum(static_cast<uint16_t>(~tail));
    ++index;
    if (type == 1)
        ZE_FLOW_DEBUG_AS(kGetAttr, "~~~~dmac   %x:%x:%x:%x:%x:%x \r\n", addr[0], addr[1], addr[2],
                         addr[3], addr[4], addr[5]);
    else
        ZE_FLOW_DEBUG_AS(kGetAttr, "~~~~smac   %x:%x:%x:%x:%x:%x \r\n", addr[0], addr[1], addr[2],
                         addr[3], addr[4], addr[5]);
    ZE_FLOW_DEBUG_AS(kGetAttr, "~~~~uc_index = %d  k0 = %x  k1=%x \r\n", index, it.k0, it.k1);
}

void put_ipv4(uint8_t &index, ze_efc_item_s *items, const KeyBit &k, const ze_efc_rule_s &rule) {
    uint32_t addr = rule_value(rule, k.offset, 4);
    uint32_t mask = rule_value(rule, k.offset + 4, 4);
    uint32_t count = masknum(~mask);
    put_half(index, items, k.type, addr, count);
    if (k.type == 3) {
        ZE_FLOW_DEBUG_AS(kGetAttr, "~~~dip = 0x%x \r\n", addr);
        ZE_FLOW_DEBUG_AS(kGetAttr, "~ui_dipmask = 0x%x \r\n", mask);
        ZE_FLOW_DEBUG_AS(kGetAttr, "~ui_m0 = 0x%x \r\n", count);
    }
}

}  // namespace

extern "C" {

uint32_t ui_g0status;

uint32_t ze_lsw_efc_get_masknum(uint32_t value, uint32_t *count) {
    if (!count) return ze::traced(ZE_SITE, ZE_ERR_NULL_PTR);
    ZE_FLOW_DEBUG("ze_lsw_efc_get_masknum() entry ui_bitmask = %0x\r\n", value);
    uint32_t n = 0;
    while (n < kWordBits && (value >> n & 1u)) ++n;
    *count = n;
    return ZE_OK;
}

uint32_t ze_lsw_efc_get_value(uint8_t *index, ze_efc_item_s *items, uint32_t type0, uint32_t type1,
                              uint32_t value) {
    if (!index || !items) return ze::traced(ZE_SITE, ZE_ERR_NULL_PTR);
    if (*index > kLastItem) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    ZE_FLOW_DEBUG("ze_lsw_efc_get_value() entry %-8d%-8d%-8d%-8d\n", *index, type0, value, type1);
    bool completes = ui_g0status != 0;
    put_half(*index, items, completes ? type1 : type0, value, 0);
    if (completes) ZE_FLOW_DEBUG("ze_lsw_efc_get_value() index:%d  \n", *index);
    // The item now current: after completing one, the next (still empty).
    const ze_efc_item_s past_the_list{};
    const ze_efc_item_s &it = *index <= kLastItem ? items[*index] : past_the_list;
    ZE_FLOW_DEBUG("ze_lsw_efc_get_value() end %-8d%-8d%-8d%-8d\n", it.g0, it.k0, it.g1, it.k1);
    return ZE_OK;
}

uint32_t ze_lsw_efc_get_attr(const ze_efc_rule_s *rule, ze_efc_item_s *items) {
    if (!rule || !items) return ZE_ERR_NULL_PTR;
    ui_g0status = 0;
    uint8_t index = 0;
    const auto *bytes = reinterpret_cast<const uint8_t *>(rule);
    // The mask's known bits, lowest first.
    for (uint32_t bits = rule->key_mask & kKnownKeyBits; bits && index <= kLastItem; bits &= bits - 1) {
        const KeyBit &k = kKeyBits[__builtin_ctz(bits)];
        switch (k.kind) {
            case KeyKind::None:
                break;
            case KeyKind::Mac:
                put_mac(index, items, k.type, bytes + k.offset);
                break;
            case KeyKind::Ipv4:
                put_ipv4(index, items, k, *rule);
                break;
            case KeyKind::Counted:
                put_half(index, items, k.type, rule->key18_19, rule->key18_19_masknum);
                break;
            case KeyKind::Single:
                ze_lsw_efc_get_value(&index, items, k.type, k.type, rule_value(*rule, k.offset, k.width));
                break;
        }
    }
    return ZE_OK;
}

uint32_t ze_lsw_efc_count_itemnum(const ze_efc_item_s *items, uint8_t *count) {
    if (!items || !count) return ZE_ERR_NULL_PTR;
    uint8_t n = 0;
    while (n < ZE_EFC_ITEM_COUNT && (items[n].g0 || items[n].g1)) ++n;
    *count = n;
    return n == ZE_EFC_ITEM_COUNT ? ze::traced(ZE_SITE, ZE_ERR_PARAM) : ZE_OK;
}

}  // extern "C"
