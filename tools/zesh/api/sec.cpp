// IP filter rules and source-MAC lists.
#include "ze_lsw_sec.h"
#include "areas.h"
#include "records.h"

namespace zesh::api {

namespace {
#define ZE_IP_RULE "porttype=1 field=2 ipversion=0 mask=32 ip=192.168.1.10"
Typed<const ze_lsw_ip_filter_rule_s *> rule() { return rec_in(kIpRule, "rule", "the IP filter rule"); }
Typed<uint32_t> port() { return u32("port", "port 0-8"); }
}  // namespace

std::span<const Row> sec_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_lsw_sec_get_ip_filtermode, "IP filter mode (selector 0 or 1)", "0", 0, u32("selector", "0 or 1"),
                   out_u32("mode", "the mode")),
        ZE_API_ROW(ze_lsw_sec_set_ip_filtermode, "set an IP filter mode (selector 0 or 1)", "0 1", 0, u32("selector", "0 or 1"),
                   u32("mode", "the mode")),
        ZE_API_ROW(ze_lsw_sec_get_blackmode, "source-MAC list mode of a port", "1", 0, port(),
                   out_u32("mode", "0 IGNORE, 1 WHITE, 2 BACK, 3 THRU")),
        ZE_API_ROW(ze_lsw_sec_set_blackmode, "set the source-MAC list mode of a port", "1 2", 0, port(),
                   u32("mode", "0 IGNORE, 1 WHITE, 2 BACK, 3 THRU")),
        ZE_API_ROW(ze_lsw_sec_add_blackmac, "add a MAC to a port's source-MAC list (42: full)", "1 00:aa:bb:cc:dd:ee", 0, port(),
                   mac("mac", "the address")),
        ZE_API_ROW(ze_lsw_sec_del_blackmac, "remove a MAC from a port's source-MAC list (44: not listed)",
                   {"1 00:aa:bb:cc:dd:ee", "api ze_lsw_sec_add_blackmac 1 00:aa:bb:cc:dd:ee"}, 0, port(), mac("mac", "the address")),
        ZE_API_ROW(ze_lsw_sec_get_ip_filter_table_index, "index of a rule (15 present) or the first free one (0)", ZE_IP_RULE,
                   kNoDriver, rule(), out_u32("index", "the index")),
        ZE_API_ROW(ze_lsw_sec_add_ip_filter_table, "add an IP filter rule", ZE_IP_RULE, 0, rule()),
        ZE_API_ROW(ze_lsw_sec_del_ip_filter_table, "remove an IP filter rule", {ZE_IP_RULE, "api ze_lsw_sec_add_ip_filter_table " ZE_IP_RULE},
                   0, rule()),
        ZE_API_ROW(ze_lsw_sec_get_ip_filter_table, "IP filter rule at an index (14: none)", {"0", "api ze_lsw_sec_add_ip_filter_table " ZE_IP_RULE},
                   0, u32("index", "rule index 0-63"), rec_out(kIpRule, "rule", "the rule")),
        ZE_API_ROW(ze_lsw_sec_diagnose, "list the source-MAC lists (0) or the IP filter rules (1)", "0", 0,
                   u32("item", "0 source-MAC lists, 1 IP rules")),
    };
    return kRows;
}

#undef ZE_IP_RULE

}  // namespace zesh::api
