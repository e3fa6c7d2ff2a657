// Every row of the shell's command table against its registered handler:
// the registry holds the rows' commands in the same order, a checked handler
// refuses any other length with its family's message, and the reply length,
// the failure folding and the closing trace follow the handler's family.
#include <vector>

#include "command_table.h"
#include "request.h"
#include "test_support.h"
#include "ze_result.h"

namespace {

using zesh::CommandSpec;

class CommandRows : public zetest::SimTest, public ::testing::WithParamInterface<CommandSpec> {
protected:
    std::string full() const { return std::string(zesh::kCliPrefix) + GetParam().name; }
};

// A family's source file and whether it folds every failure into
// 0xffffffff and replies only on success.
struct FamilyRule {
    const char *prefix;
    const char *path;
    bool strict;
};
const FamilyRule kFamilies[] = {
    {"chip_", "../adapter_cli/ze_adatper_cli_chip.cpp", false},
    {"emac_", "../adapter_cli/ze_adapter_cli_emac.cpp", false},
    {"gmac_", "../adapter_cli/ze_adatper_cli_gmac.cpp", false},
    {"flow_", "../adapter_cli/ze_adapter_cli_flow.cpp", false},
    {"lsw_car_", "../adapter_cli/ze_adapter_cli_lsw_car.cpp", false},
    {"lsw_mac_", "../adapter_cli/ze_adapter_cli_lsw_mac.cpp", true},
    {"lsw_phy_", "../adapter_cli/ze_adapter_cli_lsw_phy.cpp", true},
    {"lsw_port_", "../adapter_cli/ze_adapter_cli_lsw_port.cpp", true},
    {"lsw_qos_", "../adapter_cli/ze_adapter_cli_lsw_qos.cpp", false},
    {"lsw_sec_", "../adapter_cli/ze_adapter_cli_lsw_sec.cpp", true},
    {"lsw_vlan_", "../adapter_cli/ze_adapter_cli_lsw_vlan.cpp", true},
    {"lsw_pm_", "../adapter_cli/ze_adatper_cli_pm.cpp", true},
};

const FamilyRule &family_of(const CommandSpec &c) {
    for (const FamilyRule &f : kFamilies)
        if (std::string(c.name).starts_with(f.prefix)) return f;
    ADD_FAILURE() << c.name << " belongs to no family";
    return kFamilies[0];
}

TEST_P(CommandRows, RefusesEveryOtherLength) {
    const CommandSpec &c = GetParam();
    if (!c.checked) GTEST_SKIP() << "the handler does not check its request";
    std::vector<uint8_t> buf(zesh::kRequestBufferSize, 0);
    for (uint32_t len : {c.request + 1, c.request ? c.request - 1 : 4096u}) {
        uint32_t reply = zesh::kReplyUnset;
        EXPECT_EQ(call(full(), buf.data(), len, &reply), ZE_ERR_PARAM) << "length " << len;
        EXPECT_EQ(reply, zesh::kReplyUnset);
    }
    uint32_t reply = zesh::kReplyUnset;
    EXPECT_EQ(call(full(), nullptr, c.request, &reply), ZE_ERR_PARAM);
    EXPECT_EQ(call(full(), buf.data(), c.request, nullptr), ZE_ERR_PARAM);
    EXPECT_TRUE(traces().empty());
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_NE(console().find("\r\n[ERROR INPUT NULL PTR " + std::string(family_of(c).path) + " "),
              std::string::npos);
}

// Once on a working driver, once on one that refuses every command.
TEST_P(CommandRows, RepliesFoldsAndTracesAsItsFamily) {
    const CommandSpec &c = GetParam();
    const FamilyRule &family = family_of(c);
    for (bool driver_fails : {false, true}) {
        if (driver_fails) zesim::fail(0, ZE_DRV_INVALID_PARAM);
        zesh::Request req(c);
        uint32_t reply = zesh::kReplyUnset;
        uint32_t r = call(full(), req.data(), req.length(), &reply);
        bool replied = reply != zesh::kReplyUnset;
        if (c.reply == zesh::kNoReply) {
            EXPECT_FALSE(replied) << "result " << r;
        } else if (family.strict) {
            EXPECT_EQ(replied, r == 0) << "result " << r;
        } else {
            EXPECT_TRUE(replied) << "result " << r;
        }
        EXPECT_TRUE(!replied || reply == static_cast<uint32_t>(c.reply)) << reply;
        EXPECT_TRUE(!family.strict || r == 0 || r == ZE_ERR_FAIL) << r;
        auto recs = traces();
        ASSERT_FALSE(recs.empty());
        EXPECT_STREQ(recs.back().file, family.path);
        EXPECT_EQ(recs.back().func, full());
        EXPECT_EQ(recs.back().result, r);
    }
    EXPECT_EQ(console().find("[ERROR INPUT NULL PTR"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(AllCommands, CommandRows, ::testing::ValuesIn(zesh::all_commands()), zetest::row_name);

class Registered : public zetest::SimTest {};

TEST_F(Registered, SameCommandsInTheSameOrderAsTheRows) {
    auto table = zesh::all_commands();
    ASSERT_EQ(ze_host_ifm_count(), table.size());
    for (uint32_t i = 0; i < table.size(); ++i)
        EXPECT_EQ(std::string(ze_host_ifm_at(i, nullptr)), std::string(zesh::kCliPrefix) + table[i].name)
            << "entry " << i;
}

}  // namespace
