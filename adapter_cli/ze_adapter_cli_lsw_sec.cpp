// Security commands: IP filter modes and rules, source-MAC lists and the
// listings. The rule add and delete commands take the buffer unchecked and
// dump its first 32 bytes first.
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_lsw_sec.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adapter_cli_lsw_sec.cpp", true};
constexpr uint32_t kDumpBytes = 32, kDumpRow = 16;
constexpr uint32_t kRuleReply = 8;

using ze::cli::kNoReply;
using ze::cli::U32PairReq;
using ze::cli::U32Req;

struct PortMacReq {
    uint32_t port;
    uint8_t mac[6];
    uint8_t reserved[2];
};
struct RuleReq {
    uint32_t index;
    ze_lsw_ip_filter_rule_s rule;
};
static_assert(sizeof(PortMacReq) == 12 && sizeof(RuleReq) == 36 && sizeof(ze_lsw_ip_filter_rule_s) == 32);

// Each row of 16 bytes starts with the address of its first byte.
void dump(const uint8_t *p) {
    for (uint32_t i = 0; i < kDumpBytes; ++i) {
        if (i % kDumpRow == 0)
            ze_os_printf("\r\n[0x%08x] : ", static_cast<uint32_t>(reinterpret_cast<uintptr_t>(p + i)));
        ze_os_printf("%02x ", p[i]);
    }
    ze_os_printf("\r\n");
}

}  // namespace

extern "C" {

uint32_t ze_adapter_cli_lsw_sec_set_blackmode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, kNoReply,
                         [](U32PairReq &r) { return ze_lsw_sec_set_blackmode(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_sec_get_blackmode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, 8,
                         [](U32PairReq &r) { return ze_lsw_sec_get_blackmode(r.first, &r.second); });
}

uint32_t ze_adapter_cli_lsw_sec_add_blackmac(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortMacReq, 12, [](PortMacReq &r) { return ze_lsw_sec_add_blackmac(r.port, r.mac); });
}

uint32_t ze_adapter_cli_lsw_sec_del_blackmac(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(PortMacReq, 12, [](PortMacReq &r) { return ze_lsw_sec_del_blackmac(r.port, r.mac); });
}

uint32_t ze_adapter_cli_lsw_sec_diagnose(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, kNoReply, [](U32Req &r) { return ze_lsw_sec_diagnose(r.value); });
}

uint32_t ze_adapter_cli_lsw_sec_set_ip_filtermode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, 8,
                         [](U32PairReq &r) { return ze_lsw_sec_set_ip_filtermode(r.first, r.second); });
}

uint32_t ze_adapter_cli_lsw_sec_get_ip_filtermode(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, 8,
                         [](U32PairReq &r) { return ze_lsw_sec_get_ip_filtermode(r.first, &r.second); });
}

// Unchecked: the buffer is taken as a rule whatever the request length.
uint32_t ze_adapter_cli_lsw_sec_add_ip_filtertable(void *req, uint32_t, uint32_t *reply_len) {
    dump(static_cast<const uint8_t *>(req));
    uint32_t r = ze_lsw_sec_add_ip_filter_table(static_cast<const ze_lsw_ip_filter_rule_s *>(req));
    return ze::cli::finish(kFamily, __func__, __LINE__, r, reply_len, kRuleReply);
}

uint32_t ze_adapter_cli_lsw_sec_del_ip_filtertable(void *req, uint32_t, uint32_t *reply_len) {
    dump(static_cast<const uint8_t *>(req));
    uint32_t r = ze_lsw_sec_del_ip_filter_table(static_cast<const ze_lsw_ip_filter_rule_s *>(req));
    return ze::cli::finish(kFamily, __func__, __LINE__, r, reply_len, kRuleReply);
}

uint32_t ze_adapter_cli_lsw_sec_get_ip_filtertable(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(RuleReq, 36,
                         [](RuleReq &r) { return ze_lsw_sec_get_ip_filter_table(r.index, &r.rule); });
}

}  // extern "C"
