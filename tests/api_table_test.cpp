// The API table: it names exactly the exported API functions, and every
// row's example runs through the shell on a fresh simulator and reaches
// what the row says it reaches.
#include <fstream>
#include <set>
#include <sstream>

#include "api_call.h"
#include "shell.h"
#include "test_support.h"

namespace {

using zesh::api::Row;

std::vector<const Row *> rows() {
    std::vector<const Row *> v;
    for (const zesh::api::Area &a : zesh::api::areas())
        for (const Row &r : a.rows) v.push_back(&r);
    return v;
}

TEST(ApiTable, NamesExactlyTheExportedApiFunctions) {
    std::ifstream map(ZE_EXPORT_LIST);
    ASSERT_TRUE(map) << ZE_EXPORT_LIST;
    std::set<std::string> exported, table;
    for (std::string word; map >> word;)
        if (word.starts_with("ze_") && word.ends_with(";") && !word.starts_with("ze_adapter_cli_"))
            exported.insert(word.substr(0, word.size() - 1));
    for (const Row *r : rows()) EXPECT_TRUE(table.insert(r->name).second) << "twice: " << r->name;
    EXPECT_EQ(table, exported);
}

class ApiRows : public zetest::SimTest, public ::testing::WithParamInterface<const Row *> {
protected:
    bool run(const std::string &line, std::string &out) {
        std::ostringstream s;
        bool ok;
        {
            zesh::Shell sh(s);
            ok = sh.run_line(line);
        }
        out = s.str();
        return ok;
    }
};

TEST_P(ApiRows, ExampleRunsAndReachesWhatTheRowSays) {
    const Row &row = *GetParam();
    std::string out;
    if (row.example.setup) {
        ASSERT_TRUE(run(row.example.setup, out)) << out;
    }
    zesim::clear_log();
    const std::string line = std::string("api ") + row.name + " " + row.example.args;
    ASSERT_TRUE(run(line, out)) << out;
    EXPECT_NE(out.find(std::string(row.name) + ": result "), std::string::npos) << out;

    size_t ioctls = 0, kernel_calls = 0, dp_calls = 0;
    for (const zesim::LogEntry &e : zesim::log()) {
        if (e.kind == zesim::EntryKind::KernelCall) ++kernel_calls;
        else if (e.kind == zesim::EntryKind::DpOp || !e.name.empty()) ++dp_calls;
        else if (e.cmd > zesim::kCmdClose) ++ioctls;
    }
    using namespace zesh::api;
    if (row.flags & kNoDriver) {
        EXPECT_TRUE(zesim::log().empty()) << line << "\n" << out;
    } else if (row.flags & kKernelCall) {
        EXPECT_GT(kernel_calls, 0u) << line;
    } else if (row.flags & kDpLibrary) {
        EXPECT_GT(dp_calls, 0u) << line;
    } else {
        EXPECT_GT(ioctls, 0u) << line << "\n" << out;
    }
}

INSTANTIATE_TEST_SUITE_P(Every, ApiRows, ::testing::ValuesIn(rows()),
                         [](const auto &info) { return std::string(info.param->name); });

}  // namespace
