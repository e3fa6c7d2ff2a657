// PHY commands: mode, status and power of a port.
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_lsw_phy.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adapter_cli_lsw_phy.cpp", true};

using ze::cli::kNoReply;
using Req = ze::cli::U32PairReq;  // port, value

}  // namespace

extern "C" {

uint32_t ze_adapter_cli_lsw_phy_get_power(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, sizeof(Req), [](Req &r) { return ze_lsw_phy_get_power(r.first, &r.second); });
}

uint32_t ze_adapter_cli_lsw_phy_set_power(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_phy_set_power(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_phy_set_status(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_phy_set_status(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_phy_get_status(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, sizeof(Req), [](Req &r) { return ze_lsw_phy_get_status(r.first, &r.second); });
}

uint32_t ze_adapter_cli_lsw_phy_set_mode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, kNoReply, [](Req &r) { return ze_lsw_phy_set_mode(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_phy_get_mode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(Req, sizeof(Req), [](Req &r) { return ze_lsw_phy_get_mode(r.first, &r.second); });
}

}  // extern "C"
