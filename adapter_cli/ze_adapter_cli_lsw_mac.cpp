// MAC table commands: learning, limits, ageing, static entries and the
// table listing. The ageing-time commands take the buffer unchecked.
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_lsw_mac.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adapter_cli_lsw_mac.cpp", true};

using ze::cli::kNoReply;
using ze::cli::U32PairReq;
using ze::cli::U32Req;

using ze::cli::PortU16Req;
using ze::cli::PortU8Req;
using ze::cli::U8Req;

struct MacDelReq {
    uint16_t vlan;
    uint8_t mac[6];
    uint8_t reserved[4];
};
static_assert(sizeof(MacDelReq) == 12 && sizeof(ze_lsw_l2_entry_s) == 16);

}  // namespace

extern "C" {

// The switching mode has no setting behind it: the request is checked only.
uint32_t ze_adapter_cli_lsw_mac_set_swmode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, kNoReply, [](U32Req &) { return ZE_OK; });
}

uint32_t ze_adapter_cli_lsw_mac_get_swmode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, 4, [](U32Req &) { return ZE_OK; });
}

uint32_t ze_adapter_cli_lsw_mac_set_learn(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, kNoReply,
                         [](U32PairReq &r) { return ze_lsw_mac_set_learn(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_mac_get_learn(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortU8Req, 8, [](PortU8Req &r) { return ze_lsw_mac_get_learn(r.port, &r.value); });
}

uint32_t ze_adapter_cli_lsw_mac_set_learn_fail(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, kNoReply, [](U32Req &r) { return ze_lsw_mac_set_learn_fail(r.value); });
}

uint32_t ze_adapter_cli_lsw_mac_get_learn_fail(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, 4, [](U32Req &r) { return ze_lsw_mac_get_learn_fail(&r.value); });
}

uint32_t ze_adapter_cli_lsw_mac_set_learnmode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, kNoReply, [](U32Req &r) { return ze_lsw_mac_set_learnmode(r.value); });
}

uint32_t ze_adapter_cli_lsw_mac_get_learnmode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, 4, [](U32Req &r) { return ze_lsw_mac_get_learnmode(&r.value); });
}

uint32_t ze_adapter_cli_lsw_mac_set_limitenable(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, kNoReply,
                         [](U32PairReq &r) { return ze_lsw_mac_set_limitenable(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_mac_get_limitenable(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortU8Req, 8,
                         [](PortU8Req &r) { return ze_lsw_mac_get_limitenable(r.port, &r.value); });
}

uint32_t ze_adapter_cli_lsw_mac_set_limitcount(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, kNoReply,
                         [](U32PairReq &r) { return ze_lsw_mac_set_limitcount(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_mac_get_limitcount(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortU16Req, 8,
                         [](PortU16Req &r) { return ze_lsw_mac_get_limitcount(r.port, &r.value); });
}

uint32_t ze_adapter_cli_lsw_mac_set_ageenable(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U8Req, kNoReply, [](U8Req &r) { return ze_lsw_mac_set_ageenable(r.value); });
}

uint32_t ze_adapter_cli_lsw_mac_get_ageenable(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U8Req, 1, [](U8Req &r) { return ze_lsw_mac_get_ageenable(&r.value); });
}

// Unchecked: the word at offset 0 is used whatever the request length.
uint32_t ze_adapter_cli_lsw_mac_set_agetime(void *req, uint32_t, uint32_t *reply_len) {
    uint32_t r = ze_lsw_mac_set_agetime(static_cast<U32Req *>(req)->value);
    return ze::cli::finish(kFamily, __func__, __LINE__, r, reply_len, kNoReply);
}

uint32_t ze_adapter_cli_lsw_mac_get_agetime(void *req, uint32_t, uint32_t *reply_len) {
    uint32_t r = ze_lsw_mac_get_agetime(&static_cast<U32Req *>(req)->value);
    return ze::cli::finish(kFamily, __func__, __LINE__, r, reply_len, 4);
}

uint32_t ze_adapter_cli_lsw_mac_add(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ze_lsw_l2_entry_s, 16, [](ze_lsw_l2_entry_s &e) { return ze_lsw_mac_add(&e); });
}

uint32_t ze_adapter_cli_lsw_mac_get(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ze_lsw_l2_entry_s, 16, [](ze_lsw_l2_entry_s &e) { return ze_lsw_mac_get(&e); });
}

uint32_t ze_adapter_cli_lsw_mac_del(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(MacDelReq, kNoReply, [](MacDelReq &r) { return ze_lsw_mac_del(r.mac, r.vlan); });
}

uint32_t ze_adapter_cli_lsw_mac_diagnose(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, 4, [](U32Req &r) { return ze_lsw_mac_diagnose(r.value); });
}

}  // extern "C"
