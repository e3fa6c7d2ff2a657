// The simulator's engine: bracket, descriptor dispatch, block store, command
// log and fault injection. Areas contribute descriptors only.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <algorithm>
#include <array>
#include <map>
#include <unordered_map>

#include "ze_sim.h"

namespace zesim {

uint32_t load_field(const uint8_t *p, uint32_t width) {
    switch (width) {
        case 1: return *p;
        case 2: {
            uint16_t v;
            std::memcpy(&v, p, 2);
            return v;
        }
        default: {
            uint32_t v;
            std::memcpy(&v, p, 4);
            return v;
        }
    }
}

void store_field(uint8_t *p, uint32_t width, uint32_t v) {
    switch (width) {
        case 1: *p = static_cast<uint8_t>(v); break;
        case 2: {
            uint16_t h = static_cast<uint16_t>(v);
            std::memcpy(p, &h, 2);
            break;
        }
        default: std::memcpy(p, &v, 4);
    }
}

namespace {

struct Fault {
    bool by_name;
    uint32_t cmd;
    std::string name;
    uint32_t code;
    uint32_t nth;   // 0: every occurrence
    uint32_t seen;  // occurrences since the fault was set
};

using Key = std::array<uint32_t, 3>;

struct Model {
    bool bracket_open = false;
    std::map<std::pair<const BlockDesc *, Key>, Bytes> blocks;
    std::deque<LogEntry> log;
    std::vector<Fault> faults;
};

Model &model() {
    static Model m;
    return m;
}

struct Index {
    std::unordered_map<uint32_t, const BlockDesc *> blocks;
    std::unordered_map<uint32_t, const ActionDesc *> actions;
    std::unordered_map<std::string, const KernelCallDesc *> kernel_calls;
    std::unordered_map<std::string, const DpOpDesc *> dp_ops;
};

const Index &index() {
    static const Index idx = [] {
        Index i;
        for (const Area *area : areas()) {
            for (const BlockDesc &b : area->blocks) {
                if (b.get_id) i.blocks[b.get_id] = &b;
                if (b.set_id) i.blocks[b.set_id] = &b;
            }
            for (const ActionDesc &a : area->actions) i.actions[a.id] = &a;
            for (const KernelCallDesc &k : area->kernel_calls) i.kernel_calls[k.name] = &k;
            for (const DpOpDesc &d : area->dp_ops) i.dp_ops[d.name] = &d;
        }
        return i;
    }();
    return idx;
}

Key key_of(const BlockDesc &d, const uint8_t *src) {
    Key key{};
    for (size_t k = 0; k < key.size(); ++k)
        if (d.keys[k].width) key[k] = load_field(src + d.keys[k].offset, d.keys[k].width);
    return key;
}

Bytes &slot(const BlockDesc &d, const uint8_t *keysrc) {
    auto [it, fresh] = model().blocks.try_emplace({&d, key_of(d, keysrc)});
    if (fresh) {
        it->second.assign(d.length, 0);
        if (d.defaults) d.defaults(it->second.data());
        for (const KeyField &f : d.keys)
            if (f.width) std::memcpy(it->second.data() + f.offset, keysrc + f.offset, f.width);
    }
    return it->second;
}

// A key source built from key values, for the test-side accessors.
Bytes key_source(const BlockDesc &d, std::initializer_list<uint32_t> keys) {
    Bytes src(d.length, 0);
    size_t k = 0;
    for (uint32_t v : keys) {
        if (k < 3 && d.keys[k].width) store_field(src.data() + d.keys[k].offset, d.keys[k].width, v);
        ++k;
    }
    return src;
}

const BlockDesc &require_block(uint32_t id) {
    const BlockDesc *d = find_block(id);
    if (!d) {
        std::fprintf(stderr, "zesim: no block descriptor for command 0x%x\n", id);
        std::abort();
    }
    return *d;
}

// Returns the injected code for this occurrence, or 0.
uint32_t injected(bool by_name, uint32_t cmd, const char *name) {
    for (Fault &f : model().faults) {
        if (f.by_name != by_name || (by_name ? f.name != name : f.cmd != cmd)) continue;
        ++f.seen;
        if (f.nth == 0 || f.seen == f.nth) return f.code;
    }
    return 0;
}

void append(LogEntry e) {
    auto &log = model().log;
    if (log.size() == kLogCapacity) log.pop_front();
    log.push_back(std::move(e));
}

uint32_t block_command(uint32_t cmd, uint8_t *blk, uint32_t &length) {
    if (const BlockDesc *d = find_block(cmd)) {
        length = d->length;
        if (!blk) return kErrNullBlock;
        Bytes &stored = slot(*d, blk);
        if (cmd == d->get_id)
            std::memcpy(blk, stored.data(), d->length);
        else
            std::memcpy(stored.data(), blk, d->length);
        return 0;
    }
    if (const ActionDesc *a = find_action(cmd)) {
        length = a->length;
        if (a->length && !blk) return kErrNullBlock;
        return a->run(blk);
    }
    length = 0;
    return kErrUnknownCommand;
}

uint32_t ioctl_logged(uint32_t cmd, uintptr_t arg, const char *caller) {
    Model &m = model();
    auto *blk = reinterpret_cast<uint8_t *>(arg);
    LogEntry e{EntryKind::Ioctl, cmd, caller ? caller : "", arg != 0, {}, {}, 0};
    const BlockDesc *d = find_block(cmd);
    const ActionDesc *a = d ? nullptr : find_action(cmd);
    uint32_t len = d ? d->length : a ? a->length : 0;
    if (blk && len) e.sent.assign(blk, blk + len);

    uint32_t r = injected(false, cmd, nullptr);
    if (r) {
        // A failed open leaves no bracket and a failed close still ends
        // one, as the driver's close releases the bracket whatever it
        // reports; other failures change nothing.
        if (cmd == kCmdClose) m.bracket_open = false;
    } else if (cmd == kCmdOpen) {
        r = m.bracket_open ? kErrBracket : 0;
        if (!r) m.bracket_open = true;
    } else if (cmd == kCmdClose) {
        r = m.bracket_open ? 0 : kErrBracket;
        m.bracket_open = false;
    } else if (!m.bracket_open && !caller) {
        r = kErrBracket;
    } else {
        r = block_command(cmd, blk, len);
    }
    if (blk && len) e.returned.assign(blk, blk + len);
    e.result = r;
    append(std::move(e));
    return r;
}

}  // namespace

const BlockDesc *find_block(uint32_t id) {
    auto it = index().blocks.find(id);
    return it == index().blocks.end() ? nullptr : it->second;
}

const ActionDesc *find_action(uint32_t id) {
    auto it = index().actions.find(id);
    return it == index().actions.end() ? nullptr : it->second;
}

int64_t block_length(uint32_t id) {
    if (const BlockDesc *d = find_block(id)) return d->length;
    if (const ActionDesc *a = find_action(id)) return a->length;
    return -1;
}

uint32_t ioctl(uint32_t cmd, uintptr_t arg) { return ioctl_logged(cmd, arg, nullptr); }

uint32_t dp_block_call(const char *name, uint32_t cmd, void *block) {
    uint32_t r = injected(true, 0, name);
    if (r) {
        append({EntryKind::DpOp, cmd, name, block != nullptr, {}, {}, r});
        return r;
    }
    return ioctl_logged(cmd, reinterpret_cast<uintptr_t>(block), name);
}

uint32_t kernel_call(const char *name, void *payload, uint32_t len, uint32_t *out_len) {
    auto *p = static_cast<uint8_t *>(payload);
    LogEntry e{EntryKind::KernelCall, len, name ? name : "", p != nullptr, {}, {}, 0};
    if (p && len) e.sent.assign(p, p + len);
    uint32_t r = injected(true, 0, e.name.c_str());
    if (!r) {
        auto it = index().kernel_calls.find(e.name);
        r = it == index().kernel_calls.end() ? kErrUnknownCall : it->second->run(p, len, out_len);
    }
    if (p && len) e.returned.assign(p, p + len);
    e.result = r;
    append(std::move(e));
    return r;
}

uint32_t dp_op(const char *name, uint32_t idx) {
    uint32_t r = injected(true, 0, name);
    if (!r) {
        auto it = index().dp_ops.find(name);
        r = it == index().dp_ops.end() ? kErrUnknownCall : it->second->run(idx);
    }
    append({EntryKind::DpOp, idx, name, false, {}, {}, r});
    return r;
}

void reset() { model() = Model{}; }

Bytes block(uint32_t id, std::initializer_list<uint32_t> keys) {
    const BlockDesc &d = require_block(id);
    Bytes src = key_source(d, keys);
    return slot(d, src.data());
}

void store(uint32_t id, const Bytes &content) {
    const BlockDesc &d = require_block(id);
    Bytes padded(content);
    padded.resize(d.length, 0);
    slot(d, padded.data()) = padded;
}

// A word outside its block is a mistake of the caller, not a model state.
void require_word(const BlockDesc &d, uint32_t offset) {
    if (offset > d.length || d.length - offset < 4) {
        std::fprintf(stderr, "zesim: offset %u lies outside the %u-byte block '%s'\n", offset, d.length,
                     d.name);
        std::abort();
    }
}

uint32_t word(uint32_t id, uint32_t offset, std::initializer_list<uint32_t> keys) {
    require_word(require_block(id), offset);
    Bytes b = block(id, keys);
    return load_field(b.data() + offset, 4);
}

void set_word(uint32_t id, uint32_t offset, uint32_t value, std::initializer_list<uint32_t> keys) {
    const BlockDesc &d = require_block(id);
    require_word(d, offset);
    Bytes src = key_source(d, keys);
    store_field(slot(d, src.data()).data() + offset, 4, value);
}

uint8_t *stored_block(uint32_t id, const uint8_t *keysrc) {
    return slot(require_block(id), keysrc).data();
}

void for_each_stored(uint32_t id, void (*fn)(uint8_t *block, void *ctx), void *ctx) {
    const BlockDesc *d = &require_block(id);
    for (auto &[key, bytes] : model().blocks)
        if (key.first == d) fn(bytes.data(), ctx);
}

const std::deque<LogEntry> &log() { return model().log; }

void clear_log() { model().log.clear(); }

std::vector<uint32_t> raw_commands() {
    std::vector<uint32_t> ids;
    for (const LogEntry &e : model().log)
        if (e.kind == EntryKind::Ioctl) ids.push_back(e.cmd);
    return ids;
}

std::vector<uint32_t> commands() {
    std::vector<uint32_t> ids;
    for (uint32_t id : raw_commands())
        if (id != kCmdOpen && id != kCmdClose) ids.push_back(id);
    return ids;
}

static uint32_t descriptor_id(const BlockDesc &d) { return d.get_id ? d.get_id : d.set_id; }

State state() {
    std::vector<std::pair<std::pair<uint32_t, Key>, const Bytes *>> sorted;
    for (const auto &[key, bytes] : model().blocks)
        sorted.push_back({{descriptor_id(*key.first), key.second}, &bytes});
    std::sort(sorted.begin(), sorted.end(),
              [](const auto &a, const auto &b) { return a.first < b.first; });
    State s{model().bracket_open, {}};
    for (const auto &[id_key, bytes] : sorted) s.blocks.emplace_back(id_key.first, *bytes);
    return s;
}

bool set_state(const State &s, std::string &error) {
    decltype(Model::blocks) blocks;
    char msg[96];
    for (const auto &[id, bytes] : s.blocks) {
        const BlockDesc *d = find_block(id);
        if (!d)
            std::snprintf(msg, sizeof msg, "no block with command 0x%x", id);
        else if (bytes.size() != d->length)
            std::snprintf(msg, sizeof msg, "block 0x%x holds %zu bytes, not %u", id, bytes.size(), d->length);
        else if (!blocks.try_emplace({d, key_of(*d, bytes.data())}, bytes).second)
            std::snprintf(msg, sizeof msg, "block 0x%x appears twice with the same key", id);
        else
            continue;
        error = msg;
        return false;
    }
    model().blocks = std::move(blocks);
    model().bracket_open = s.bracket_open;
    return true;
}

void fail(uint32_t cmd, uint32_t code, uint32_t nth) {
    model().faults.push_back({false, cmd, {}, code, nth, 0});
}

void fail_call(const char *name, uint32_t code, uint32_t nth) {
    model().faults.push_back({true, 0, name, code, nth, 0});
}

void clear_faults() { model().faults.clear(); }

}  // namespace zesim
