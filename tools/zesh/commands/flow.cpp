#include "families.h"

namespace zesh {
namespace {

// A service request: the rule (keys named by their mask bit), the action
// and the forward action code. Only the masks and the forward action must
// be given; a key or action value left out is 0.
#define ZE_SERVICE_FIELDS                                                                       \
    "key_mask:u32@0 n_base:u32@4?0 key10:u8@8?0 key13:u8@9?0 key17:u8@10?0 "                    \
    "key21:u8@11?0 igr_port:u8@12?0 key6:u8@13?0 key5:u16@14?0 "                                \
    "dmac:mac@16?00:00:00:00:00:00 dmac_mask:mac@22?00:00:00:00:00:00 "                         \
    "smac:mac@28?00:00:00:00:00:00 smac_mask:mac@34?00:00:00:00:00:00 dip:ipv4@40?0 "           \
    "dip_mask:ipv4@44?0 sip:ipv4@48?0 sip_mask:ipv4@52?0 key18_19:u16@56?0 "                    \
    "key18_19_masknum:u16@58?0 key7:u16@64?0 key8:u16@66?0 key9_12:u16@68?0 "                   \
    "key11_14:u16@72?0 key15:u8@77?0 key16:u8@78?0 key20:u8@79?0 act_mask:u32@80 "              \
    "egress_port:u32@84?0 ext:u8@88?0 cpri:u8@89?0 spri:u8@90?0 cvlan:u16@92?0 "                \
    "svlan:u16@94?0 fwd_act:u32@100"

#define ZE_MAPPING_KEYS "vlan:u16@12?0 fid:u16@14?0 pri:u16@16?0 fifth:u16@18?0"

const CommandSpec kRows[] = {
    {"flow_add_service", "install an extended-classifier rule with its action; replies its fid", 108, 108, ZE_SERVICE_FIELDS " >fid:u16@104"},
    {"flow_del_service", "remove the service with this rule and action", 108, 108, ZE_SERVICE_FIELDS},
    {"flow_get_service", "find the fid of the service with this rule and action", 108, 108, ZE_SERVICE_FIELDS " >fid:u16@104"},
    {"flow_del_fid", "remove the service named by its fid", 2, kNoReply, "fid:u16@0"},
    {"flow_del_all", "remove every service, then every mapping", 0, kNoReply, "", false},
    {"flow_diagnose", "list the extended (0) or simple (1) classifier", 4, kNoReply, "selector:u32@0", false},
    {"flow_add_mapping", "install a simple-classifier mapping; replies its sfid", 24, 24,
     "=key_mask:u32@0 mode:u32@4?0 =igr:u8@8?0 " ZE_MAPPING_KEYS " dir:u16@20 >sfid:u16@22"},
    {"flow_del_mapping", "remove the mapping with this record", 20, kNoReply, "key_mask:u32@0 mode:u32@4?0 igr:u8@8?0 " ZE_MAPPING_KEYS},
    {"flow_del_mapping_by_sfid", "remove a mapping and its GEM port by sfid", 2, kNoReply, "sfid:u16@0"},
    {"flow_set_mapping_value_select", "no effect; kept for the interface", 8, kNoReply, "first:u32@0 second:u32@4", false},
    {"flow_get_mapping_value_select", "no effect; kept for the interface", 8, kNoReply, "first:u32@0 second:u32@4"},
};

#undef ZE_SERVICE_FIELDS
#undef ZE_MAPPING_KEYS

}  // namespace

const std::span<const CommandSpec> kFlowCommands = kRows;

}  // namespace zesh
