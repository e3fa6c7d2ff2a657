// VLAN commands: membership, hybrid tag mode, VLAN filter, broadcast egress
// and the listings.
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_lsw_vlan.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adapter_cli_lsw_vlan.cpp", true};

using ze::cli::kNoReply;
using ze::cli::U32PairReq;
using ze::cli::U32Req;

// Port first, VLAN second; the API takes the VLAN first.
struct PortVlanReq {
    uint32_t port;
    uint32_t vlan;
};
struct VlanBitmapReq {
    uint16_t vlan;
    uint16_t reserved;
    uint32_t bitmap;
};
struct TagReq {
    uint16_t port;
    uint16_t reserved;
    uint16_t vlan;
    uint8_t mode;
    uint8_t reserved2;
};
struct FilterGetReq {
    uint32_t port;
    uint8_t value;
    uint8_t reserved[3];
};
using ze::cli::U16Req;
static_assert(sizeof(PortVlanReq) == 8 && sizeof(VlanBitmapReq) == 8 && sizeof(TagReq) == 8 &&
              sizeof(FilterGetReq) == 8);

}  // namespace

extern "C" {

uint32_t ze_adapter_cli_lsw_vlan_add_port(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortVlanReq, kNoReply,
                         [](PortVlanReq &r) { return ze_lsw_vlan_add_port(r.vlan, r.port); });
}

uint32_t ze_adapter_cli_lsw_vlan_del_port(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortVlanReq, kNoReply,
                         [](PortVlanReq &r) { return ze_lsw_vlan_del_port(r.vlan, r.port); });
}

uint32_t ze_adapter_cli_lsw_vlan_get_port(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(VlanBitmapReq, 8,
                         [](VlanBitmapReq &r) { return ze_lsw_vlan_get_port(r.vlan, &r.bitmap); });
}

uint32_t ze_adapter_cli_lsw_vlan_set_tag(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(TagReq, kNoReply, [](TagReq &r) {
        return ze_lsw_vlan_set_hybrid_tagmode(r.vlan, r.port, r.mode);
    });
}

uint32_t ze_adapter_cli_lsw_vlan_get_tag(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(TagReq, 8, [](TagReq &r) {
        return ze_lsw_vlan_get_hybrid_tagmode(r.vlan, r.port, &r.mode);
    });
}

uint32_t ze_adapter_cli_lsw_vlan_set_vlanfilter(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, kNoReply,
                         [](U32PairReq &r) { return ze_lsw_vlan_set_vlanfilter(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_vlan_get_vlanfilter(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(FilterGetReq, 8,
                         [](FilterGetReq &r) { return ze_lsw_vlan_get_vlanfilter(r.port, &r.value); });
}

uint32_t ze_adapter_cli_lsw_vlan_add_vlanbcegr(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortVlanReq, kNoReply,
                         [](PortVlanReq &r) { return ze_lsw_vlan_bc_add_port(r.vlan, r.port); });
}

uint32_t ze_adapter_cli_lsw_vlan_del_vlanbcegr(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortVlanReq, kNoReply,
                         [](PortVlanReq &r) { return ze_lsw_vlan_bc_del_port(r.vlan, r.port); });
}

uint32_t ze_adapter_cli_lsw_vlan_get_vlanbcegr(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(VlanBitmapReq, 8,
                         [](VlanBitmapReq &r) { return ze_lsw_vlan_bc_get_port(r.vlan, &r.bitmap); });
}

uint32_t ze_adapter_cli_lsw_vlan_display_vlanbcegrs(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U16Req, kNoReply, [](U16Req &r) { return ze_lsw_vlan_display_bcegrs(r.value); });
}

uint32_t ze_adapter_cli_lsw_vlan_diagnose(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, kNoReply, [](U32Req &r) { return ze_lsw_vlan_diagnose(r.value); });
}

}  // extern "C"
