// Helpers of the CAR and QoS tests: several words of a block at once, the
// check of a read-modify-write of one block, and empty shadows.
#pragma once

#include <cstring>
#include <functional>
#include <map>
#include <vector>

#include "flow_fixture.h"
#include "test_support.h"
#include "ze_lsw_car_shadow.h"

namespace zetest {

using Words = std::vector<uint32_t>;
using Fields = std::map<uint32_t, uint32_t>;  // offset -> word

// The driver's busy answer, which the library reports as 18.
inline constexpr uint32_t kBusy = 0xf0000101;

// The little-endian words of `b` at `offsets`, in that order.
inline Words words(const zesim::Bytes &b, std::initializer_list<uint32_t> offsets) {
    Words v;
    for (uint32_t off : offsets) v.push_back(word_at(b, off));
    return v;
}

// The words at `offsets` of every block sent with `cmd`, one after another.
inline Words sent_words(uint32_t cmd, std::initializer_list<uint32_t> offsets) {
    Words v;
    for (const auto &e : entries_of(cmd))
        for (uint32_t off : offsets) v.push_back(word_at(e.sent, off));
    return v;
}

inline void put(uint8_t *b, const Fields &fields) {
    for (auto [off, v] : fields) std::memcpy(b + off, &v, 4);
}

// A block whose every word names its offset, but for the key words.
inline zesim::Bytes patterned(uint32_t size, const Fields &keys) {
    zesim::Bytes b(size);
    for (uint32_t off = 0; off < size; off += 4) put(b.data(), {{off, 0xc0de0000 + off}});
    put(b.data(), keys);
    return b;
}

// A call that reads one block with its key alone and writes it back with
// only `written` changed.
struct Rmw {
    uint32_t get, set, size;
    Fields keys;
    std::function<uint32_t()> call;
    Fields written;
    bool rekeys = false;  // the call writes its key words again after the read
};

// Stores a patterned block under the case's key, runs the call and checks
// the exchange. For a call that re-keys, the driver answers with other
// values in the key words, which must not reach the write.
inline void expect_rmw(const Rmw &c) {
    zesim::clear_log();
    zesim::Bytes key(c.size), expected = patterned(c.size, c.keys);
    zesim::store(c.get, expected);
    put(key.data(), c.keys);
    if (c.rekeys) {
        uint8_t *answer = zesim::stored_block(c.get, key.data());
        for (auto [off, v] : c.keys) put(answer, {{off, v ^ 0x5a000000}});
    }
    put(expected.data(), c.written);
    ASSERT_EQ(c.call(), 0u) << c.set;
    EXPECT_EQ(zesim::commands(), (Words{c.get, c.set}));
    EXPECT_EQ(entries_of(c.get)[0].sent, key) << "read with the key alone, " << c.get;
    EXPECT_EQ(entries_of(c.set)[0].sent, expected) << c.set;
}

// Ingress bitmaps of a flow: a LAN port (upstream), the PON port (downstream).
inline constexpr uint8_t kUp = 0x01, kDown = 0x20;

// The flow shadows and the flow CAR record are process globals, which the
// shared fixture empties before every test.
class RateTest : public FlowTest {
protected:
    static void flow(uint32_t sfid, uint16_t gemport, uint8_t igr, uint8_t status = 1) {
        st_sfcmapping[sfid].status = status;
        st_sfcmapping[sfid].gemport = gemport;
        st_sfcmapping[sfid].mapping.igr = igr;
    }
};

}  // namespace zetest
