// EPON FEC: selector and LLID rules, and the EPON MAC commands.
#include "test_support.h"
#include "ze_adapter_cli.h"
#include "ze_emac.h"

namespace {

using Emac = zetest::SimTest;
using Ids = std::vector<uint32_t>;

TEST_F(Emac, SelectorChoosesTheBlockAndTheWord) {
    const struct {
        uint32_t llid, selector, block, offset;
    } cases[] = {{0, 0, 0xf00, 0}, {3, 0, 0xf00, 12}, {7, 0, 0xf00, 28}, {0, 1, 0xe50, 0}, {200, 1, 0xe50, 0}};
    for (const auto &c : cases) {
        zesim::clear_log();
        ASSERT_EQ(ze_emac_set_fec(c.llid, c.selector, 0x101 + c.llid), 0u) << c.llid;
        EXPECT_EQ(zesim::commands(), (Ids{c.block, c.block + 1}));
        EXPECT_EQ(zesim::word(c.block, c.offset), 0x101 + c.llid) << "stored unchecked";
        uint8_t fec = 0;
        EXPECT_EQ((Ids{ze_emac_get_fec(c.llid, c.selector, &fec), fec}), (Ids{0, (0x01 + c.llid) & 0xff})) << c.llid;
    }
    EXPECT_EQ(zesim::word(0xf00, 80), 0u) << "the rest of the LLID block is carried";
}

TEST_F(Emac, BadLlidAndUnknownSelectorSendNothing) {
    uint8_t fec = 9;
    EXPECT_EQ((Ids{ze_emac_set_fec(8, 0, 1), ze_emac_get_fec(8, 0, &fec), ze_emac_set_fec(0, 2, 1),
                   ze_emac_get_fec(0, 0xffffffff, &fec)}),
              (Ids{ZE_ERR_PARAM, ZE_ERR_PARAM, ZE_ERR_FAIL, ZE_ERR_FAIL}));
    EXPECT_EQ(fec, 9);
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_TRUE(traces().empty());
}

TEST_F(Emac, SetCommandPrintsItsSizeFirstAndGetCommandPassesFailuresUnfolded) {
    ze_emac_fec_s req{0, 3, 1, {0, 0}};
    uint32_t reply = 0;
    for (uint32_t len : {7u, 9u}) {
        EXPECT_EQ(call("ze_adapter_cli_emac_set_fec", &req, len, &reply), ZE_ERR_PARAM);
        EXPECT_EQ(take_console().rfind("sizeof(ze_emac_fec_s) = 8\r\n[ERROR INPUT NULL PTR", 0), 0u);
    }
    ASSERT_EQ(call("ze_adapter_cli_emac_set_fec", &req, 8, &reply), 0u);
    EXPECT_EQ(console(), "sizeof(ze_emac_fec_s) = 8");
    EXPECT_EQ(zesim::word(0xf00, 12), 1u);
    req.fec = 0;
    EXPECT_EQ((Ids{call("ze_adapter_cli_emac_get_fec", &req, 8, &reply), req.fec}), (Ids{0, 1}));
    req.llid = 8;
    EXPECT_EQ(call("ze_adapter_cli_emac_get_fec", &req, 8, &reply), ZE_ERR_PARAM);
}

TEST_F(Emac, UnregisteredLlidCommandsAnswerWithoutTouchingAnything) {
    uint32_t req = 0x12345678, reply = 0;
    EXPECT_EQ((Ids{ze_adapter_cli_emac_set_llid(&req, 4, &reply), reply, ze_adapter_cli_emac_get_llid(&req, 4, &reply),
                   reply, req, ze_adapter_cli_emac_get_llid(&req, 8, &reply)}),
              (Ids{0, 0, 0, 4, 0x12345678, ZE_ERR_PARAM}));
    EXPECT_TRUE(zesim::log().empty());
}

}  // namespace
