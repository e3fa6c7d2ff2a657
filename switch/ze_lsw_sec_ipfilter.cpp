// The IP filter table: 64 rules in the driver, with a shadow of the rules
// added since load that finds duplicates and free slots.
#include "ze_dp_block.h"
#include "ze_lsw_sec.h"
#include "ze_lsw_sec_blocks.h"
#include "ze_lsw_sec_status.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_sec.cpp";
constexpr uint32_t kDeletedField = 5;  // the field code that retires a rule
constexpr uint32_t kIpv4 = 0, kIpv6 = 1;

using ze::IpFilterRule;

uint64_t word64(const ze_lsw_ip_filter_rule_s &r, uint32_t i) {
    uint64_t v;
    __builtin_memcpy(&v, reinterpret_cast<const uint8_t *>(&r) + 8 * i, sizeof v);
    return v;
}

// The whole 32-byte rule, compared as four 64-bit words.
bool same_rule(const ze_lsw_ip_filter_rule_s &a, const ze_lsw_ip_filter_rule_s &b) {
    static_assert(sizeof a == 32);
    return ((word64(a, 0) ^ word64(b, 0)) | (word64(a, 1) ^ word64(b, 1)) | (word64(a, 2) ^ word64(b, 2)) |
            (word64(a, 3) ^ word64(b, 3))) == 0;
}

uint32_t address_bytes(uint32_t ipversion) {
    return ipversion == kIpv4 ? 4 : ipversion == kIpv6 ? 16 : 0;
}

}  // namespace

extern "C" {

ze_ip_filter_status_s st_ip_filter_status[ZE_LSW_IP_FILTER_COUNT];

// One scan: the first slot holding the same rule wins; otherwise the first
// free slot seen on the way.
uint32_t ze_lsw_sec_get_ip_filter_table_index(const ze_lsw_ip_filter_rule_s *rule, uint32_t *index) {
    if (!rule || !index) return ZE_ERR_NULL_PTR;
    uint32_t first_free = ZE_LSW_IP_FILTER_COUNT;
    for (uint32_t i = 0; i < ZE_LSW_IP_FILTER_COUNT; ++i) {
        const ze_ip_filter_status_s &s = st_ip_filter_status[i];
        if (!s.used) {
            if (first_free == ZE_LSW_IP_FILTER_COUNT) first_free = i;
        } else if (same_rule(s.rule, *rule)) {
            *index = i;
            return ze::traced(ZE_SITE, ZE_ERR_EXISTS);
        }
    }
    if (first_free == ZE_LSW_IP_FILTER_COUNT) return ze::traced(ZE_SITE, ZE_ERR_FULL);
    *index = first_free;
    return ze::traced(ZE_SITE, ZE_OK);
}

uint32_t ze_lsw_sec_add_ip_filter_table(const ze_lsw_ip_filter_rule_s *rule) {
    uint32_t index = 0;
    if (ze_lsw_sec_get_ip_filter_table_index(rule, &index)) return ze::traced(ZE_SITE, ZE_ERR_FAIL);
    ze::Block<IpFilterRule> b;
    b.set(IpFilterRule::index, index);
    b.set(IpFilterRule::valid, 1);
    b.set(IpFilterRule::porttype, rule->porttype);
    b.set(IpFilterRule::field, rule->field);
    b.set(IpFilterRule::ipversion, rule->ipversion);
    b.set(IpFilterRule::mask, rule->mask);
    __builtin_memcpy(b.data() + IpFilterRule::ip.offset, rule->ip, address_bytes(rule->ipversion));
    uint32_t r = ze::dp_write(b);
    if (r == ZE_OK) {
        st_ip_filter_status[index].rule = *rule;
        st_ip_filter_status[index].used = 1;
        ze::traced(ZE_SITE_AS("ze_lsw_sec_save_ip_filter_status"), ZE_OK);
    }
    return ze::traced(ZE_SITE, r);
}

// Retires the slot the index search names, whatever it found: an unknown
// rule clears the first free slot, or slot 0 when the table is full.
uint32_t ze_lsw_sec_del_ip_filter_table(const ze_lsw_ip_filter_rule_s *rule) {
    ze::Block<IpFilterRule> b;
    uint32_t index = 0;
    ze_lsw_sec_get_ip_filter_table_index(rule, &index);
    b.set(IpFilterRule::index, index);
    ze::dp_read(b);
    b.clear();
    b.set(IpFilterRule::index, index);
    b.set(IpFilterRule::field, kDeletedField);
    ze::dp_write(b);
    st_ip_filter_status[index] = ze_ip_filter_status_s{};
    ze::traced(ZE_SITE_AS("ze_lsw_sec_del_ip_filter_status"), ZE_OK);
    return ze::traced(ZE_SITE, ZE_OK);
}

uint32_t ze_lsw_sec_get_ip_filter_table(uint32_t index, ze_lsw_ip_filter_rule_s *rule) {
    if (!rule) return ZE_ERR_NULL_PTR;
    ze::Block<IpFilterRule> b;
    b.set(IpFilterRule::index, index);
    uint32_t r = ze::dp_read(b);
    if (r == ZE_OK && b.get(IpFilterRule::valid) == 0) r = ZE_ERR_NOT_FOUND;
    if (r == ZE_OK) {
        rule->porttype = b.get(IpFilterRule::porttype);
        rule->field = b.get(IpFilterRule::field);
        rule->ipversion = b.get(IpFilterRule::ipversion);
        rule->mask = b.get(IpFilterRule::mask);
        __builtin_memcpy(rule->ip, b.data() + IpFilterRule::ip.offset, sizeof rule->ip);
        ze_os_printf(" dmask = %d smask = %d \r\n", static_cast<int>(rule->mask),
                     static_cast<int>(rule->mask));
    }
    return ze::traced(ZE_SITE, r);
}

}  // extern "C"
