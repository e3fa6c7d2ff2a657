// The statistics frame: a counter block read afresh from the driver, and the
// printer that walks a group's constant table of rows over it. Each group
// file holds its tables and its API functions; this header is what they
// share. Internal.
//
// A table reads like the group's print order, two counters per row:
//
//   constexpr Row kRows[] = {
//       pair32(c("rx_notdrop_st", 0), c("rx_drop_st", 4)),
//       kShortSep,
//       pair64(w("bdt_pon0_pkt", 144), w("bdt_pon0_byte", 264)),
//   };
#pragma once

#include <stdint.h>

#include "ze_dp_block.h"

namespace ze::pm {

// The largest counter block (the EPON MAC block).
inline constexpr uint32_t kMaxCounterBlock = 5752;

// What the printers read: a counter block's bytes, of which `len` were
// exchanged with the driver. Reads past the length give 0.
class CounterView {
public:
    uint32_t u32(uint32_t off) const {
        uint32_t v = 0;
        if (off + 4 <= len_) __builtin_memcpy(&v, bytes_ + off, sizeof v);
        return v;
    }
    // Low word at `off`, high word at `off + 4`.
    uint64_t u64(uint32_t off) const {
        return u32(off) | static_cast<uint64_t>(u32(off + 4)) << 32;
    }

protected:
    CounterView(uint8_t *bytes, uint32_t len) : bytes_(bytes), len_(len) {}

    uint8_t *bytes_;
    uint32_t len_;
};

// A zeroed counter block of `len` bytes (at most Capacity) on the caller's
// stack. Groups that hold two blocks at once size them to their own lengths
// to keep the frame small.
template <uint32_t Capacity>
class SizedCounterBlock : public CounterView {
public:
    explicit SizedCounterBlock(uint32_t len) : CounterView(storage_, len < Capacity ? len : Capacity) {
        ze_os_memset(storage_, 0, len_);
    }

    // The index word (port, queue, route index) that selects the instance.
    void set_index(uint32_t v) { __builtin_memcpy(storage_, &v, sizeof v); }
    // Reads the block with `cmd`, recording `len` (default: the block's).
    uint32_t read(uint32_t cmd) { return dp_send(cmd, storage_, len_); }
    uint32_t read(uint32_t cmd, uint32_t len) { return dp_send(cmd, storage_, len); }

private:
    alignas(8) uint8_t storage_[Capacity];
};

using CounterBlock = SizedCounterBlock<kMaxCounterBlock>;

// One printed counter: its name and where it lies. Width 4 is a 32-bit word,
// 8 a 64-bit pair; width 0 prints 0 (a filler, or a name printed again with
// no counter of its own). `stride` moves the counter by instance (LLID
// records and arrays); 0 for counters that do not move.
struct Cell {
    const char *name;
    uint16_t offset;
    uint8_t width;
    uint16_t stride = 0;
};

constexpr Cell c(const char *name, uint16_t off) { return {name, off, 4}; }
constexpr Cell w(const char *name, uint16_t off) { return {name, off, 8}; }
constexpr Cell fill(const char *name) { return {name, 0, 0}; }

enum class Line : uint8_t {
    Pair32,     // "%-32s : %-16u | %-32s : %-16u\n"
    Pair64,     // "%-32s : %-16llu | %-32s : %-16llu\n"
    Single64,   // "%-32s : %-16llu \n", left cell only
    Indexed32,  // "%-32s %03u: %016u | %-32s %03u: %016u\n"
    Indexed64,  // "%-32s %03u: %016llu | %-32s %03u: %016llu\n"
    ShortSep,   // 30 signs
    LongSep,    // 91 signs
    Label,      // the left cell's name on a line of its own
    Include,    // another table's rows, moved by the left cell's offset
};

template <class T>
struct Table;
struct Row;
using Rows = Table<Row>;

struct Row {
    Line line;
    Cell left = {};
    Cell right = {};
    const Rows *sub = nullptr;  // Include only
};

constexpr Row pair32(Cell l, Cell r) { return {Line::Pair32, l, r}; }
constexpr Row pair64(Cell l, Cell r) { return {Line::Pair64, l, r}; }
constexpr Row single64(Cell l) { return {Line::Single64, l}; }
constexpr Row indexed32(Cell l, Cell r) { return {Line::Indexed32, l, r}; }
constexpr Row indexed64(Cell l, Cell r) { return {Line::Indexed64, l, r}; }
constexpr Row label(const char *text) { return {Line::Label, {text, 0, 0}}; }
// A run of counters that several groups print alike, `shift` bytes further on.
constexpr Row include(const Rows &rows, uint16_t shift = 0) {
    return {Line::Include, {nullptr, shift, 0}, {}, &rows};
}
inline constexpr Row kShortSep{Line::ShortSep};
inline constexpr Row kLongSep{Line::LongSep};

// A constant table, walked in order.
template <class T>
struct Table {
    const T *items;
    uint32_t count;
    template <uint32_t N>
    constexpr Table(const T (&a)[N]) : items(a), count(N) {}
    const T *begin() const { return items; }
    const T *end() const { return items + count; }
};

// A group read with one command and printed with one table.
struct Group {
    uint32_t cmd;
    uint32_t len;
    Rows rows;
};

// Prints `rows` over `b`; counters lie at `base` + offset + stride x
// `instance`, and indexed rows print `instance` as the entry number.
void print_rows(const Rows &rows, const CounterView &b, uint32_t base = 0, uint32_t instance = 0);
// "%-32s %03u: %016u | %-32s %03u: %016u\n"
void print_indexed32(const char *lname, uint32_t lnum, uint32_t lval, const char *rname,
                     uint32_t rnum, uint32_t rval);
void print_short_sep();
void print_long_sep();

// An alarm line: a blank-padded label, then the value of one counter of
// one of the group's blocks.
enum class AlarmForm : uint8_t {
    U32Blank,  // "<label>: %u \n"
    U32,       // "<label>: %u\n"
    U64,       // "<label>: %llu\n"
};
struct AlarmLine {
    const char *label;
    uint16_t offset;
    AlarmForm form;
    uint8_t block = 0;  // which of the group's blocks
};
using AlarmLines = Table<AlarmLine>;
void print_alarm_lines(const AlarmLines &lines, const CounterView *const *blocks);

// The frame of a group: the block (zeroed, its index word set) is read with
// `cmd` and handed to `print`. A failed read is traced under `site` and
// returned; nothing is printed. Success leaves no trace record.
template <class Print>
uint32_t show(const TraceSite &site, CounterBlock &b, uint32_t cmd, Print &&print) {
    uint32_t r = b.read(cmd);
    if (r) return traced(site, r);
    print(static_cast<const CounterBlock &>(b));
    return ZE_OK;
}

// A group of one table over one block.
uint32_t show(const TraceSite &site, const Group &g);

}  // namespace ze::pm
