// CAR blocks: simple CAR, EFC CAR, to-CPU reasons and their CARs, flow CAR
// profiles and bindings, protocol packets, and the second WRED table.
#include "areas.h"

namespace zesim {
namespace {

const BlockDesc kBlocks[] = {
    {"simple CAR", 0xa00, 0xa01, 72},
    {"EFC CAR", 0xa02, 0xa03, 16, {{0, 4}}},
    {"to-CPU reason", 0xa05, 0xa04, 24, {{0, 4}}},
    {"to-CPU CAR", 0xa07, 0xa06, 16, {{0, 4}}},
    {"flow CAR profile", 0xa0b, 0xa0a, 28, {{0, 4}}},
    {"flow CAR binding", 0xa33, 0xa32, 12, {{0, 4}}},
    {"protocol packet", 0x604, 0x605, 60, {{0, 4}}},
    {"WRED profile, four-entry table", 0, 0xa18, 44, {{0, 4}, {8, 4}}},
};

}  // namespace

const Area kCarArea{"car", kBlocks};

}  // namespace zesim
