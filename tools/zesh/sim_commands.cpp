// "sim ..." built-ins: look into and steer the datapath simulator.
#include <cstdio>
#include <ostream>

#include "help.h"
#include "shell.h"
#include "values.h"
#include "ze_host.h"
#include "ze_sim.h"

namespace zesh {
namespace {

bool need_simulator(std::ostream &out) {
    if (ze_host_backend_is_simulator()) return true;
    out << "sim: the shell runs on a device node, not on the simulator\n";
    return false;
}

bool numbers(std::ostream &out, const std::vector<std::string> &args, size_t from, std::vector<uint32_t> &values) {
    for (size_t i = from; i < args.size(); ++i) {
        uint64_t v;
        if (!parse_number(args[i], v)) {
            out << "sim: bad number '" << args[i] << "'\n";
            return false;
        }
        values.push_back(static_cast<uint32_t>(v));
    }
    return true;
}

// A block's first bytes in hex.
std::string hex(const zesim::Bytes &b, size_t max = 24) {
    const std::span<const uint8_t> all(b);
    return b.size() > max ? zesim::to_hex(all.first(max)) + "..." : zesim::to_hex(all);
}

bool block_exists(std::ostream &out, uint32_t id) {
    if (zesim::find_block(id)) return true;
    out << "sim: no block with command 0x" << std::hex << id << std::dec << "\n";
    return false;
}

// Key values given after the fixed arguments: none to three.
template <class Fn>
void with_keys(const std::vector<uint32_t> &v, size_t from, Fn &&fn) {
    if (v.size() > from + 2)
        fn({v[from], v[from + 1], v[from + 2]});
    else if (v.size() > from + 1)
        fn({v[from], v[from + 1]});
    else if (v.size() > from)
        fn({v[from]});
    else
        fn({});
}

bool sim_reset(std::ostream &, const std::vector<std::string> &) {
    zesim::reset();
    return true;
}

bool sim_log(std::ostream &out, const std::vector<std::string> &args) {
    std::vector<uint32_t> n;
    if (!numbers(out, args, 2, n)) return false;
    const auto &log = zesim::log();
    size_t count = n.empty() ? 20 : n[0];
    size_t first = count < log.size() ? log.size() - count : 0;
    char line[128];
    for (size_t i = first; i < log.size(); ++i) {
        const zesim::LogEntry &e = log[i];
        if (e.kind == zesim::EntryKind::Ioctl)
            std::snprintf(line, sizeof line, "ioctl 0x%03x%s%s result=0x%08x", e.cmd,
                          e.name.empty() ? "" : " via ", e.name.c_str(), e.result);
        else
            std::snprintf(line, sizeof line, "%s %s(%u) result=0x%08x",
                          e.kind == zesim::EntryKind::DpOp ? "dp" : "kcall", e.name.c_str(), e.cmd,
                          e.result);
        out << line;
        if (!e.sent.empty()) out << " sent=" << hex(e.sent) << " returned=" << hex(e.returned);
        out << "\n";
    }
    return true;
}

bool sim_fail(std::ostream &out, const std::vector<std::string> &args) {
    std::vector<uint32_t> v;
    if (args.size() < 4) {
        out << "usage: sim fail CMD|CALL CODE [NTH]\n";
        return false;
    }
    if (!numbers(out, args, 3, v)) return false;
    uint64_t cmd;
    if (parse_number(args[2], cmd))
        zesim::fail(static_cast<uint32_t>(cmd), v[0], v.size() > 1 ? v[1] : 0);
    else
        zesim::fail_call(args[2].c_str(), v[0], v.size() > 1 ? v[1] : 0);
    return true;
}

bool sim_clear_faults(std::ostream &, const std::vector<std::string> &) {
    zesim::clear_faults();
    return true;
}

bool sim_block(std::ostream &out, const std::vector<std::string> &args) {
    std::vector<uint32_t> v;
    if (args.size() < 3 || !numbers(out, args, 2, v) || !block_exists(out, v[0])) return false;
    zesim::Bytes b;
    with_keys(v, 1, [&](std::initializer_list<uint32_t> k) { b = zesim::block(v[0], k); });
    char line[80];
    for (size_t off = 0; off < b.size(); off += 16) {
        std::snprintf(line, sizeof line, "%04zx:", off);
        out << line;
        for (size_t i = off; i < off + 16 && i < b.size(); i += 4) {
            uint32_t w = 0;
            for (size_t k = 0; k < 4 && i + k < b.size(); ++k) w |= uint32_t(b[i + k]) << (8 * k);
            std::snprintf(line, sizeof line, " %08x", w);
            out << line;
        }
        out << "\n";
    }
    return true;
}

bool sim_set(std::ostream &out, const std::vector<std::string> &args) {
    std::vector<uint32_t> v;
    if (args.size() < 5 || !numbers(out, args, 2, v) || !block_exists(out, v[0])) {
        if (args.size() < 5) out << "usage: sim set CMD OFFSET VALUE [KEY...]\n";
        return false;
    }
    uint32_t length = zesim::find_block(v[0])->length;
    if (v[1] > length || length - v[1] < 4) {
        out << "sim: offset " << v[1] << " lies outside the " << length << "-byte block\n";
        return false;
    }
    with_keys(v, 3, [&](std::initializer_list<uint32_t> k) { zesim::set_word(v[0], v[1], v[2], k); });
    return true;
}

bool sim_blocks(std::ostream &out, const std::vector<std::string> &) {
    char line[160];
    for (const zesim::Area *area : zesim::areas()) {
        for (const zesim::BlockDesc &b : area->blocks) {
            std::snprintf(line, sizeof line, "%-10s get 0x%03x set 0x%03x %5u bytes  %s\n", area->name,
                          b.get_id, b.set_id, b.length, b.name);
            out << line;
        }
        for (const zesim::ActionDesc &a : area->actions) {
            std::snprintf(line, sizeof line, "%-10s cmd 0x%03x          %5u bytes  %s\n", area->name,
                          a.id, a.length, a.name);
            out << line;
        }
    }
    return true;
}

// "counters fill": every counter block shows where each word lies;
// "counters set CMD OFFSET VALUE [KEY]": one 64-bit counter (low word at
// OFFSET, high word after it).
bool sim_counters(std::ostream &out, const std::vector<std::string> &args) {
    if (args.size() == 3 && args[2] == "fill") {
        zesim::fill_counters();
        return true;
    }
    if (args.size() < 6 || args.size() > 7 || args[2] != "set") {
        out << "usage: sim counters fill | sim counters set CMD OFFSET VALUE [KEY]\n";
        return false;
    }
    uint64_t value;
    if (!parse_number(args[5], value)) {
        out << "sim: bad number '" << args[5] << "'\n";
        return false;
    }
    std::vector<uint32_t> v;
    if (!numbers(out, {args[3], args[4]}, 0, v) || !block_exists(out, v[0])) return false;
    std::vector<uint32_t> key;
    if (args.size() == 7 && !numbers(out, {args[6]}, 0, key)) return false;
    const bool set = key.empty() ? zesim::set_counter(v[0], v[1], value)
                                 : zesim::set_counter(v[0], v[1], value, {key[0]});
    if (!set) out << "sim: offset " << v[1] << " lies outside block " << v[0] << "\n";
    return set;
}

// "save FILE" / "load FILE": the stored blocks and the bracket state as a
// text file. Faults and the log are not state: a load keeps the current ones.
bool sim_state_file(std::ostream &out, const std::vector<std::string> &args) {
    std::string error = "usage: sim " + args[1] + " FILE";
    if (args.size() == 3 &&
        (args[1] == "save" ? zesim::save_state(args[2], error) : zesim::load_state(args[2], error)))
        return true;
    out << "sim: " << error << "\n";
    return false;
}


const SimCommand kSimCommands[] = {
    {"reset", "sim reset", "forget every stored block, the log and the faults", sim_reset, true},
    {"log", "sim log [N]", "the last N driver commands (default 20)", sim_log},
    {"fail", "sim fail CMD|CALL CODE [NTH]", "fail a command id or named call (every time, or the NTH)",
     sim_fail, true},
    {"clear-faults", "sim clear-faults", "remove every injected fault", sim_clear_faults, true},
    {"block", "sim block CMD [KEY...]", "show a stored block as words", sim_block},
    {"set", "sim set CMD OFFSET VALUE [KEY...]", "change one word of a stored block", sim_set, true},
    {"blocks", "sim blocks", "list the simulated blocks and commands", sim_blocks},
    {"counters", "sim counters fill|set ...",
     "fill every counter block with its offsets; 'set CMD OFFSET VALUE [KEY]': one 64-bit counter",
     sim_counters, true},
    {"save", "sim save FILE", "write the stored blocks and the bracket state (not the faults or the log)",
     sim_state_file},
    {"load", "sim load FILE", "restore them; a malformed file changes nothing", sim_state_file, true},
};

}  // namespace

std::span<const SimCommand> sim_commands() { return kSimCommands; }

bool run_sim(std::ostream &out, const std::vector<std::string> &words) {
    if (words.size() < 2) {
        for (const SimCommand &s : kSimCommands) out << help_line(s.usage, s.summary);
        return words.size() == 1;
    }
    for (const SimCommand &s : kSimCommands) {
        if (words[1] != s.name) continue;
        if (!need_simulator(out) || !s.run(out, words)) return false;
        // A replay runs it again from the line that ran it.
        if (s.replayed) ze_host_record_text(quoted_line(words).c_str());
        return true;
    }
    out << "sim: no sub-command '" << words[1] << "'\n";
    return false;
}

}  // namespace zesh
