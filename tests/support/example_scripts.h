// The example scripts under examples/, run through the shell, and scratch
// files for tests that write recordings or state files.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "shell.h"

namespace zetest {

inline std::filesystem::path examples_dir() {
    return std::filesystem::path(__FILE__).parent_path() / ".." / ".." / "examples";
}

// File names of every examples/*.zesh, sorted.
inline std::vector<std::string> example_scripts() {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(examples_dir()))
        if (entry.path().extension() == ".zesh") names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

// Runs an example line by line, as `zesh FILE` does; returns what it printed.
inline std::string run_example(const std::string &name) {
    std::ifstream in(examples_dir() / name);
    EXPECT_TRUE(in) << name;
    std::ostringstream out;
    zesh::Shell sh(out);
    for (std::string line; std::getline(in, line);) sh.run_line(line);
    return out.str();
}

// A path in the temp directory of this test and process.
inline std::string scratch_file(const std::string &suffix) {
    const auto *test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(test->test_suite_name()) + "_" + test->name();
    std::replace(name.begin(), name.end(), '/', '_');
    return ::testing::TempDir() + name + "_" + std::to_string(getpid()) + suffix;
}

}  // namespace zetest
