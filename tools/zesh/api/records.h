// The layouts of the API's structures, in the field syntax of the command
// table, offsets from the start of the structure.
#pragma once

#include "../api_table.h"
#include "ze_lsw_car.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_mac.h"
#include "ze_lsw_qos.h"
#include "ze_lsw_sec.h"

namespace zesh::api {

inline constexpr Record<ze_sfc_mapping_s> kMapping{
    "ze_sfc_mapping_s", "key_mask:u32@0 match_mode:u32@4 igr:u8@8 vlan:u16@12 fid:u16@14 pri:u16@16 fifth:u16@18"};

inline constexpr Record<ze_sfc_shadow_s> kSfcShadow{
    "ze_sfc_shadow_s",
    "status:u8@0 tcont:u8@1 gemport:u16@2 key_mask:u32@4 match_mode:u32@8 igr:u8@12 vlan:u16@16 "
    "fid:u16@18 pri:u16@20 fifth:u16@22"};

inline constexpr Record<ze_efc_rule_s> kRule{
    "ze_efc_rule_s",
    "key_mask:u32@0 n_base:u32@4 key10:u8@8 key13:u8@9 key17:u8@10 key21:u8@11 igr_port:u8@12 "
    "key6:u8@13 key5:u16@14 dmac:mac@16 dmac_mask:mac@22 smac:mac@28 smac_mask:mac@34 dip:ipv4@40 "
    "dip_mask:ipv4@44 sip:ipv4@48 sip_mask:ipv4@52 key18_19:u16@56 key18_19_masknum:u16@58 "
    "key7:u16@64 key8:u16@66 key9_12:u16@68 key11_14:u16@72 key15:u8@77 key16:u8@78 key20:u8@79"};

inline constexpr Record<ze_efc_action_s> kAction{
    "ze_efc_action_s", "act_mask:u32@0 egress_port:u32@4 ext:u8@8 cpri:u8@9 spri:u8@10 cvlan:u16@12 svlan:u16@14"};

inline constexpr Record<ze_efc_item_s> kItem{"ze_efc_item_s", "m1:u32@0 m0:u32@4 g1:u32@8 g0:u32@12 k1:u32@16 k0:u32@20"};

inline constexpr Record<ze_lsw_car_param_s> kCarParam{"ze_lsw_car_param_s",
                                                      "p1:u32@0 p2:u32@4 p3:u32@8 p4:i32@12 p5:u8@16 p6:u32@20"};

inline constexpr Record<ze_lsw_l2_entry_s> kL2Entry{
    "ze_lsw_l2_entry_s", "valid:u8@0 age_en:u8@1 vlan:u16@2 mac:mac@4 untag:u8@10 port:u32@12"};

inline constexpr Record<ze_lsw_ip_filter_rule_s> kIpRule{
    "ze_lsw_ip_filter_rule_s", "porttype:u32@0 field:u32@4 ipversion:u32@8 mask:u32@12 ip:ipv4@16 ip_high:bytes12@20"};

inline constexpr Record<ze_lsw_qos_wred_s> kWred{
    "ze_lsw_qos_wred_s",
    "w0:u32@0 w1:u32@4 w2:u32@8 w3:u32@12 w4:u32@16 w5:u32@20 w6:u32@24 w7:u32@28 w8:u32@32 w9:u32@36 w10:u32@40"};

}  // namespace zesh::api
