// An API call's arguments, built from shell words by the API table, and its
// outputs read back.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "api_table.h"

namespace zesh::api {

using Bytes = std::vector<uint8_t>;

// One value the operator gives or reads: a scalar parameter, one element of
// an array, or one field of a record ("rule.dip", "items[3].k0").
struct Slot {
    size_t param;
    Field field;  // offset within the parameter's bytes
};
std::vector<Slot> slots_of(const Row &row);

// Each parameter's bytes, zeroed, as large as the parameter.
std::vector<Bytes> empty_args(const Row &row);

// Values in parameter order or name=value words (a record field may go by
// its own name when no other parameter has a field of that name). Scalars
// must be given; record fields left out are 0.
bool fill_args(const Row &row, std::span<const std::string> words, std::vector<Bytes> &args,
               std::string &error);

// Calls the function with the arguments (written back with the outputs).
uint32_t invoke(const Row &row, std::vector<Bytes> &args);

// The outputs after the call: "  name = value" lines, or JSON members.
std::string format_outputs(const Row &row, const std::vector<Bytes> &args);
std::string json_outputs(const Row &row, const std::vector<Bytes> &args);

// "uint32_t ze_x(uint32_t port, uint32_t *mtu)".
std::string signature_of(const Row &row);
// The signature, each parameter, the flags and the example.
std::string describe(const Row &row);
// "NAME ARG ARG": how a call is written.
std::string usage_of(const Row &row);

}  // namespace zesh::api
