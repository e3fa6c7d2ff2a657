// Every statistic group printed over the fill pattern, compared with its
// golden text: each printed value names the word it came from, so a wrong
// offset, width or pairing changes the text. Regenerate a golden file with
// ZE_UPDATE_GOLDEN=1 only after checking the new text by hand.
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "test_support.h"
#include "ze_lsw_pm.h"

namespace {

struct GroupCase { const char *golden; uint32_t (*print)(); };
void PrintTo(const GroupCase &c, std::ostream *os) { *os << c.golden; }

// A group printed by its function of no argument, golden file of its name.
#define GROUP(name) {#name, ze_lsw_pm_get_##name##_statistic}

const GroupCase kGroups[] = {
    GROUP(rt), GROUP(qm), GROUP(pa), GROUP(oam), GROUP(mtp), GROUP(mcm), GROUP(mcd), GROUP(l3),
    GROUP(l2), GROUP(cpurtx), GROUP(efc), GROUP(sfc), GROUP(fc), GROUP(txdma), GROUP(rxdma),
    GROUP(cap), GROUP(gpon_alarm), GROUP(eps_pon), GROUP(ugmac_sys), GROUP(dgem_sys),
    GROUP(dgtc_line), GROUP(dgtc_sys), GROUP(gpon_ext), GROUP(epon_alarm), GROUP(epon),
    GROUP(tocpu_reason), GROUP(thru_reason),
    {"uni_eth_port3", [] { return ze_lsw_pm_get_uni_eth_statistic(3); }},
    {"epon_rx_llid2", [] { return ze_lsw_pm_get_epon_rx_statistic(2); }},
    {"epon_tx_llid2", [] { return ze_lsw_pm_get_epon_tx_statistic(2); }},
    {"epon_rx_llid8", [] { return ze_lsw_pm_get_epon_rx_statistic(8); }},
    {"drop_reason_port1", [] { return ze_lsw_pm_get_drop_reason_statistic(1); }},
    {"ipv6_index3", [] { return ze_lsw_pm_get_ipv6_statistic(3); }},
};

class PmGroups : public zetest::SimTest, public ::testing::WithParamInterface<GroupCase> {};

TEST_P(PmGroups, PrintsItsTableOverTheFillPattern) {
    zesim::fill_counters();
    ASSERT_EQ(GetParam().print(), 0u);
    const std::string path = std::string(__FILE__).substr(0, std::string(__FILE__).rfind('/')) +
                             "/golden/pm/" + GetParam().golden + ".txt";
    if (std::getenv("ZE_UPDATE_GOLDEN")) std::ofstream(path, std::ios::binary) << console();
    std::ifstream in(path, std::ios::binary);
    EXPECT_EQ(console(), std::string(std::istreambuf_iterator<char>(in), {})) << path;
    EXPECT_TRUE(traces().empty());  // the success path leaves no trace record
}

INSTANTIATE_TEST_SUITE_P(All, PmGroups, ::testing::ValuesIn(kGroups),
                         [](const auto &info) { return std::string(info.param.golden); });

}  // namespace
