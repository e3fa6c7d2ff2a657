// EPON MAC commands: FEC get and set, and the two LLID commands, which
// answer without doing anything.
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_emac.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adapter_cli_emac.cpp", false};

using ze::cli::U32Req;
static_assert(sizeof(ze_emac_fec_s) == 8);

}  // namespace

extern "C" {

// Announces its request size before anything else, without a line end.
uint32_t ze_adapter_cli_emac_set_fec(void *req, uint32_t req_len, uint32_t *reply_len) {
    ze_os_printf("sizeof(ze_emac_fec_s) = %d", static_cast<int>(sizeof(ze_emac_fec_s)));
    return ZE_CLI_HANDLE(ze_emac_fec_s, ze::cli::kNoReply,
                         [](ze_emac_fec_s &r) { return ze_emac_set_fec(r.llid, r.selector, r.fec); });
}

uint32_t ze_adapter_cli_emac_get_fec(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(ze_emac_fec_s, sizeof(ze_emac_fec_s),
                         [](ze_emac_fec_s &r) { return ze_emac_get_fec(r.llid, r.selector, &r.fec); });
}

uint32_t ze_adapter_cli_emac_get_llid(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, sizeof(U32Req), [](U32Req &) { return ZE_OK; });
}

uint32_t ze_adapter_cli_emac_set_llid(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, ze::cli::kNoReply, [](U32Req &) { return ZE_OK; });
}

}  // extern "C"
