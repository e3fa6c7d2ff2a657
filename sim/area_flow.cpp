// Flow classifier blocks: extended classifier entries by fid and simple
// classifier entries by sfid.
#include "areas.h"

namespace zesim {
namespace {

const BlockDesc kBlocks[] = {
    {"EFC entry", 0x504, 0x505, 216, {{0, 4}}},
    {"SFC entry", 0x506, 0x507, 68, {{0, 4}}},
};

}  // namespace

const Area kFlowArea{"flow", kBlocks};

}  // namespace zesim
