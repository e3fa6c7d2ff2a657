// Chip commands: version, vendor, up mode and access mode.
#include "ze_adapter_cli.h"
#include "ze_chip.h"
#include "ze_cli_handler.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adatper_cli_chip.cpp", false};

using ze::cli::U32Req;

using ze::cli::U16Req;

}  // namespace

extern "C" {

uint32_t ze_adapter_cli_chip_get_version(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, 4, [](U32Req &r) { return ze_chip_get_version(&r.value); });
}

uint32_t ze_adapter_cli_chip_get_vendor(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U16Req, 2, [](U16Req &r) { return ze_chip_get_vendor(&r.value); });
}

uint32_t ze_adapter_cli_chip_set_upmode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, ze::cli::kNoReply,
                         [](U32Req &r) { return ze_chip_set_upmode(r.value); });
}

uint32_t ze_adapter_cli_chip_get_upmode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, 4, [](U32Req &r) { return ze_chip_get_upmode(&r.value); });
}

uint32_t ze_adapter_cli_chip_set_access_mode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, ze::cli::kNoReply,
                         [](U32Req &r) { return ze_chip_set_access_mode(r.value); });
}

uint32_t ze_adapter_cli_chip_get_access_mode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, 4, [](U32Req &r) { return ze_chip_get_access_mode(&r.value); });
}

}  // extern "C"
