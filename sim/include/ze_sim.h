// Datapath simulator: a behavioural model of the kernel driver behind
// "/dev/ze_ioctl_dp", of the named kernel calls and of the datapath API
// library's counter operations. The host platform sends everything here by
// default; tests and the shell inspect and steer it through this interface.
//
// The model is driven by descriptor tables, one per datapath area: a block
// descriptor names a block's get and set ids, its length and its key fields,
// and a get returns the block stored under the key that the caller put in
// the block (or the block's documented defaults when that key was never
// written); a set stores it. Commands that add, delete or clear act through
// action descriptors on the stored blocks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zesim {

using Bytes = std::vector<uint8_t>;

// Codes the simulated driver answers besides those of the library's world.
// 0xf0000101 (invalid parameter) is only ever returned through fault
// injection; these never collide with it.
inline constexpr uint32_t kErrUnknownCommand = 0xf0000102;  // no descriptor for the id
inline constexpr uint32_t kErrBracket = 0xf0000103;         // command outside a bracket, second open, stray close
inline constexpr uint32_t kErrNullBlock = 0xf0000104;       // a block command sent with argument 0
inline constexpr uint32_t kErrUnknownCall = 0xf0000105;     // unknown named kernel call

inline constexpr uint32_t kCmdOpen = 0;
inline constexpr uint32_t kCmdClose = 1;

// An unsigned field of 1, 2 or 4 bytes, in the processor's native order as
// the driver's blocks and the commands' request structures hold it.
uint32_t load_field(const uint8_t *p, uint32_t width);
void store_field(uint8_t *p, uint32_t width, uint32_t v);

struct KeyField {
    uint16_t offset;
    uint8_t width;  // 1, 2 or 4 bytes
};

struct BlockDesc {
    const char *name;
    uint32_t get_id;  // 0: the block cannot be read
    uint32_t set_id;  // 0: the block is read-only
    uint32_t length;
    KeyField keys[3] = {};                     // width 0: unused; none: one block for the chip
    void (*defaults)(uint8_t *block) = nullptr;  // content of a never-written key; null: zeros
};

// A command that is not a plain read or write of one stored block.
struct ActionDesc {
    const char *name;
    uint32_t id;
    uint32_t length;                   // bytes read from the caller; 0: no payload
    uint32_t (*run)(uint8_t *block);   // returns the driver's answer
};

// A named kernel call (ze_os_hlp_sendioctl).
struct KernelCallDesc {
    const char *name;
    uint32_t (*run)(uint8_t *payload, uint32_t len, uint32_t *out_len);
};

// An operation of the datapath API library that is not a block exchange
// (counter clears, right release). The argument is the call's index.
struct DpOpDesc {
    const char *name;
    uint32_t (*run)(uint32_t index);
};

// One datapath area's share of the model.
struct Area {
    const char *name;
    std::span<const BlockDesc> blocks;
    std::span<const ActionDesc> actions = {};
    std::span<const KernelCallDesc> kernel_calls = {};
    std::span<const DpOpDesc> dp_ops = {};
};

// ---- The driver side -------------------------------------------------------
// One datapath command: id and argument word (the block address, or 0).
uint32_t ioctl(uint32_t cmd, uintptr_t arg);
// One named kernel call.
uint32_t kernel_call(const char *name, void *payload, uint32_t len, uint32_t *out_len);
// One datapath API library operation that is not a block exchange.
uint32_t dp_op(const char *name, uint32_t index);
// A datapath API library block call: the block exchanged with `cmd` in a
// bracket of its own, logged under the call's name.
uint32_t dp_block_call(const char *name, uint32_t cmd, void *block);

// ---- State -------------------------------------------------------------------
// Forget every stored block, the log, the faults and the bracket.
void reset();

// The stored content of a block (defaults if never written). `keys` are the
// values of the block's key fields, in descriptor order.
Bytes block(uint32_t id, std::initializer_list<uint32_t> keys = {});
// Store a block's content as a set command would (keys taken from it).
void store(uint32_t id, const Bytes &content);
uint32_t word(uint32_t id, uint32_t offset, std::initializer_list<uint32_t> keys = {});
void set_word(uint32_t id, uint32_t offset, uint32_t value, std::initializer_list<uint32_t> keys = {});
// Direct access for action descriptors: the stored bytes of a block under the
// keys found in `keysrc` (a block laid out like the stored one), created with
// its defaults when absent. Valid until the next reset.
uint8_t *stored_block(uint32_t id, const uint8_t *keysrc);
// Visit every stored instance of a block (any key).
void for_each_stored(uint32_t id, void (*fn)(uint8_t *block, void *ctx), void *ctx);

