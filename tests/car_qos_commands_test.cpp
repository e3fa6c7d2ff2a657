// The CAR and QoS commands: how their requests reach the API, that the API's
// code passes through unfolded, and where outputs land in the buffer.
#include "rate_support.h"

namespace {

using zetest::Words;
using CarQosCommands = zetest::RateTest;

TEST_F(CarQosCommands, RequestFieldsReachTheApiAndOutputsLandInTheBuffer) {
    ZE_LITTLE_ENDIAN_LAYOUT("the requests pack 16-bit and byte fields into words, and the queue count "
                            "lands in the first byte of its word");
    flow(6, 40, zetest::kUp);
    zesim::set_word(2577, 8, 55, {7});
    zesim::set_word(0xa02, 12, 9, {5});
    zesim::set_word(2579, 4 + 20 * 5 + 16, 0x1234, {2});
    zesim::fail(2587, zetest::kBusy);
    zesim::fail(0xa00, 0x42);
    const struct { const char *cmd; Words request, after; uint32_t result; } steps[] = {
        // The API's code passes through: 18 for a busy driver, -1 otherwise.
        {"lsw_qos_get_egr_shaping", {3, 0}, {}, ZE_ERR_PARAM},
        {"lsw_car_get_simple_car", {0, 0, 0, 0}, {}, ZE_ERR_FAIL},
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
        uint32_t reply = 0;
        EXPECT_EQ(call("ze_adapter_cli_" + std::string(s.cmd), buf.data(), buf.size() * 4, &reply), s.result) << s.cmd;
        EXPECT_EQ(buf, s.after.empty() ? s.request : s.after) << s.cmd;
    }
    // The WRED start-up takes no request and needs no reply length.
    EXPECT_EQ(call("ze_adapter_cli_lsw_car_init_wred", nullptr, 99, nullptr), 0u);
    EXPECT_EQ(console().find("ERROR"), std::string::npos);
}

}  // namespace
