// Typed values of request fields and API arguments: parsed from shell words,
// stored at their width in native byte order, printed back as text or JSON.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "command_table.h"

namespace zesh {

// Decimal, or hexadecimal after "0x"; a leading zero is still decimal.
// A leading '-' gives the two's complement of the value.
bool parse_number(const std::string &s, uint64_t &value);

// Hex digits, optionally separated by ':', '-' or '.'.
bool parse_hex_bytes(const std::string &s, std::vector<uint8_t> &out);

// Stores `value` into the field at `base + f.offset`; on a refusal `error`
// names the field and what it accepts.
bool store_value(const Field &f, uint8_t *base, const std::string &value, std::string &error);

// "name = value" as the shell prints a reply field (without indent or newline).
std::string format_value(const Field &f, const uint8_t *base);
// The value as a JSON value: numbers as numbers, the others as strings.
std::string json_value(const Field &f, const uint8_t *base);

// "u8", "mac", ... and the range or form a value of the type takes.
const char *type_name(FieldType t);
std::string accepted_values(const Field &f);

// A JSON string literal of `s`.
std::string json_string(const std::string &s);
// Appends the member "name":value (a JSON value already) to an object's
// members, with the comma that separates it from those before.
void add_json_member(std::string &members, const std::string &name, const std::string &value);

// Up to three of `candidates` closest to `word` by edit distance, as
// "did you mean a, b?" (empty when none is close).
std::string did_you_mean(const std::string &word, const std::vector<std::string> &candidates);

}  // namespace zesh