// ---- Descriptors -------------------------------------------------------------
std::span<const Area *const> areas();
const BlockDesc *find_block(uint32_t id);  // by get or set id
const ActionDesc *find_action(uint32_t id);
// Bytes of the block that command `id` exchanges, from its block or action
// descriptor; -1 when no descriptor describes the id.
int64_t block_length(uint32_t id);

// ---- Command log ----------------------------------------------------------------
enum class EntryKind { Ioctl, KernelCall, DpOp };

struct LogEntry {
    EntryKind kind;
    uint32_t cmd;       // ioctl: command id; dp op: the index
    std::string name;   // kernel call or dp op name; ioctl: the datapath API call that sent it, if any
    bool has_block;     // ioctl with a non-zero argument / kernel call with payload
    Bytes sent;         // block or payload as it arrived
    Bytes returned;     // as it went back
    uint32_t result;
};

inline constexpr size_t kLogCapacity = 200000;
const std::deque<LogEntry> &log();
void clear_log();
// Command ids of the logged ioctls, without the bracket commands 0 and 1.
std::vector<uint32_t> commands();
// Every logged ioctl id including the bracket.
std::vector<uint32_t> raw_commands();

// ---- Fault injection -------------------------------------------------------------
// Fail command `cmd` with `code`: on its nth occurrence counted from now
// (1-based), or on every occurrence when nth is 0. A failed command changes
// nothing in the model. Command 0 is the bracket open: a failed open leaves
// no bracket. Command 1 is the close: a failed close reports its code but
// ends the bracket all the same, so the next open succeeds.
void fail(uint32_t cmd, uint32_t code, uint32_t nth = 0);
// The same for a named kernel call or datapath library operation.
void fail_call(const char *name, uint32_t code, uint32_t nth = 0);
void clear_faults();

// ---- Saved state -----------------------------------------------------------------
// What the driver holds: every stored block (its keys lie inside it) and
// whether a bracket is open. Faults and the log steer and record the model;
// they are not its state.
struct State {
    bool bracket_open = false;
    // Descriptor id (get id, or set id of a write-only block) and content,
    // ordered by id, then key.
    std::vector<std::pair<uint32_t, Bytes>> blocks;
    bool operator==(const State &) const = default;
};
State state();
// Replaces the stored blocks and the bracket with `s`. False with a message,
// and the model untouched, when a block has no descriptor, another length
// than its descriptor's, or the key of an earlier block.
bool set_state(const State &s, std::string &error);
// The state as a text file (format in the README), and back. A load changes
// nothing unless the whole file is well formed.
bool save_state(const std::string &path, std::string &error);
bool load_state(const std::string &path, std::string &error);

// ---- Text forms --------------------------------------------------------------------
// Bytes as lower-case hex, two digits a byte, and back; from_hex is false on
// an odd count or a character that is not a hex digit.
std::string to_hex(std::span<const uint8_t> bytes);
bool from_hex(std::string_view text, Bytes &out);

}  // namespace zesim

// ---- Counters ------------------------------------------------------------------
namespace zesim {

// The value that fill_counters() puts in the word at byte `offset` of a
// counter block's instance (instance = key value of a keyed block, else 0):
// (instance + 1) * 100000 + offset, so a printed value names its word.
uint32_t counter_pattern(uint32_t instance, uint32_t offset);
// Fills every word of every counter block (all instances of the keyed ones:
// Ethernet ports 0..4, queues 0..127, route indexes 0..15) with the
// pattern; key words keep their key.
void fill_counters();
// Sets one 64-bit counter: the low word at `offset`, the high word after it
// (dropped when `offset` holds the block's last word). A 32-bit counter is
// one set_word(). False, and nothing set, for an unknown block or an
// `offset` outside it.
bool set_counter(uint32_t id, uint32_t offset, uint64_t value, std::initializer_list<uint32_t> keys = {});

}  // namespace zesim
