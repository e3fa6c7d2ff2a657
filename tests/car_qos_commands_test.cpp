// The CAR and QoS commands: how their requests reach the API, and the family
// rule (the API's code passes through, the reply length is always set).
#include <cstring>
#include <string>
#include <vector>

#include "rate_support.h"
#include "ze_lsw_car_shadow.h"
#include "ze_lsw_flow_shadow.h"

namespace {

using zetest::Words;

constexpr uint32_t kUnset = 0xabcdu;

class CarQosCommands : public zetest::SimTest {
protected:
    void SetUp() override {
        SimTest::SetUp();
        std::memset(st_sfcmapping, 0, sizeof st_sfcmapping);
        std::memset(g_st_fcar_status, 0, sizeof g_st_fcar_status);
    }
    uint32_t run(const char *suffix, Words &words) {
        reply = kUnset;
        return call(std::string("ze_adapter_cli_") + suffix, words.data(), words.size() * 4,
                    &reply);
    }
    uint32_t reply = kUnset;
};

TEST_F(CarQosCommands, ApiFailuresPassThroughAndTheReplyLengthIsStillSet) {
    zesim::fail(2587, zetest::kBusy);
    Words shaping{3, 0};
    EXPECT_EQ(run("lsw_qos_get_egr_shaping", shaping), ZE_ERR_PARAM);
    EXPECT_EQ(reply, 8u);
    zesim::fail(0xa00, 0x42);
    Words car{0, 0, 0, 0};
    EXPECT_EQ(run("lsw_car_get_simple_car", car), ZE_ERR_FAIL);
    EXPECT_EQ(reply, 16u);
    auto t = traces().back();
    EXPECT_STREQ(t.file, "../adapter_cli/ze_adapter_cli_lsw_car.cpp");
    EXPECT_STREQ(t.func, "ze_adapter_cli_lsw_car_get_simple_car");
}

TEST_F(CarQosCommands, GemportCarSetIsUpstreamWhileGetTakesTheDirection) {
    st_sfcmapping[6].status = 1;
    st_sfcmapping[6].gemport = 40;
    st_sfcmapping[6].mapping.igr = 0x01;
    Words set{40 | 0xffff0000u, 1, 2, 3, 4, 0x1ff, 6};
    ASSERT_EQ(run("lsw_car_set_gemport_car", set), 0u);
    const ze_fcar_status_s &e = g_st_fcar_status[0];
    EXPECT_EQ((Words{e.direction, e.gemport, e.params[4]}), (Words{0, 40, 0xff}));

    Words get{40, 0, 0, 0, 0, 0, 0, 0};
    ASSERT_EQ(run("lsw_car_get_gemport_car", get), 0u);
    EXPECT_EQ(Words(get.begin() + 2, get.end()), (Words{1, 2, 3, 4, 0xff, 6}));
    get = {40, 1, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(run("lsw_car_get_gemport_car", get), ZE_ERR_FAIL);  // no downstream flow
}

TEST_F(CarQosCommands, FlowCarRoundTripsThroughTheRequest) {
    Words set{12, 1, 2, 3, 0xfffffffe, 0x105, 6};
    ASSERT_EQ(run("lsw_car_set_flow_car", set), 0u);
    Words get{12, 0, 0, 0, 0, 0xaabbcc00, 0};
    ASSERT_EQ(run("lsw_car_get_flow_car", get), 0u);
    EXPECT_EQ(Words(get.begin() + 1, get.end()), (Words{1, 2, 3, 0xfffffffe, 0xaabbcc05, 6}));
}

TEST_F(CarQosCommands, InitWredTakesNoRequest) {
    EXPECT_EQ(call("ze_adapter_cli_lsw_car_init_wred", nullptr, 99, nullptr), 0u);
    EXPECT_EQ(zetest::entries_of(0xa0a).size(), 128u);
    EXPECT_EQ(console().find("ERROR"), std::string::npos);
}

TEST_F(CarQosCommands, ByteKeysAndByteOutputs) {
    // The queue buffer takes its queue from the first byte.
    zesim::set_word(2577, 8, 55, {7});
    Words buf{0xffffff07, 0, 0};
    ASSERT_EQ(run("lsw_qos_get_queue_buffer", buf), 0u);
    EXPECT_EQ(buf[2], 55u);
    Words count{0xffffffff};
    ASSERT_EQ(run("lsw_qos_get_queuecount", count), 0u);
    EXPECT_EQ(count[0], 0xffffff08u);  // one byte written
    // The EFC CAR index is the low 16 bits.
    zesim::set_word(0xa02, 12, 9, {5});
    Words efc{0x70005, 0, 0, 0};
    ASSERT_EQ(run("lsw_car_get_efc_car", efc), 0u);
    EXPECT_EQ(efc[2], 9u);
    // The scheduling reply ends before the byte that the API writes at 12.
    zesim::set_word(2579, 4 + 20 * 5 + 16, 0x1234, {2});
    Words sch{2, 5, 0, 0};
    ASSERT_EQ(run("lsw_qos_get_egr_schattr", sch), 0u);
    EXPECT_EQ((Words{reply, sch[3]}), (Words{12, 0x34}));
}

}  // namespace
