// Every exported API function of the library, described once: its typed
// parameters, a one-line description, example arguments and what it
// reaches. The shell's `api` command, its help and completion read it.
//
// A row is written with ZE_API_ROW(function, summary, example, flags,
// parameters...). The call is generated from the function pointer itself,
// and the parameter list must match the function's C prototype: a changed
// prototype stops the build.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "command_table.h"

namespace zesh::api {

// What a function reaches, for the tools that sweep the table.
enum Flag : uint32_t {
    kNoDriver = 1u << 0,     // exchanges nothing with the driver, a kernel call or the datapath library
    kKernelCall = 1u << 1,   // reaches named kernel calls rather than driver commands
    kDpLibrary = 1u << 2,    // reaches the datapath API library (as well as or instead of commands)
    kWritesBoard = 1u << 3,  // writes board memory
    kRawAnswer = 1u << 4,    // returns the driver's or the kernel's answer unchanged
};

// How a parameter travels.
enum class Role {
    Value,     // by value
    In,        // pointer to what the function reads
    Out,       // pointer to what the function writes
    InOut,     // pointer to what it reads and writes
    Bytes,     // pointer to a byte string (read and written) whose length is another parameter
    Length,    // the length of a byte string, filled in by the shell
    OutBytes,  // pointer to an output buffer whose size is another parameter
    Address,   // integer holding the address of a byte string
};

struct Param {
    const char *name;
    const char *what;           // one line: what the parameter is
    Role role;
    const char *type;           // C type of the value or of what the pointer points at
    FieldType field;            // how a scalar (or element) value is written
    uint32_t size;              // bytes of one element
    const char *fields;         // record layout (field syntax of the command table), or null
    uint32_t count;             // elements of an array
    const char *of;             // Length and OutBytes: the parameter it goes with
};

// Byte strings are held in a zero-padded buffer larger than any block the
// driver may write back into them.
inline constexpr uint32_t kByteStringMax = 16384;

struct Example {
    Example(const char *a, const char *s = nullptr) : args(a), setup(s) {}
    const char *args;   // words after the function name
    const char *setup;  // a shell line to run first on a fresh simulator, or null
};

using Invoke = uint32_t (*)(std::span<const Param> params, std::span<uint8_t *const> args);

struct Row {
    const char *name;
    const char *summary;
    Example example;
    uint32_t flags;
    std::span<const Param> params;
    Invoke call;
};

struct Area {
    const char *name;
    const char *summary;
    std::span<const Row> rows;
};

std::span<const Area> areas();
const Row *find(std::string_view name);

// ---- writing rows -----------------------------------------------------------

template <class C>
struct Typed {
    Param p;
};

template <class T>
struct Record {
    const char *type;
    const char *fields;
};

inline Typed<uint32_t> u32(const char *n, const char *w) { return {{n, w, Role::Value, "uint32_t", FieldType::U32, 4, nullptr, 1, nullptr}}; }
inline Typed<uint16_t> u16(const char *n, const char *w) { return {{n, w, Role::Value, "uint16_t", FieldType::U16, 2, nullptr, 1, nullptr}}; }
inline Typed<uint8_t> u8(const char *n, const char *w) { return {{n, w, Role::Value, "uint8_t", FieldType::U8, 1, nullptr, 1, nullptr}}; }
inline Typed<int32_t> i32(const char *n, const char *w) { return {{n, w, Role::Value, "int32_t", FieldType::I32, 4, nullptr, 1, nullptr}}; }
inline Typed<uint32_t> ipv4(const char *n, const char *w) { return {{n, w, Role::Value, "uint32_t", FieldType::Ipv4, 4, nullptr, 1, nullptr}}; }
inline Typed<uint32_t *> out_u32(const char *n, const char *w, uint32_t count = 1) { return {{n, w, Role::Out, "uint32_t", FieldType::U32, 4, nullptr, count, nullptr}}; }
inline Typed<uint16_t *> out_u16(const char *n, const char *w) { return {{n, w, Role::Out, "uint16_t", FieldType::U16, 2, nullptr, 1, nullptr}}; }
inline Typed<uint8_t *> out_u8(const char *n, const char *w) { return {{n, w, Role::Out, "uint8_t", FieldType::U8, 1, nullptr, 1, nullptr}}; }
inline Typed<uint8_t *> inout_u8(const char *n, const char *w) { return {{n, w, Role::InOut, "uint8_t", FieldType::U8, 1, nullptr, 1, nullptr}}; }
inline Typed<uint8_t *> out_raw(const char *n, const char *w, uint32_t size) { return {{n, w, Role::Out, "uint8_t", FieldType::Bytes, size, nullptr, 1, nullptr}}; }
inline Typed<const uint32_t *> in_words(const char *n, const char *w, uint32_t count) { return {{n, w, Role::In, "uint32_t", FieldType::U32, 4, nullptr, count, nullptr}}; }
inline Typed<const uint8_t *> mac(const char *n, const char *w) { return {{n, w, Role::In, "uint8_t", FieldType::Mac, 6, nullptr, 1, nullptr}}; }
inline Typed<const char *> text(const char *n, const char *w, uint32_t max) { return {{n, w, Role::In, "char", FieldType::Text, max + 1, nullptr, 1, nullptr}}; }
inline Typed<void *> bytes(const char *n, const char *w, const char *length) { return {{n, w, Role::Bytes, "void", FieldType::Bytes, kByteStringMax, nullptr, 1, length}}; }
inline Typed<uint32_t> length_of(const char *n, const char *w, const char *string) { return {{n, w, Role::Length, "uint32_t", FieldType::U32, 4, nullptr, 1, string}}; }
inline Typed<void *> out_bytes(const char *n, const char *w, const char *size) { return {{n, w, Role::OutBytes, "void", FieldType::Bytes, kByteStringMax, nullptr, 1, size}}; }
inline Typed<uintptr_t> address_of(const char *n, const char *w) { return {{n, w, Role::Address, "uintptr_t", FieldType::Bytes, kByteStringMax, nullptr, 1, nullptr}}; }

template <class T>
Typed<const T *> rec_in(const Record<T> &r, const char *n, const char *w, uint32_t count = 1) { return {{n, w, Role::In, r.type, FieldType::Bytes, sizeof(T), r.fields, count, nullptr}}; }
template <class T>
Typed<T *> rec_out(const Record<T> &r, const char *n, const char *w, uint32_t count = 1) { return {{n, w, Role::Out, r.type, FieldType::Bytes, sizeof(T), r.fields, count, nullptr}}; }
template <class T>
Typed<T *> rec_inout(const Record<T> &r, const char *n, const char *w, uint32_t count = 1) { return {{n, w, Role::InOut, r.type, FieldType::Bytes, sizeof(T), r.fields, count, nullptr}}; }
template <class T>
Typed<T> rec_value(const Record<T> &r, const char *n, const char *w) { return {{n, w, Role::Value, r.type, FieldType::Bytes, sizeof(T), r.fields, 1, nullptr}}; }

namespace detail {

template <class C>
C arg_as(const Param &p, uint8_t *storage) {
    if constexpr (std::is_pointer_v<C>) {
        return reinterpret_cast<C>(storage);
    } else {
        if constexpr (std::is_same_v<C, uintptr_t>)
            if (p.role == Role::Address) return reinterpret_cast<uintptr_t>(storage);
        C v;
        std::memcpy(&v, storage, sizeof v);
        return v;
    }
}

template <auto F, class... C, size_t... I>
uint32_t invoke([[maybe_unused]] std::span<const Param> params, [[maybe_unused]] std::span<uint8_t *const> args,
                std::index_sequence<I...>) {
    return F(arg_as<C>(params[I], args[I])...);
}

}  // namespace detail

template <auto F, class... C>
Row row(const char *name, const char *summary, Example example, uint32_t flags, Typed<C>... params) {
    static_assert(std::is_same_v<decltype(F), uint32_t (*)(C...)>,
                  "the written parameters do not match the function's C prototype");
    static const std::array<Param, sizeof...(C)> kParams{params.p...};
    return {name, summary, example, flags, kParams,
            [](std::span<const Param> p, std::span<uint8_t *const> a) {
                return detail::invoke<F, C...>(p, a, std::index_sequence_for<C...>{});
            }};
}

#define ZE_API_ROW(fn, ...) ::zesh::api::row<&fn>(#fn, __VA_ARGS__)

}  // namespace zesh::api
