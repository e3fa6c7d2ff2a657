// Registration of the command table with the interface manager.
#include <fstream>
#include <regex>

#include "test_support.h"
#include "ze_adapter_cli.h"
#include "ze_adapter_cli_table.h"

namespace {

class Registry : public zetest::SimTest {
protected:
    void TearDown() override {
        ze_host_ifm_fail_at(0, 0);
        ze_host_ifm_clear();
        ze_adapter_cli_init();
        SimTest::TearDown();
    }
};

TEST_F(Registry, RegistersEveryEntryInTableOrder) {
    ze_host_ifm_clear();
    ASSERT_EQ(ze_adapter_cli_init(), 0u);
    ASSERT_EQ(ze_host_ifm_count(), g_ui_adapter_cli_count);
    for (uint32_t i = 0; i < g_ui_adapter_cli_count; ++i) {
        ze_ifm_handler_f h = nullptr;
        EXPECT_STREQ(ze_host_ifm_at(i, &h), g_st_adapter_cli[i].name);
        EXPECT_EQ(h, g_st_adapter_cli[i].handler);
    }
    EXPECT_STREQ(g_st_adapter_cli[0].name, "ze_adapter_cli_chip_get_version");
}

// The 164 commands in registration order, one suffix a line, kept beside
// this file.
std::vector<std::string> registered_commands() {
    std::string path = std::string(__FILE__).substr(0, std::string(__FILE__).rfind('/')) +
                       "/data/registered_commands.txt";
    std::ifstream in(path);
    std::vector<std::string> names;
    for (std::string line; std::getline(in, line);)
        if (!line.empty()) names.push_back(line);
    return names;
}

TEST_F(Registry, HoldsExactlyTheCommandsInTheirOrder) {
    auto names = registered_commands();
    ASSERT_EQ(names.size(), 164u);
    ASSERT_EQ(g_ui_adapter_cli_count, names.size());
    for (uint32_t i = 0; i < g_ui_adapter_cli_count; ++i)
        EXPECT_EQ(std::string(g_st_adapter_cli[i].name), "ze_adapter_cli_" + names[i])
            << "entry " << i;
}

TEST_F(Registry, UnregisteredHandlersExistButCannotBeNamed) {
    const struct {
        const char *name;
        ze_adapter_cli_handler_f handler;
    } hidden[] = {{"ze_adapter_cli_emac_get_llid", ze_adapter_cli_emac_get_llid},
                  {"ze_adapter_cli_emac_set_llid", ze_adapter_cli_emac_set_llid},
                  {"ze_adapter_cli_lsw_phy_set_power", ze_adapter_cli_lsw_phy_set_power}};
    for (const auto &h : hidden) {
        EXPECT_EQ(ze_host_ifm_find(h.name), nullptr) << h.name;
        uint32_t req[2] = {}, reply = 0;
        EXPECT_EQ(h.handler(req, std::string(h.name).ends_with("power") ? 8 : 4, &reply), 0u) << h.name;
    }
}

TEST_F(Registry, StopsAtTheFirstRefusal) {
    const uint32_t k = 3;
    ze_host_ifm_clear();
    ze_host_ifm_fail_at(k, 0x0badc0de);
    EXPECT_EQ(ze_adapter_cli_init(), 0x0badc0deu);
    EXPECT_EQ(ze_host_ifm_count(), k);
    std::smatch m;
    std::string out = console();
    ASSERT_TRUE(std::regex_match(out, m, std::regex("\r\n\\[ERROR CODE=0x0badc0de \\.\\./adapter_cli/"
                                                    "ze_adapter_cli_cmd\\.cpp [0-9]+\\]!{18}\r\n"
                                                    "\\[funcname = (.*)\\]")));
    EXPECT_EQ(m[1].str(), g_st_adapter_cli[k].name);
}

TEST_F(Registry, ExitKeepsRegistrations) {
    uint32_t before = ze_host_ifm_count();
    EXPECT_EQ(ze_adapter_cli_exit(), 0u);
    EXPECT_EQ(ze_host_ifm_count(), before);
}

}  // namespace
