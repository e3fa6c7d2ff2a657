// The list of shadow tables against the library's own objects: every
// writable global of the library is listed with its size, so a new table
// cannot carry state from one test or fuzz input to the next unnoticed.
#include <cstdio>
#include <map>
#include <sstream>
#include <string>

#include "shadow_tables.h"
#include "test_support.h"

namespace {

// Writable globals of the archive (sections .bss and .data, not the
// read-only-after-relocation .data.rel.ro), with their sizes; names
// reserved to the implementation (a sanitizer's own, for one) are not the
// library's.
std::map<std::string, size_t> writable_globals() {
    std::map<std::string, size_t> out;
    FILE *nm = popen("nm -g --defined-only -f sysv " ZE_ADAPTER_ARCHIVE " 2>/dev/null", "r");
    EXPECT_NE(nm, nullptr);
    if (!nm) return out;
    char line[512];
    while (std::fgets(line, sizeof line, nm)) {
        std::istringstream fields(line);
        std::string name, value, cls, type, size, lineno, section;
        for (std::string *f : {&name, &value, &cls, &type, &size, &lineno, &section}) std::getline(fields, *f, '|');
        std::istringstream(section) >> section;
        std::istringstream(name) >> name;
        if (name.starts_with("__")) continue;
        if (section.starts_with(".bss") || (section.starts_with(".data") && !section.starts_with(".data.rel.ro")))
            out[name] = std::stoul(size, nullptr, 16);
    }
    EXPECT_EQ(pclose(nm), 0);
    return out;
}

TEST(ShadowTables, ListTheLibrarysWritableGlobals) {
    std::map<std::string, size_t> listed;
    for (const zetest::ShadowTable &t : zetest::shadow_tables()) listed[t.name] = t.size;
    EXPECT_EQ(listed, writable_globals());
}

}  // namespace
