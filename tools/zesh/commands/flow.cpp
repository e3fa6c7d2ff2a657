#include "families.h"

namespace zesh {
namespace {

// A service request: the rule (keys named by their mask bit), the action
// and the forward action code.
#define ZE_SERVICE_FIELDS                                                                   \
    "key_mask:u32@0 n_base:u32@4 key10:u8@8 key13:u8@9 key17:u8@10 key21:u8@11 "           \
    "igr_port:u8@12 key6:u8@13 key5:u16@14 dmac:mac@16 dmac_mask:mac@22 smac:mac@28 "      \
    "smac_mask:mac@34 dip:ipv4@40 dip_mask:ipv4@44 sip:ipv4@48 sip_mask:ipv4@52 "          \
    "key18_19:u16@56 key18_19_masknum:u16@58 key7:u16@64 key8:u16@66 key9_12:u16@68 "      \
    "key11_14:u16@72 key15:u8@77 key16:u8@78 key20:u8@79 "                                 \
    "act_mask:u32@80 egress_port:u32@84 ext:u8@88 cpri:u8@89 spri:u8@90 cvlan:u16@92 "     \
    "svlan:u16@94 fwd_act:u32@100"

#define ZE_MAPPING_KEYS "vlan:u16@12 fid:u16@14 pri:u16@16 fifth:u16@18"

const CommandSpec kRows[] = {
    {"flow_add_service", 108, 108, ZE_SERVICE_FIELDS " >fid:u16@104"},
    {"flow_del_service", 108, 108, ZE_SERVICE_FIELDS},
    {"flow_get_service", 108, 108, ZE_SERVICE_FIELDS " >fid:u16@104"},
    {"flow_del_fid", 2, kNoReply, "fid:u16@0"},
    {"flow_del_all", 0, kNoReply, "", false},
    {"flow_diagnose", 4, kNoReply, "selector:u32@0", false},
    {"flow_add_mapping", 24, 24,
     "=key_mask:u32@0 mode:u32@4 =igr:u8@8 " ZE_MAPPING_KEYS " dir:u16@20 >sfid:u16@22"},
    {"flow_del_mapping", 20, kNoReply, "key_mask:u32@0 mode:u32@4 igr:u8@8 " ZE_MAPPING_KEYS},
    {"flow_del_mapping_by_sfid", 2, kNoReply, "sfid:u16@0"},
    {"flow_set_mapping_value_select", 8, kNoReply, "first:u32@0 second:u32@4", false},
    {"flow_get_mapping_value_select", 8, kNoReply, "first:u32@0 second:u32@4"},
};

#undef ZE_SERVICE_FIELDS
#undef ZE_MAPPING_KEYS

}  // namespace

const std::span<const CommandSpec> kFlowCommands = kRows;

}  // namespace zesh
