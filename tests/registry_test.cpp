// Registration of the command table with the interface manager.
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
