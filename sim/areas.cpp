#include "areas.h"

namespace zesim {

namespace {
const Area *const kAreas[] = {
    &kDpLibArea,
    &kChipArea,
    &kPortArea,
    &kEmacArea,
    &kBoardArea,
    &kQosArea,
    &kCarArea,
    &kFlowArea,
    &kGmacArea,
    &kL2Area,
    &kSecArea,
    &kEmacArea,
    &kBoardArea,
    &kStatsArea,
};
}  // namespace

std::span<const Area *const> areas() { return kAreas; }

}  // namespace zesim
