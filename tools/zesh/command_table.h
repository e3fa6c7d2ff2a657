// The request structure of every command, described once: the shell builds
// requests and prints replies from it, and the tests check every handler
// against it.
//
// Fields are written as "name:type@offset", separated by blanks, in the
// order of the structure. A leading '>' marks a field that the command
// writes (reply); '=' one that it reads and writes. A trailing "?VALUE"
// makes an input optional: left out, it takes VALUE. Types: u8, u16, u32,
// u64, i32, mac (6 bytes), ipv4 (u32 from a.b.c.d), bytesN (N raw bytes,
// hex), textN (a string of up to N-1 characters and its terminator).
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zesh {

inline constexpr const char *kCliPrefix = "ze_adapter_cli_";
inline constexpr int32_t kNoReply = -1;

struct CommandSpec {
    const char *name;      // suffix after "ze_adapter_cli_"
    const char *summary;   // what it does, in one line
    uint32_t request;      // request length the shell sends (and the handler checks)
    int32_t reply;         // reply length the handler writes, or kNoReply
    const char *fields;    // field list, see above
    bool checked = true;   // false: the handler does not check the length
};

enum class FieldType { U8, U16, U32, U64, I32, Mac, Ipv4, Bytes, Text };
enum class Dir { In, Out, InOut };

struct Field {
    std::string name;
    FieldType type;
    uint32_t offset;
    uint32_t size;
    Dir dir;
    bool optional = false;
    std::string fallback;  // the value an optional input takes when left out
};

// Every family's rows, in registry order.
std::span<const CommandSpec> all_commands();
// By name, with or without the "ze_adapter_cli_" prefix.
const CommandSpec *find_command(std::string_view name);
// The parsed field list of a row; aborts on a malformed row (a table bug).
std::vector<Field> fields_of(const CommandSpec &row);
// The same for any structure of `size` bytes; `owner` names it in the abort.
std::vector<Field> parse_fields(const char *list, uint32_t size, const char *owner);

// One family's rows; each family file defines its own.
struct Family {
    const char *name;
    const char *summary;
    std::span<const CommandSpec> commands;
};
std::span<const Family> families();
const Family *find_family(std::string_view name);

}  // namespace zesh
