// GPON MAC commands: AES, GEM mappings, FEC and downstream GEM ports.
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_gmac.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adatper_cli_gmac.cpp", false};

using ze::cli::kNoReply;

struct SetAesReq {
    uint16_t gemport;
    uint16_t aes;
};
struct GetAesReq {
    uint16_t gemport;
    uint8_t aes;
    uint8_t pad;
};
// The GEM port travels at offset 2 and its T-CONT at offset 4.
struct SetGemportReq {
    uint16_t index;
    uint16_t gemport;
    uint32_t tcont;
};
struct GetGemportReq {
    uint16_t index;
    uint16_t gemport;
    uint8_t tcont;
    uint8_t pad[3];
};
struct FecReq {
    uint32_t selector;
    uint8_t fec;
    uint8_t pad[3];
};
using ze::cli::U16Req;
struct DownTypeReq {
    uint16_t gemport;
    uint16_t pad;
    uint32_t type;
};
static_assert(sizeof(SetAesReq) == 4 && sizeof(GetAesReq) == 4 && sizeof(SetGemportReq) == 8 && sizeof(GetGemportReq) == 8);
static_assert(sizeof(FecReq) == 8 && sizeof(DownTypeReq) == 8);

}  // namespace

extern "C" {

uint32_t ze_adapter_cli_gmac_set_aes(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(SetAesReq, kNoReply,
                         [](SetAesReq &r) { return ze_gmac_set_aes(r.gemport, r.aes); });
}

uint32_t ze_adapter_cli_gmac_get_aes(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(GetAesReq, 4, [](GetAesReq &r) { return ze_gmac_get_aes(r.gemport, &r.aes); });
}

uint32_t ze_adapter_cli_gmac_set_gemport(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(SetGemportReq, kNoReply,
                         [](SetGemportReq &r) { return ze_gmac_set_gemport(r.index, r.tcont, r.gemport); });
}

uint32_t ze_adapter_cli_gmac_get_gemport(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(GetGemportReq, 8, [](GetGemportReq &r) {
        return ze_gmac_get_gemport(r.index, &r.tcont, &r.gemport);
    });
}

uint32_t ze_adapter_cli_gmac_set_fec(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(FecReq, kNoReply, [](FecReq &) { return ze_gmac_set_fec(); });
}

uint32_t ze_adapter_cli_gmac_get_fec(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(FecReq, 8, [](FecReq &r) { return ze_gmac_get_fec(r.selector, &r.fec); });
}

uint32_t ze_adapter_cli_gmac_del_gemport(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U16Req, kNoReply, [](U16Req &r) { return ze_gmac_del_gemport(r.value); });
}

uint32_t ze_adapter_cli_gmac_set_down_gemport_type(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(DownTypeReq, kNoReply, [](DownTypeReq &r) {
        return ze_gmac_set_down_gemport_type(r.gemport, r.type);
    });
}

uint32_t ze_adapter_cli_gmac_get_down_gemport_type(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(DownTypeReq, 8, [](DownTypeReq &r) {
        return ze_gmac_get_down_gemport_type(r.gemport, &r.type);
    });
}

uint32_t ze_adapter_cli_gmac_del_down_gemport(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U16Req, kNoReply,
                         [](U16Req &r) { return ze_gmac_del_down_gemport(r.value); });
}

}  // extern "C"
