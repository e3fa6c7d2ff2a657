// The CAR and QoS commands: how their requests reach the API, and the family
// rule (the API's code passes through, the reply length is always set).
#include <string>
#include <vector>

#include "rate_support.h"

namespace {

using zetest::Words;

constexpr uint32_t kUnset = 0xabcdu;

class CarQosCommands : public zetest::RateTest {
protected:
    uint32_t run(const std::string &suffix, Words &words) {
        reply = kUnset;
        return call("ze_adapter_cli_" + suffix, words.data(), words.size() * 4, &reply);
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

TEST_F(CarQosCommands, RequestFieldsReachTheApiAndOutputsLandInTheBuffer) {
    flow(6, 40, zetest::kUp);
    zesim::set_word(2577, 8, 55, {7});
    zesim::set_word(0xa02, 12, 9, {5});
    zesim::set_word(2579, 4 + 20 * 5 + 16, 0x1234, {2});
    const struct {
        const char *cmd;
        Words request, after;
        uint32_t result;
    } steps[] = {
        // The GEM-port CAR set always takes direction 0 and a 16-bit GEM
        // port; its get takes the direction from the request.
        {"lsw_car_set_gemport_car", {0xffff0028, 1, 2, 3, 4, 0x1ff, 6}, {}, 0},
        {"lsw_car_get_gemport_car", {40, 0, 0, 0, 0, 0, 0, 0}, {40, 0, 1, 2, 3, 4, 0xff, 6}, 0},
        {"lsw_car_get_gemport_car", {40, 1, 0, 0, 0, 0, 0, 0}, {}, ZE_ERR_FAIL},
        // The flow CAR's six words go through the API's record and back.
        {"lsw_car_set_flow_car", {12, 1, 2, 3, 0xfffffffe, 0x105, 6}, {}, 0},
        {"lsw_car_get_flow_car", {12, 0, 0, 0, 0, 0xaabbcc00, 0},
         {12, 1, 2, 3, 0xfffffffe, 0xaabbcc05, 6}, 0},
        // Byte and 16-bit keys, byte outputs.
        {"lsw_qos_get_queue_buffer", {0xffffff07, 1, 0}, {0xffffff07, 0, 55}, 0},
        {"lsw_qos_get_queuecount", {0xffffffff}, {0xffffff08}, 0},
        {"lsw_car_get_efc_car", {0x70005, 0, 0, 0}, {0x70005, 0, 9, 0}, 0},
        // The scheduling reply (12 bytes) ends before the byte written at 12.
        {"lsw_qos_get_egr_schattr", {2, 5, 0, 0}, {2, 5, 0, 0x34}, 0},
    };
    for (const auto &s : steps) {
        Words buf = s.request;
        EXPECT_EQ(run(s.cmd, buf), s.result) << s.cmd;
        EXPECT_EQ(buf, s.after.empty() ? s.request : s.after) << s.cmd;
    }
}

TEST_F(CarQosCommands, InitWredTakesNoRequest) {
    EXPECT_EQ(call("ze_adapter_cli_lsw_car_init_wred", nullptr, 99, nullptr), 0u);
    EXPECT_EQ(zetest::entries_of(0xa0a).size(), 128u);
    EXPECT_EQ(console().find("ERROR"), std::string::npos);
}

}  // namespace
