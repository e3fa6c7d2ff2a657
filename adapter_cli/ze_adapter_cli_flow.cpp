// Flow commands: services (extended classifier rules) and mappings (simple
// classifier entries), their removal and the listings.
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_lsw_flow.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adapter_cli_flow.cpp", false};

using ze::cli::kNoReply;

struct ServiceReq {
    ze_efc_rule_s rule;
    ze_efc_action_s action;
    uint32_t fwd_act;
    uint16_t fid;  // reply of add and get
    uint16_t pad;
};
struct MappingReq {
    ze_sfc_mapping_s mapping;  // replied normalised for the direction
    uint16_t dir;
    uint16_t sfid;  // reply
};
using ze::cli::U16Req;
static_assert(sizeof(ServiceReq) == 108 && sizeof(MappingReq) == 24);
static_assert(sizeof(ze_sfc_mapping_s) == 20);

// A removal by record carries no direction: the record is searched exactly
// as sent, i.e. as the add command replied it.
constexpr uint32_t kRecordAsSent = 2;

}  // namespace

extern "C" {

uint32_t ze_adapter_cli_flow_add_service(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ServiceReq, sizeof(ServiceReq), [](ServiceReq &r) {
        return ze_lsw_flow_add_service(&r.rule, &r.action, r.fwd_act, &r.fid);
    });
}

uint32_t ze_adapter_cli_flow_del_service(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ServiceReq, sizeof(ServiceReq), [](ServiceReq &r) {
        return ze_lsw_flow_del_service(&r.rule, &r.action, r.fwd_act);
    });
}

uint32_t ze_adapter_cli_flow_get_service(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ServiceReq, sizeof(ServiceReq), [](ServiceReq &r) {
        return ze_lsw_flow_get_service(&r.rule, &r.action, r.fwd_act, &r.fid);
    });
}

uint32_t ze_adapter_cli_flow_del_fid(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U16Req, kNoReply, [](U16Req &r) { return ze_lsw_flow_del_fid(r.value); });
}

// Unchecked: the request is not looked at.
uint32_t ze_adapter_cli_flow_del_all(void *, uint32_t, uint32_t *reply_len) {
    return ze::cli::finish(kFamily, __func__, __LINE__, ze_lsw_flow_del_all(0, 0, 0, 0), reply_len,
                           kNoReply);
}

// Unchecked but for a null buffer: the selector is the word at offset 0.
uint32_t ze_adapter_cli_flow_diagnose(void *req, uint32_t, uint32_t *reply_len) {
    if (!req) return ZE_ERR_NULL_PTR;
    uint32_t sel = static_cast<ze::cli::U32Req *>(req)->value;
    return ze::cli::finish(kFamily, __func__, __LINE__, ze_lsw_flow_diagnose(sel, 0, 0, 0), reply_len,
                           kNoReply);
}

uint32_t ze_adapter_cli_flow_add_mapping(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(MappingReq, sizeof(MappingReq), [](MappingReq &r) {
        return ze_lsw_flow_add_mapping(&r.mapping, r.dir, &r.sfid);
    });
}

uint32_t ze_adapter_cli_flow_del_mapping(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ze_sfc_mapping_s, kNoReply, [](ze_sfc_mapping_s &m) {
        return ze_lsw_flow_del_mapping(&m, kRecordAsSent);
    });
}

uint32_t ze_adapter_cli_flow_del_mapping_by_sfid(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U16Req, kNoReply,
                         [](U16Req &r) { return ze_lsw_flow_del_mapping_by_sfid(r.value); });
}

// No value selection is kept: the set accepts anything, the get only checks.
uint32_t ze_adapter_cli_flow_set_mapping_value_select(void *, uint32_t, uint32_t *reply_len) {
    return ze::cli::finish(kFamily, __func__, __LINE__, ZE_OK, reply_len, kNoReply);
}

uint32_t ze_adapter_cli_flow_get_mapping_value_select(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ze::cli::U32PairReq, kNoReply, [](ze::cli::U32PairReq &) { return ZE_OK; });
}

}  // extern "C"
