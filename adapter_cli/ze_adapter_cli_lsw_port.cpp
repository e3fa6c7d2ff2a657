// Port commands: status, work mode, defaults, pause, loopback, MTU, STP and
// tag actions.
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_lsw_port.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adapter_cli_lsw_port.cpp", true};

using ze::cli::kNoReply;
using ze::cli::U32Req;
using Req = ze::cli::U32PairReq;  // port, value

using ze::cli::PortU16Req;
using ze::cli::PortU8Req;

struct TagActReq {
    uint32_t port;
    uint32_t group;
    uint32_t index;
    uint32_t action;
};
static_assert(sizeof(TagActReq) == 16);

}  // namespace

extern "C" {

uint32_t ze_adapter_cli_lsw_port_set_status(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_port_set_status(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_port_get_status(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortU8Req, sizeof(PortU8Req),
                         [](PortU8Req &r) { return ze_lsw_port_get_status(r.port, &r.value); });
}

uint32_t ze_adapter_cli_lsw_port_set_workmode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_port_set_workmode(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_port_get_workmode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, sizeof(Req), [](Req &r) { return ze_lsw_port_get_workmode(r.first, &r.second); });
}

uint32_t ze_adapter_cli_lsw_port_set_defvlan(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_port_set_defvlan(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_port_get_defvlan(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortU16Req, sizeof(PortU16Req),
                         [](PortU16Req &r) { return ze_lsw_port_get_defvlan(r.port, &r.value); });
}

uint32_t ze_adapter_cli_lsw_port_set_pause(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_port_set_pause(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_port_get_pause(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortU8Req, sizeof(PortU8Req),
                         [](PortU8Req &r) { return ze_lsw_port_get_pause(r.port, &r.value); });
}

uint32_t ze_adapter_cli_lsw_port_set_pausetime(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_port_set_pausetime(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_port_get_pausetime(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, sizeof(Req), [](Req &r) { return ze_lsw_port_get_pausetime(r.first, &r.second); });
}

uint32_t ze_adapter_cli_lsw_port_set_loopback(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_port_set_loopback(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_port_get_loopback(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, sizeof(Req), [](Req &r) { return ze_lsw_port_get_loopback(r.first, &r.second); });
}

uint32_t ze_adapter_cli_lsw_port_set_mtu(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_port_set_mtu(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_port_get_mtu(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, sizeof(Req), [](Req &r) { return ze_lsw_port_get_mtu(r.first, &r.second); });
}

uint32_t ze_adapter_cli_lsw_port_set_pri(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_port_set_defpri(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_port_get_pri(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortU8Req, sizeof(PortU8Req),
                         [](PortU8Req &r) { return ze_lsw_port_get_defpri(r.port, &r.value); });
}

uint32_t ze_adapter_cli_lsw_port_set_stp(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, kNoReply, [](U32Req &r) { return ze_lsw_port_set_stp(r.value); });
}

uint32_t ze_adapter_cli_lsw_port_get_stp(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, sizeof(U32Req), [](U32Req &r) { return ze_lsw_port_get_stp(&r.value); });
}

uint32_t ze_adapter_cli_lsw_port_get_stpstate(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, sizeof(Req), [](Req &r) { return ze_lsw_port_get_stpstate(r.first, &r.second); });
}

uint32_t ze_adapter_cli_lsw_port_set_tag_act(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(TagActReq, kNoReply, [](TagActReq &r) {
        return ze_lsw_port_set_tag_act(r.port, r.group, r.index, r.action);
    });
}

uint32_t ze_adapter_cli_lsw_port_get_tag_act(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(TagActReq, sizeof(TagActReq), [](TagActReq &r) {
        return ze_lsw_port_get_tag_act(r.port, r.group, r.index, &r.action);
    });
}

}  // extern "C"
