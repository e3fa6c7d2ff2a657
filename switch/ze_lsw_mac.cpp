// Learning, learn mode, learn-fail action, ageing and per-port address
// limits: single words of the L2 attribute block.
#include "ze_lsw_mac.h"

#include "ze_blocks_l2.h"
#include "ze_dp_block.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_mac.cpp";
constexpr uint32_t kMaxAgeTime = 86399;

using ze::L2Attr;

// Copies one word (truncated to the output's width) on success.
template <class T>
uint32_t read_word(const ze::TraceSite &site, uint32_t off, T *out) {
    ze::Block<L2Attr> b;
    return ze::fetch(site, b, [&](const auto &blk) { *out = static_cast<T>(blk.word(off)); });
}

uint32_t write_word(const ze::TraceSite &site, uint32_t off, uint32_t value) {
    ze::Block<L2Attr> b;
    return ze::update(site, b, [&](auto &blk) { blk.set_word(off, value); });
}

enum class NullCheck { No, Yes };

// A per-port word; ports 0..8 pass, so port 8 reaches the next array. The
// port is checked before the output.
template <class T>
uint32_t read_port_word(const ze::TraceSite &site, uint32_t port, uint32_t (*at)(uint32_t), T *out,
                        NullCheck check) {
    if (ze_lsw_port_check(port)) return ze::traced(site, ZE_ERR_FAIL);
    if (check == NullCheck::Yes && !out) return ZE_ERR_NULL_PTR;
    return read_word(site, at(port), out);
}

uint32_t write_port_word(const ze::TraceSite &site, uint32_t port, uint32_t (*at)(uint32_t),
                         uint32_t value) {
    if (ze_lsw_port_check(port)) return ze::traced(site, ZE_ERR_FAIL);
    return write_word(site, at(port), value);
}

}  // namespace

extern "C" {

// Writes the low byte; the output is not tested.
uint32_t ze_lsw_mac_get_learn(uint32_t port, uint8_t *enable) {
    return read_port_word(ZE_SITE, port, L2Attr::learn, enable, NullCheck::No);
}

uint32_t ze_lsw_mac_set_learn(uint32_t port, uint32_t enable) {
    return write_port_word(ZE_SITE, port, L2Attr::learn, enable);
}

uint32_t ze_lsw_mac_get_limitenable(uint32_t port, uint8_t *enable) {
    return read_port_word(ZE_SITE, port, L2Attr::limit_enable, enable, NullCheck::Yes);
}

uint32_t ze_lsw_mac_set_limitenable(uint32_t port, uint32_t enable) {
    return write_port_word(ZE_SITE, port, L2Attr::limit_enable, enable);
}

uint32_t ze_lsw_mac_get_limitcount(uint32_t port, uint16_t *count) {
    return read_port_word(ZE_SITE, port, L2Attr::limit_count, count, NullCheck::Yes);
}

uint32_t ze_lsw_mac_set_limitcount(uint32_t port, uint32_t count) {
    return write_port_word(ZE_SITE, port, L2Attr::limit_count, count);
}

// The output is not tested.
uint32_t ze_lsw_mac_get_learnmode(uint32_t *mode) {
    return read_word(ZE_SITE, L2Attr::learn_mode.offset, mode);
}

uint32_t ze_lsw_mac_set_learnmode(uint32_t mode) {
    return write_word(ZE_SITE, L2Attr::learn_mode.offset, mode);
}

uint32_t ze_lsw_mac_get_learn_fail(uint32_t *action) {
    if (!action) return ZE_ERR_NULL_PTR;
    return read_word(ZE_SITE, L2Attr::learn_fail.offset, action);
}

uint32_t ze_lsw_mac_set_learn_fail(uint32_t action) {
    return write_word(ZE_SITE, L2Attr::learn_fail.offset, action);
}

uint32_t ze_lsw_mac_get_ageenable(uint8_t *enable) {
    if (!enable) return ZE_ERR_NULL_PTR;
    return read_word(ZE_SITE, L2Attr::age_enable.offset, enable);
}

uint32_t ze_lsw_mac_set_ageenable(uint32_t enable) {
    return write_word(ZE_SITE, L2Attr::age_enable.offset, enable);
}

// The output is not tested.
uint32_t ze_lsw_mac_get_agetime(uint32_t *seconds) {
    return read_word(ZE_SITE, L2Attr::age_time.offset, seconds);
}

uint32_t ze_lsw_mac_set_agetime(uint32_t seconds) {
    return write_word(ZE_SITE, L2Attr::age_time.offset, seconds > kMaxAgeTime ? kMaxAgeTime : seconds);
}

}  // extern "C"
