// The host platform libraries: trace ring, interface manager and heap.
#include "test_support.h"
#include "ze_chip.h"

namespace {

using HostPlatform = zetest::SimTest;

TEST_F(HostPlatform, TraceRingKeepsTheNewestRecords) {
    for (uint32_t i = 0; i < ZE_HOST_TRACE_CAPACITY + 10; ++i)
        ze_log_systrace(1, "f.cpp", "fn", i, 0, i, 0, 0, 0);
    ASSERT_EQ(ze_host_trace_count(), ZE_HOST_TRACE_CAPACITY);
    ze_host_trace_rec rec;
    ASSERT_EQ(ze_host_trace_get(0, &rec), 0);
    EXPECT_EQ(rec.v[0], 10u);
    EXPECT_EQ(ze_host_trace_get(ZE_HOST_TRACE_CAPACITY, &rec), -1);
}

TEST_F(HostPlatform, RecordsFormatAsOneLine) {
    ze_log_systrace(0xf8005800, "ze_chip.cpp", "ze_chip_get_upmode", 42, 46, 46, 0, 0, 0);
    ze_log_debug(0xf8005800, "ze_lsw_flow_function.cpp", "ze_lsw_flow_set_efc", 7, 3, "uc_flownum %-8d\r\n", 2);
    char line[512];
    ze_host_trace_rec rec;
    ze_host_trace_get(0, &rec);
    ze_host_trace_format(&rec, line, sizeof line);
    EXPECT_STREQ(line, "trace f8005800 ze_chip.cpp:42 ze_chip_get_upmode result=0x0000002e [0x2e 0x0 0x0 0x0]");
    ze_host_trace_get(1, &rec);
    EXPECT_STREQ(rec.text, "uc_flownum 2       \r\n");
    ze_host_trace_format(&rec, line, sizeof line);
    EXPECT_STREQ(line, "debug f8005800 ze_lsw_flow_function.cpp:7 ze_lsw_flow_set_efc level=3 \"uc_flownum 2       \\r\\n\"");
}

uint32_t handler_a(void *, uint32_t, uint32_t *) { return 1; }
uint32_t handler_b(void *, uint32_t, uint32_t *) { return 2; }

TEST_F(HostPlatform, RegisteringANameAgainReplacesItsHandler) {
    uint32_t before = ze_host_ifm_count();
    ASSERT_EQ(ze_ifm_regapi("host_test_cmd", handler_a), 0u);
    ASSERT_EQ(ze_ifm_regapi("host_test_cmd", handler_b), 0u);
    EXPECT_EQ(ze_host_ifm_count(), before + 1);
    EXPECT_EQ(ze_host_ifm_find("host_test_cmd"), handler_b);
    EXPECT_EQ(ze_host_ifm_find("nothing"), nullptr);
}

TEST_F(HostPlatform, HeapAccountingAndForcedFailure) {
    int64_t before = ze_host_heap_outstanding();
    void *p = ze_os_malloc(16);
    EXPECT_EQ(ze_host_heap_outstanding(), before + 1);
    ze_os_free(p);
    EXPECT_EQ(ze_host_heap_outstanding(), before);
    ze_host_malloc_fail_at(1);
    void *first = ze_os_malloc(8);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(ze_os_malloc(8), nullptr);
    void *third = ze_os_malloc(8);
    EXPECT_NE(third, nullptr);
    ze_os_free(first);
    ze_os_free(third);
}

TEST_F(HostPlatform, PrintfReachesTheSinkWhole) {
    std::string big(2000, 'x');
    EXPECT_EQ(ze_os_printf("%s|%d", big.c_str(), 5), 2002);
    EXPECT_EQ(console(), big + "|5");
}

TEST_F(HostPlatform, SimulatorRefusesCommandsOutsideABracket) {
    uint8_t blk[76] = {};
    EXPECT_EQ(zesim::ioctl(0x100, reinterpret_cast<uintptr_t>(blk)), zesim::kErrBracket);
    EXPECT_EQ(zesim::ioctl(1, 0), zesim::kErrBracket);
    EXPECT_EQ(zesim::ioctl(0, 0), 0u);
    EXPECT_EQ(zesim::ioctl(0x999, reinterpret_cast<uintptr_t>(blk)), zesim::kErrUnknownCommand);
    EXPECT_EQ(zesim::ioctl(0x100, 0), zesim::kErrNullBlock);
    EXPECT_EQ(zesim::ioctl(1, 0), 0u);
}

TEST_F(HostPlatform, NthOccurrenceFaults) {
    zesim::fail(0x100, 9, 2);
    uint32_t mode;
    EXPECT_EQ(ze_chip_get_access_mode(&mode), 0u);
    EXPECT_EQ(ze_chip_get_access_mode(&mode), ZE_ERR_FAIL);
    EXPECT_EQ(ze_chip_get_access_mode(&mode), 0u);
}

}  // namespace
