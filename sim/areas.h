// The datapath areas of the model; each is defined in its own area_*.cpp.
#pragma once

#include <cstring>

#include "ze_sim.h"

namespace zesim {

extern const Area kChipArea;
extern const Area kDpLibArea;
extern const Area kPortArea;
extern const Area kEmacArea;
extern const Area kBoardArea;
extern const Area kQosArea;
extern const Area kCarArea;
extern const Area kFlowArea;
extern const Area kGmacArea;
extern const Area kL2Area;
extern const Area kSecArea;
extern const Area kEmacArea;
extern const Area kBoardArea;
extern const Area kStatsArea;

// Native-order word helpers for descriptor defaults and actions.
inline uint32_t get_u32(const uint8_t *b, uint32_t off) {
    uint32_t v;
    std::memcpy(&v, b + off, 4);
    return v;
}
inline void put_u32(uint8_t *b, uint32_t off, uint32_t v) { std::memcpy(b + off, &v, 4); }

}  // namespace zesim
