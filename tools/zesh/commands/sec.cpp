#include "families.h"

namespace zesh {
namespace {

// The rule add and delete commands take a 32-byte rule: porttype, field,
// ipversion (0 IPv4, 1 IPv6), mask and the address bytes.
const CommandSpec kRows[] = {
    {"lsw_sec_set_blackmode", 8, kNoReply, "port:u32@0 mode:u32@4"},
    {"lsw_sec_get_blackmode", 8, 8, "port:u32@0 >mode:u32@4"},
    {"lsw_sec_add_blackmac", 12, 12, "port:u32@0 mac:mac@4"},
    {"lsw_sec_del_blackmac", 12, 12, "port:u32@0 mac:mac@4"},
    {"lsw_sec_diagnose", 4, kNoReply, "item:u32@0"},
    {"lsw_sec_set_ip_filtermode", 8, 8, "selector:u32@0 mode:u32@4"},
    {"lsw_sec_get_ip_filtermode", 8, 8, "selector:i32@0 >mode:u32@4"},
    {"lsw_sec_add_ip_filtertable", 32, 8,
     "porttype:u32@0 field:u32@4 ipversion:u32@8 mask:u32@12 ip:ipv4@16 ip_high:bytes12@20", false},
    {"lsw_sec_del_ip_filtertable", 32, 8,
     "porttype:u32@0 field:u32@4 ipversion:u32@8 mask:u32@12 ip:ipv4@16 ip_high:bytes12@20", false},
    {"lsw_sec_get_ip_filtertable", 36, 36,
     "index:u32@0 >porttype:u32@4 >field:u32@8 >ipversion:u32@12 >mask:u32@16 >ip:ipv4@20 >ip_high:bytes12@24"},
};

}  // namespace

const std::span<const CommandSpec> kSecCommands = kRows;

}  // namespace zesh
