#include "test_support.h"

#include <cstring>

#include "shadow_tables.h"
#include "ze_adapter_cli.h"

namespace zetest {

namespace {
void capture(const char *text, size_t len, void *ctx) {
    static_cast<std::string *>(ctx)->append(text, len);
}
}  // namespace

void SimTest::SetUp() {
    ze_host_use_simulator();
    zesim::reset();
    clear_shadow_tables();
    ze_host_trace_clear();
    console_.clear();
    ze_host_set_print_sink(capture, &console_);
    if (ze_host_ifm_count() == 0) {
        ASSERT_EQ(ze_adapter_cli_init(), 0u);
    }
}

void SimTest::TearDown() { ze_host_set_print_sink(nullptr, nullptr); }

std::string SimTest::take_console() {
    std::string s;
    s.swap(console_);
    return s;
}

std::vector<ze_host_trace_rec> SimTest::traces() const {
    std::vector<ze_host_trace_rec> out;
    for (uint32_t i = 0; i < ze_host_trace_count(); ++i) {
        ze_host_trace_rec rec;
        ze_host_trace_get(i, &rec);
        if (rec.kind == ZE_HOST_REC_TRACE) out.push_back(rec);
    }
    return out;
}

std::vector<std::string> SimTest::debug_lines() const {
    std::vector<std::string> out;
    for (uint32_t i = 0; i < ze_host_trace_count(); ++i) {
        ze_host_trace_rec rec;
        ze_host_trace_get(i, &rec);
        if (rec.kind == ZE_HOST_REC_DEBUG) out.push_back(rec.text);
    }
    return out;
}

uint32_t SimTest::call(const std::string &name, void *req, uint32_t len, uint32_t *reply_len) {
    ze_ifm_handler_f h = ze_host_ifm_find(name.c_str());
    EXPECT_NE(h, nullptr) << name << " is not registered";
    return h ? h(req, len, reply_len) : 0xdeadu;
}

uint32_t word_at(const zesim::Bytes &b, uint32_t offset) {
    uint32_t v = 0;
    std::memcpy(&v, b.data() + offset, 4);
    return v;
}

zesim::Bytes native_words(std::initializer_list<uint32_t> words) {
    zesim::Bytes b(4 * words.size());
    uint8_t *p = b.data();
    for (uint32_t w : words) p = static_cast<uint8_t *>(std::memcpy(p, &w, 4)) + 4;
    return b;
}

std::string row_name(const ::testing::TestParamInfo<zesh::CommandSpec> &info) { return info.param.name; }

std::vector<zesim::LogEntry> entries_of(uint32_t cmd) {
    std::vector<zesim::LogEntry> out;
    for (const zesim::LogEntry &e : zesim::log())
        if (e.kind == zesim::EntryKind::Ioctl && e.cmd == cmd) out.push_back(e);
    return out;
}

}  // namespace zetest

void zesh::PrintTo(const CommandSpec &row, std::ostream *os) { *os << row.name; }
