// QoS blocks: ingress priority, queue map, queue buffers, egress scheduling,
// egress and queue shaping, WRED profiles.
#include "areas.h"

namespace zesim {
namespace {

const BlockDesc kBlocks[] = {
    {"ingress priority", 2569, 2568, 16, {{0, 4}}},
    {"queue map", 2575, 2574, 20, {{0, 4}, {4, 4}, {8, 4}}},  // port, group, priority
    {"queue buffer", 2577, 2576, 12, {{0, 4}}},
    {"egress scheduling", 2579, 2578, 164, {{0, 4}}},
    {"egress shaping", 2587, 2586, 24, {{0, 4}}},
    {"queue shaping", 2615, 2614, 28, {{0, 4}}},
    {"WRED profile", 2583, 2582, 44, {{0, 4}, {8, 4}}},
};

}  // namespace

const Area kQosArea{"qos", kBlocks};

}  // namespace zesim
