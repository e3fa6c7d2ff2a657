// The CAR and QoS commands: their request layouts, reply-size exceptions and
// the family rule (the API's code passes through, reply length always set).
#include <cstring>
#include <string>
#include <vector>

#include "test_support.h"
#include "ze_lsw_car_shadow.h"
#include "ze_lsw_flow_shadow.h"

namespace {

using zetest::word_at;

constexpr uint32_t kUnset = 0xabcdu;

class CarQosCommands : public zetest::SimTest {
protected:
    void TearDown() override {
        std::memset(st_sfcmapping, 0, sizeof st_sfcmapping);
        std::memset(g_st_fcar_status, 0, sizeof g_st_fcar_status);
        SimTest::TearDown();
    }
    uint32_t run(const char *suffix, std::vector<uint32_t> &words, uint32_t len) {
        reply = kUnset;
        words.resize(len / 4 + 1);
        return call(std::string("ze_adapter_cli_") + suffix, words.data(), len, &reply);
    }
    uint32_t reply = kUnset;
};

TEST_F(CarQosCommands, ApiFailuresPassThroughAndTheReplyLengthIsStillSet) {
    zesim::fail(2587, 0xf0000101);
    std::vector<uint32_t> req{3, 0};
    EXPECT_EQ(run("lsw_qos_get_egr_shaping", req, 8), ZE_ERR_PARAM);
    EXPECT_EQ(reply, 8u);
    zesim::fail(0xa00, 0x42);
    std::vector<uint32_t> car{0, 0, 0, 0};
    EXPECT_EQ(run("lsw_car_get_simple_car", car, 16), ZE_ERR_FAIL);
    EXPECT_EQ(reply, 16u);
    auto t = traces().back();
    EXPECT_STREQ(t.file, "../adapter_cli/ze_adapter_cli_lsw_car.cpp");
    EXPECT_STREQ(t.func, "ze_adapter_cli_lsw_car_get_simple_car");
}

TEST_F(CarQosCommands, SchattrRepliesTwelveBytesOfSixteen) {
    std::vector<uint32_t> set{2, 5, 0x11, 0x1234};
    ASSERT_EQ(run("lsw_qos_set_egr_schattr", set, 16), 0u);
    EXPECT_EQ(reply, kUnset);
    std::vector<uint32_t> get{2, 5, 0, 0};
    ASSERT_EQ(run("lsw_qos_get_egr_schattr", get, 16), 0u);
    EXPECT_EQ(reply, 12u);
    EXPECT_EQ(get[3] & 0xff, 0x34u);
}

TEST_F(CarQosCommands, GemportCarSetIsUpstreamWhileGetTakesTheDirection) {
    st_sfcmapping[6] = {};
    st_sfcmapping[6].status = 1;
    st_sfcmapping[6].gemport = 40;
    st_sfcmapping[6].mapping.igr = 0x01;
    std::vector<uint32_t> set{40 | 0xffff0000u, 1, 2, 3, 4, 0x1ff, 6};
    ASSERT_EQ(run("lsw_car_set_gemport_car", set, 28), 0u);
    EXPECT_EQ(g_st_fcar_status[0].direction, 0u);
    EXPECT_EQ(g_st_fcar_status[0].gemport, 40);
    EXPECT_EQ(g_st_fcar_status[0].params[4], 0xffu);  // parameter 5 is a byte

    std::vector<uint32_t> get{40, 0, 0, 0, 0, 0, 0, 0};
    ASSERT_EQ(run("lsw_car_get_gemport_car", get, 32), 0u);
    EXPECT_EQ(reply, 32u);
    EXPECT_EQ((std::vector<uint32_t>(get.begin() + 2, get.begin() + 8)),
              (std::vector<uint32_t>{1, 2, 3, 4, 0xff, 6}));
    get = {40, 1, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(run("lsw_car_get_gemport_car", get, 32), ZE_ERR_FAIL);  // no downstream flow
    EXPECT_EQ(reply, 32u);
}

TEST_F(CarQosCommands, FlowCarRoundTripsThroughTheRequest) {
    std::vector<uint32_t> set{12, 1, 2, 3, 0xfffffffe, 0x105, 6};
    ASSERT_EQ(run("lsw_car_set_flow_car", set, 28), 0u);
    std::vector<uint32_t> get{12, 0, 0, 0, 0, 0xaabbcc00, 0};
    ASSERT_EQ(run("lsw_car_get_flow_car", get, 28), 0u);
    EXPECT_EQ(reply, 28u);
    EXPECT_EQ((std::vector<uint32_t>(get.begin() + 1, get.begin() + 7)),
              (std::vector<uint32_t>{1, 2, 3, 0xfffffffe, 0xaabbcc05, 6}));
}

TEST_F(CarQosCommands, InitWredTakesNoRequest) {
    EXPECT_EQ(call("ze_adapter_cli_lsw_car_init_wred", nullptr, 99, nullptr), 0u);
    EXPECT_EQ(zetest::entries_of(0xa0a).size(), 128u);
    EXPECT_EQ(console().find("ERROR"), std::string::npos);
}

TEST_F(CarQosCommands, ByteKeysAndByteOutputs) {
    // Queue buffer and queue shaping take the queue from the first byte.
    zesim::set_word(2577, 8, 55, {7});
    std::vector<uint32_t> buf{0xffffff07, 0, 0};
    ASSERT_EQ(run("lsw_qos_get_queue_buffer", buf, 12), 0u);
    EXPECT_EQ(buf[2], 55u);
    std::vector<uint32_t> count{0xffffffff};
    ASSERT_EQ(run("lsw_qos_get_queuecount", count, 4), 0u);
    EXPECT_EQ(count[0], 0xffffff08u);  // one byte written
    // The EFC CAR index is the low 16 bits.
    zesim::set_word(0xa02, 12, 9, {5});
    std::vector<uint32_t> efc{0x70005, 0, 0, 0};
    ASSERT_EQ(run("lsw_car_get_efc_car", efc, 16), 0u);
    EXPECT_EQ(efc[2], 9u);
}

}  // namespace
