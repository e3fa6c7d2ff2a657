#include "families.h"

namespace zesh {
namespace {

// The rule add and delete commands take a 32-byte rule: porttype, field,
// ipversion (0 IPv4, 1 IPv6), mask and the address bytes.
const CommandSpec kRows[] = {
    {"lsw_sec_set_blackmode", "set the source-MAC list mode of a port", 8, kNoReply, "port:u32@0 mode:u32@4"},
    {"lsw_sec_get_blackmode", "source-MAC list mode of a port", 8, 8, "port:u32@0 >mode:u32@4"},
    {"lsw_sec_add_blackmac", "add a MAC to a port's source-MAC list", 12, 12, "port:u32@0 mac:mac@4"},
    {"lsw_sec_del_blackmac", "remove a MAC from a port's source-MAC list", 12, 12, "port:u32@0 mac:mac@4"},
    {"lsw_sec_diagnose", "list the source-MAC lists (0) or the IP filter rules (1)", 4, kNoReply, "item:u32@0"},
    {"lsw_sec_set_ip_filtermode", "set IP filter mode 0 or 1", 8, 8, "selector:u32@0 mode:u32@4"},
    {"lsw_sec_get_ip_filtermode", "IP filter mode 0 or 1", 8, 8, "selector:i32@0 >mode:u32@4"},
    {"lsw_sec_add_ip_filtertable", "add an IP filter rule", 32, 8,
     "porttype:u32@0 field:u32@4 ipversion:u32@8 mask:u32@12 ip:ipv4@16 ip_high:bytes12@20?00", false},
    {"lsw_sec_del_ip_filtertable", "remove an IP filter rule", 32, 8,
     "porttype:u32@0 field:u32@4 ipversion:u32@8 mask:u32@12 ip:ipv4@16 ip_high:bytes12@20?00", false},
    {"lsw_sec_get_ip_filtertable", "IP filter rule at an index", 36, 36,
     "index:u32@0 >porttype:u32@4 >field:u32@8 >ipversion:u32@12 >mask:u32@16 >ip:ipv4@20 >ip_high:bytes12@24"},
};

}  // namespace

const std::span<const CommandSpec> kSecCommands = kRows;

}  // namespace zesh
