// Security listings: the source-MAC lists of every port and the IP filter
// rules.
#include "ze_dp_block.h"
#include "ze_lsw_sec.h"
#include "ze_lsw_sec_blocks.h"
#include "ze_lsw_tables.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_sec.cpp";
constexpr uint32_t kModeNames = 4;

using ze::BlackMac;

// A mode without a name prints an empty one.
const char *mode_name(uint32_t mode) { return mode < kModeNames ? g_port_smacmode[mode] : ""; }

uint32_t print_black_macs() {
    uint32_t r = ZE_OK;
    for (uint32_t port = 0; port < ZE_PORT_COUNT; ++port) {
        ze::Block<BlackMac> b;
        b.set(BlackMac::port, port);
        if ((r = ze::dp_read(b)) != ZE_OK) break;
        ze_os_printf("%-8s: %-16s\r\n", g_portname[port], mode_name(b.get(BlackMac::mode)));
        for (uint32_t k = 0; k < BlackMac::kEntries; ++k) {
            if (b.word(BlackMac::valid(k)) != 1) continue;
            const uint8_t *m = b.data() + BlackMac::mac(k);
            ze_os_printf("%02x:%02x:%02x:%02x:%02x:%02x\r\n", m[0], m[1], m[2], m[3], m[4], m[5]);
        }
        ze_os_printf("\r\n");
    }
    return ze::traced(ZE_SITE_AS("ze_lsw_sec_printfbackmac"), r);
}

// The address prints from its last byte to its first.
uint32_t print_ip_filters() {
    ze_os_printf("index     porttype  field     ipversion mask      ip        \r\n");
    for (uint32_t i = 0; i < ZE_LSW_IP_FILTER_COUNT; ++i) {
        ze_lsw_ip_filter_rule_s r;
        if (ze_lsw_sec_get_ip_filter_table(i, &r) != ZE_OK) continue;
        const uint8_t *a = r.ip;
        ze_os_printf("%-10u%-10u%-10u%-10u%-10u%-u.%-u.%-u.%-u.%-u.%-u.%-u.%-u.%-u.%-u.%-u.%-u.%-u.%-u.%-u.%-u\r\n",
                     i, r.porttype, r.field, r.ipversion, r.mask & 0xffu, a[15], a[14], a[13], a[12],
                     a[11], a[10], a[9], a[8], a[7], a[6], a[5], a[4], a[3], a[2], a[1], a[0]);
    }
    return ze::traced(ZE_SITE_AS("ze_lsw_sec_printf_ip_filter"), ZE_OK);
}

}  // namespace

extern "C" {

uint32_t ze_lsw_sec_diagnose(uint32_t item) {
    if (item == 0) print_black_macs();
    if (item == 1) print_ip_filters();
    return ZE_OK;
}

}  // extern "C"
