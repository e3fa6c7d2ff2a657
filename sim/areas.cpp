#include "areas.h"

namespace zesim {

namespace {
const Area *const kAreas[] = {
    &kDpLibArea,
    &kChipArea,
    &kPortArea,
    &kQosArea,
    &kCarArea,
    &kFlowArea,
    &kGmacArea,
    &kEmacArea,
    &kBoardArea,
    &kStatsArea,
};
}  // namespace

std::span<const Area *const> areas() { return kAreas; }

}  // namespace zesim
