// Every statistic group printed over the fill pattern, compared with its
// golden text: each printed value names the word it came from, so a wrong
// offset, width or pairing changes the text. Regenerate a golden file with
// ZE_UPDATE_GOLDEN=1 only after checking the new text by hand.
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "test_support.h"
#include "ze_lsw_pm.h"

namespace {

struct GroupCase {
    const char *golden;
    uint32_t (*print)();
};

const GroupCase kGroups[] = {
    {"rt", ze_lsw_pm_get_rt_statistic},
    {"qm", ze_lsw_pm_get_qm_statistic},
    {"pa", ze_lsw_pm_get_pa_statistic},
    {"oam", ze_lsw_pm_get_oam_statistic},
    {"mtp", ze_lsw_pm_get_mtp_statistic},
    {"mcm", ze_lsw_pm_get_mcm_statistic},
    {"mcd", ze_lsw_pm_get_mcd_statistic},
    {"l3", ze_lsw_pm_get_l3_statistic},
    {"l2", ze_lsw_pm_get_l2_statistic},
    {"cpurtx", ze_lsw_pm_get_cpurtx_statistic},
    {"efc", ze_lsw_pm_get_efc_statistic},
    {"sfc", ze_lsw_pm_get_sfc_statistic},
    {"fc", ze_lsw_pm_get_fc_statistic},
    {"txdma", ze_lsw_pm_get_txdma_statistic},
    {"rxdma", ze_lsw_pm_get_rxdma_statistic},
    {"cap", ze_lsw_pm_get_cap_statistic},
    {"uni_eth_port3", [] { return ze_lsw_pm_get_uni_eth_statistic(3); }},
    {"gpon_alarm", ze_lsw_pm_get_gpon_alarm_statistic},
    {"eps_pon", ze_lsw_pm_get_eps_pon_statistic},
    {"ugmac_sys", ze_lsw_pm_get_ugmac_sys_statistic},
    {"dgem_sys", ze_lsw_pm_get_dgem_sys_statistic},
    {"dgtc_line", ze_lsw_pm_get_dgtc_line_statistic},
    {"dgtc_sys", ze_lsw_pm_get_dgtc_sys_statistic},
    {"gpon_ext", ze_lsw_pm_get_gpon_ext_statistic},
    {"epon_alarm", ze_lsw_pm_get_epon_alarm_statistic},
    {"epon", ze_lsw_pm_get_epon_statistic},
    {"epon_rx_llid2", [] { return ze_lsw_pm_get_epon_rx_statistic(2); }},
    {"epon_tx_llid2", [] { return ze_lsw_pm_get_epon_tx_statistic(2); }},
    {"epon_rx_llid8", [] { return ze_lsw_pm_get_epon_rx_statistic(8); }},
    {"drop_reason_port1", [] { return ze_lsw_pm_get_drop_reason_statistic(1); }},
    {"tocpu_reason", ze_lsw_pm_get_tocpu_reason_statistic},
    {"thru_reason", ze_lsw_pm_get_thru_reason_statistic},
    {"ipv6_index3", [] { return ze_lsw_pm_get_ipv6_statistic(3); }},
};

std::string golden_path(const char *name) {
    std::string here = __FILE__;
    return here.substr(0, here.rfind('/')) + "/golden/pm/" + name + ".txt";
}

std::string read_file(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

class PmGroups : public zetest::SimTest, public ::testing::WithParamInterface<GroupCase> {};

TEST_P(PmGroups, PrintsItsTableOverTheFillPattern) {
    zesim::fill_counters();
    ASSERT_EQ(GetParam().print(), 0u);
    const std::string path = golden_path(GetParam().golden);
    if (std::getenv("ZE_UPDATE_GOLDEN")) std::ofstream(path, std::ios::binary) << console();
    EXPECT_EQ(console(), read_file(path)) << path;
    EXPECT_TRUE(traces().empty());  // the success path leaves no trace record
}

INSTANTIATE_TEST_SUITE_P(All, PmGroups, ::testing::ValuesIn(kGroups),
                         [](const auto &info) { return std::string(info.param.golden); });

}  // namespace
