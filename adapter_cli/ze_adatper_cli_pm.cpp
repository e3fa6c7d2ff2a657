// Statistics commands. Most requests are empty and the API prints the
// counters; the queue, route and drop-reason commands pass the API the
// address of a local word that holds the buffer address, so they take the
// API's "every instance" path (and the drop reasons refuse it).
#include "ze_adapter_cli.h"
#include "ze_cli_handler.h"
#include "ze_lsw_pm.h"

namespace {

constexpr ze::cli::Family kFamily{"../adapter_cli/ze_adatper_cli_pm.cpp", true};

using ze::cli::U32PairReq;
using ze::cli::U32Req;

// The Ethernet statistic's request: the port, then room for counters that
// the API does not fill.
struct EthStatReq {
    uint32_t port;
    uint8_t counters[404];
};
static_assert(sizeof(EthStatReq) == 408);

using ze::cli::U8Req;

// The argument those three commands pass: the low word of the address of a
// word that holds the buffer address.
template <uint32_t (*Api)(uint32_t)>
uint32_t with_buffer_word(void *req) {
    void *holder = req;
    return Api(static_cast<uint32_t>(reinterpret_cast<uintptr_t>(&holder)));
}

}  // namespace

#define ZE_PM_EMPTY(group, api)                                                                  \
    uint32_t ze_adapter_cli_lsw_pm_##group(void *req, uint32_t req_len, uint32_t *reply_len) {   \
        return ze::cli::handle_empty(kFamily, __func__, __LINE__, req, req_len, reply_len, api); \
    }

#define ZE_PM_BUFFER_WORD(group)                                                                  \
    uint32_t ze_adapter_cli_lsw_pm_##group(void *req, uint32_t req_len, uint32_t *reply_len) {    \
        return ze::cli::handle_empty(kFamily, __func__, __LINE__, req, req_len, reply_len,        \
                                     [req] { return with_buffer_word<ze_lsw_pm_##group>(req); }); \
    }

extern "C" {

uint32_t ze_adapter_cli_lsw_pm_get_eth_statistic(void *req, uint32_t req_len, uint32_t *reply_len) {
    return ZE_CLI_HANDLE(EthStatReq, sizeof(EthStatReq),
                         [](EthStatReq &r) { return ze_lsw_pm_get_eth_statistic(r.port); });
}

uint32_t ze_adapter_cli_lsw_pm_get_epon_tx_statistic(void *req, uint32_t req_len,
                                                     uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U8Req, ze::cli::kNoReply,
                         [](U8Req &r) { return ze_lsw_pm_get_epon_tx_statistic(r.value); });
}

uint32_t ze_adapter_cli_lsw_pm_get_epon_rx_statistic(void *req, uint32_t req_len,
                                                     uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U8Req, ze::cli::kNoReply,
                         [](U8Req &r) { return ze_lsw_pm_get_epon_rx_statistic(r.value); });
}

uint32_t ze_adapter_cli_lsw_pm_get_epon_bandwidth_statistic(void *req, uint32_t req_len,
                                                            uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32PairReq, ze::cli::kNoReply, [](U32PairReq &r) {
        return ze_lsw_pm_get_epon_bandwidth_statistic(r.first, r.second);
    });
}

uint32_t ze_adapter_cli_lsw_pm_get_uni_eth_statistic(void *req, uint32_t req_len,
                                                     uint32_t *reply_len) {
    return ZE_CLI_HANDLE(U32Req, ze::cli::kNoReply,
                         [](U32Req &r) { return ze_lsw_pm_get_uni_eth_statistic(r.value); });
}

ZE_PM_EMPTY(get_epon_statistic, ze_lsw_pm_get_epon_statistic)
ZE_PM_EMPTY(get_epon_alarm_statistic, ze_lsw_pm_get_epon_alarm_statistic)
ZE_PM_EMPTY(get_gpon_ext_statistic, ze_lsw_pm_get_gpon_ext_statistic)
ZE_PM_EMPTY(get_dgtc_sys_statistic, ze_lsw_pm_get_dgtc_sys_statistic)
ZE_PM_EMPTY(get_dgtc_line_statistic, ze_lsw_pm_get_dgtc_line_statistic)
ZE_PM_EMPTY(get_dgem_sys_statistic, ze_lsw_pm_get_dgem_sys_statistic)
ZE_PM_EMPTY(get_ugmac_sys_statistic, ze_lsw_pm_get_ugmac_sys_statistic)
ZE_PM_EMPTY(get_ugmac_line_statistic, ze_lsw_pm_get_ugmac_line_statistic)
ZE_PM_EMPTY(get_eps_pon_statistic, ze_lsw_pm_get_eps_pon_statistic)
ZE_PM_EMPTY(get_gpon_alarm_statistic, ze_lsw_pm_get_gpon_alarm_statistic)
ZE_PM_EMPTY(get_fc_statistic, ze_lsw_pm_get_fc_statistic)
ZE_PM_EMPTY(get_sfc_statistic, ze_lsw_pm_get_sfc_statistic)
ZE_PM_EMPTY(get_efc_statistic, ze_lsw_pm_get_efc_statistic)
ZE_PM_EMPTY(get_thru_reason_statistic, ze_lsw_pm_get_thru_reason_statistic)
ZE_PM_EMPTY(clear_all_statistic, ze_lsw_pm_clear_all_statistic)
ZE_PM_EMPTY(get_cap_statistic, ze_lsw_pm_get_cap_statistic)
ZE_PM_EMPTY(get_cpurtx_statistic, ze_lsw_pm_get_cpurtx_statistic)
ZE_PM_BUFFER_WORD(get_drop_reason_statistic)
ZE_PM_EMPTY(get_rxdma_statistic, ze_lsw_pm_get_rxdma_statistic)
ZE_PM_EMPTY(get_txdma_statistic, ze_lsw_pm_get_txdma_statistic)
ZE_PM_BUFFER_WORD(get_ipv6_statistic)
ZE_PM_EMPTY(get_l2_statistic, ze_lsw_pm_get_l2_statistic)
ZE_PM_EMPTY(get_l3_statistic, ze_lsw_pm_get_l3_statistic)
ZE_PM_EMPTY(get_mcd_statistic, ze_lsw_pm_get_mcd_statistic)
ZE_PM_EMPTY(get_mcm_statistic, ze_lsw_pm_get_mcm_statistic)
ZE_PM_EMPTY(get_mtp_statistic, ze_lsw_pm_get_mtp_statistic)
ZE_PM_EMPTY(get_oam_statistic, ze_lsw_pm_get_oam_statistic)
ZE_PM_EMPTY(get_pa_statistic, ze_lsw_pm_get_pa_statistic)
ZE_PM_EMPTY(get_qm_statistic, ze_lsw_pm_get_qm_statistic)
ZE_PM_BUFFER_WORD(get_queue_statistic)
ZE_PM_EMPTY(get_rt_statistic, ze_lsw_pm_get_rt_statistic)
ZE_PM_EMPTY(get_tocpu_reason_statistic, ze_lsw_pm_get_tocpu_reason_statistic)

}  // extern "C"
