// Board physical memory: payloads, kernel codes, and no heap left behind on
// any way out.
#include <cstring>

#include "test_support.h"
#include "ze_board.h"

namespace {

class Board : public zetest::SimTest {
protected:
    void TearDown() override {
        ze_host_malloc_fail_at(-1);
        EXPECT_EQ(ze_host_heap_outstanding(), heap_) << "payload leaked";
        SimTest::TearDown();
    }
    int64_t heap_ = ze_host_heap_outstanding();
};

TEST_F(Board, WrittenWordsReadBackThroughPayloadsOfTheirSizes) {
    const uint32_t words[4] = {0xa5a55a5a, 0x01020304, 0xdeadbeef, 0x7};
    for (uint32_t i = 0; i < 4; ++i) ASSERT_EQ(ze_board_write_phymem(0x3c + 4 * i, words[i]), 0u);
    EXPECT_EQ(zesim::log().back().name, "ze_kernel_misc_util_writephymem");
    EXPECT_EQ(zesim::log().back().sent, zetest::native_words({0x48, 4, 7}));
    EXPECT_EQ(traces().back().module, 0xf8005500u);
    EXPECT_STREQ(traces().back().file, "../board/ze_board.cpp");
    std::vector<uint8_t> buf(20, 0xee);
    ASSERT_EQ(ze_board_read_phymem(0x3c, 16, buf.data()), 0u);
    const auto &r = zesim::log().back();
    EXPECT_EQ(r.name, "ze_kernel_misc_util_readphymem");
    ASSERT_EQ((std::vector<size_t>{r.cmd, r.sent.size()}), (std::vector<size_t>{24, 24})) << "sent with the length + 8";
    EXPECT_EQ(zesim::Bytes(r.sent.begin(), r.sent.begin() + 12), zetest::native_words({0x3c, 16, 0}))
        << "address, length, then a zero word";
    EXPECT_EQ(std::memcmp(buf.data(), words, 16), 0);
    EXPECT_EQ(buf[16], 0xee) << "only the length is copied";
}

TEST_F(Board, FailuresReturnTheirCodeAndFreeThePayload) {
    uint8_t buf[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    zesim::fail_call("ze_kernel_misc_util_readphymem", 0x8001);
    zesim::fail_call("ze_kernel_misc_util_writephymem", 0xf0000101);
    EXPECT_EQ((std::vector<uint32_t>{ze_board_read_phymem(0, 8, buf), buf[0], ze_board_write_phymem(0, 1)}),
              (std::vector<uint32_t>{0x8001, 1, 0xf0000101})) << "kernel codes unmapped, nothing copied";
    ze_host_malloc_fail_at(0);
    EXPECT_EQ(ze_board_read_phymem(0, 8, buf), ZE_ERR_NO_MEMORY);
    ze_host_malloc_fail_at(0);
    EXPECT_EQ(ze_board_write_phymem(0, 1), ZE_ERR_NO_MEMORY);
    EXPECT_EQ(traces().back().result, ZE_ERR_NO_MEMORY);
}

TEST_F(Board, BadReadArgumentsAllocateNothing) {
    ze_host_malloc_fail_at(0);  // any allocation would fail and be seen
    EXPECT_EQ((std::vector<uint32_t>{ze_board_read_phymem(0, 4, nullptr), ze_board_read_phymem(0, 0xfffffff8, &heap_)}),
              (std::vector<uint32_t>{ZE_ERR_NULL_PTR, ZE_ERR_PARAM}));
    ze_host_malloc_fail_at(-1);
    uint8_t b = 0;
    EXPECT_EQ(ze_board_read_phymem(0, 0, &b), 0u);
    EXPECT_EQ(zesim::log().size(), 1u);
}

}  // namespace
