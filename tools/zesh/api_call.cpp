#include "api_call.h"

#include <algorithm>
#include <cstdio>

#include "values.h"

namespace zesh::api {

namespace {

bool is_input(Role r) { return r != Role::Out && r != Role::OutBytes && r != Role::Length; }
bool is_output(Role r) {
    return r == Role::Out || r == Role::InOut || r == Role::Bytes || r == Role::OutBytes;
}
Dir dir_of(Role r) { return !is_output(r) ? Dir::In : is_input(r) ? Dir::InOut : Dir::Out; }

size_t index_of(const Row &row, const char *name) {
    for (size_t i = 0; i < row.params.size(); ++i)
        if (!std::strcmp(row.params[i].name, name)) return i;
    return row.params.size();
}

uint32_t u32_at(const Bytes &b) {
    uint32_t v;
    std::memcpy(&v, b.data(), 4);
    return v;
}

// The bytes of a byte string that count: its length parameter's value.
uint32_t string_length(const Row &row, const Param &p, const std::vector<Bytes> &args) {
    size_t other = index_of(row, p.of);
    return other < args.size() ? std::min(u32_at(args[other]), kByteStringMax) : 0;
}

std::string element_name(const Param &p, uint32_t i) {
    return p.count > 1 ? std::string(p.name) + "[" + std::to_string(i) + "]" : std::string(p.name);
}

const char *role_text(Role r) {
    switch (r) {
        case Role::Value: return "in";
        case Role::In: return "in, by pointer";
        case Role::Out: return "out";
        case Role::InOut: return "in/out";
        case Role::Bytes: return "in/out, hex bytes";
        case Role::Length: return "set by the shell";
        case Role::OutBytes: return "out, hex bytes";
        case Role::Address: return "in, hex bytes passed by address";
    }
    return "?";
}

std::string c_param(const Param &p) {
    switch (p.role) {
        case Role::Value:
        case Role::Length:
        case Role::Address: return std::string(p.type) + " " + p.name;
        case Role::In: return std::string("const ") + p.type + " *" + p.name;
        default: return std::string(p.type) + " *" + p.name;
    }
}

}  // namespace

std::vector<Slot> slots_of(const Row &row) {
    std::vector<Slot> out;
    for (size_t i = 0; i < row.params.size(); ++i) {
        const Param &p = row.params[i];
        if (p.role == Role::Length) continue;
        for (uint32_t e = 0; e < p.count; ++e) {
            const std::string base = element_name(p, e);
            if (!p.fields) {
                out.push_back({i, Field{base, p.field, e * p.size, p.size, dir_of(p.role), false, {}}});
                continue;
            }
            for (Field f : parse_fields(p.fields, p.size, row.name)) {
                f.name = base + "." + f.name;
                f.offset += e * p.size;
                f.dir = dir_of(p.role);
                f.optional = true;
                f.fallback.assign(1, '0');
                out.push_back({i, f});
            }
        }
    }
    return out;
}

std::vector<Bytes> empty_args(const Row &row) {
    std::vector<Bytes> args;
    for (const Param &p : row.params) args.emplace_back(p.size * p.count, 0);
    return args;
}

bool fill_args(const Row &row, std::span<const std::string> words, std::vector<Bytes> &args,
               std::string &error) {
    std::vector<Slot> slots = slots_of(row);
    std::vector<Slot> inputs;
    for (const Slot &s : slots)
        if (s.field.dir != Dir::Out) inputs.push_back(s);
    std::vector<bool> given(inputs.size(), false);
    auto usage = [&] { return "\nusage: " + usage_of(row); };
    size_t positional = 0;
    for (const std::string &w : words) {
        size_t target = inputs.size();
        std::string value = w;
        size_t eq = w.find('=');
        if (eq != std::string::npos) {
            std::string name = w.substr(0, eq);
            value = w.substr(eq + 1);
            size_t matches = 0;
            for (size_t k = 0; k < inputs.size(); ++k) {
                const std::string &full = inputs[k].field.name;
                if (full == name) {
                    target = k;
                    matches = 1;
                    break;
                }
                size_t dot = full.rfind('.');
                if (dot != std::string::npos && full.substr(dot + 1) == name) {
                    target = k;
                    ++matches;
                }
            }
            if (matches != 1) {
                std::vector<std::string> names;
                for (const Slot &s : inputs) names.push_back(s.field.name);
                std::string hint = matches ? "" : did_you_mean(name, names);
                error = (matches ? "'" + name + "' names more than one field: write PARAM." + name
                                 : "no input '" + name + "'") +
                        (hint.empty() ? "" : "; " + hint) + usage();
                return false;
            }
        } else {
            target = positional++;
            if (target >= inputs.size()) {
                error = "too many values" + usage();
                return false;
            }
        }
        const Slot &s = inputs[target];
        const Param &p = row.params[s.param];
        Field f = s.field;
        if (p.role == Role::Bytes || p.role == Role::Address) {
            std::vector<uint8_t> bytes;
            if (!parse_hex_bytes(value, bytes) || bytes.size() > kByteStringMax) {
                error = "bad value '" + value + "' for " + f.name + ": hex bytes, at most " +
                        std::to_string(kByteStringMax);
                return false;
            }
            std::copy(bytes.begin(), bytes.end(), args[s.param].begin());
            size_t length = index_of(row, p.of ? p.of : "");
            if (length < args.size()) {
                uint32_t n = static_cast<uint32_t>(bytes.size());
                std::memcpy(args[length].data(), &n, 4);
            }
        } else if (!store_value(f, args[s.param].data(), value, error)) {
            return false;
        }
        given[target] = true;
    }
    std::string missing;
    for (size_t k = 0; k < inputs.size(); ++k)
        if (!given[k] && !inputs[k].field.optional) missing += (missing.empty() ? "" : " ") + inputs[k].field.name;
    if (!missing.empty()) {
        error = "missing " + missing + usage();
        return false;
    }
    for (const Param &p : row.params) {
        if (p.role != Role::OutBytes) continue;
        size_t size = index_of(row, p.of);
        if (u32_at(args[size]) > kByteStringMax) {
            error = std::string(p.of) + " is at most " + std::to_string(kByteStringMax) +
                    " here: the shell's buffer for " + p.name + usage();
            return false;
        }
    }
    return true;
}

bool args_fit(const Row &row, const std::vector<Bytes> &args, std::string &why) {
    const std::vector<Bytes> sizes = empty_args(row);
    if (args.size() != sizes.size()) {
        why = std::string(row.name) + " takes " + std::to_string(sizes.size()) + " parameters, not " +
              std::to_string(args.size());
        return false;
    }
    for (size_t i = 0; i < args.size(); ++i) {
        const Param &p = row.params[i];
        if (args[i].size() != sizes[i].size()) {
            why = std::string(p.name) + " of " + row.name + " is " + std::to_string(sizes[i].size()) +
                  " bytes, not " + std::to_string(args[i].size());
            return false;
        }
    }
    for (size_t i = 0; i < args.size(); ++i) {
        const Param &p = row.params[i];
        // A byte string's length word, or an output buffer's size word, is
        // at most the buffer it measures.
        size_t word = args.size(), buffer = args.size();
        if (p.role == Role::Length) word = i, buffer = index_of(row, p.of);
        if (p.role == Role::OutBytes) word = index_of(row, p.of), buffer = i;
        if (word < args.size() && buffer < args.size() && u32_at(args[word]) > args[buffer].size()) {
            why = std::string(row.params[word].name) + " = " + std::to_string(u32_at(args[word])) +
                  " is more than the " + std::to_string(args[buffer].size()) + " bytes of " +
                  row.params[buffer].name;
            return false;
        }
        if (p.field == FieldType::Text && std::memchr(args[i].data(), 0, args[i].size()) == nullptr) {
            why = std::string(p.name) + " of " + row.name + " is not terminated within its " +
                  std::to_string(args[i].size()) + " bytes";
            return false;
        }
    }
    return true;
}

uint32_t invoke(const Row &row, std::vector<Bytes> &args) {
    std::vector<uint8_t *> ptrs;
    for (Bytes &b : args) ptrs.push_back(b.data());
    return row.call(row.params, ptrs);
}

namespace {

// Each output slot with the bytes it reads, sized to what counts.
template <class Fn>
void each_output(const Row &row, const std::vector<Bytes> &args, Fn &&fn) {
    for (const Slot &s : slots_of(row)) {
        if (s.field.dir == Dir::In || s.param >= args.size()) continue;
        const Param &p = row.params[s.param];
        Field f = s.field;
        if (p.role == Role::Bytes || p.role == Role::OutBytes) f.size = string_length(row, p, args);
        if (f.offset + f.size > args[s.param].size()) continue;
        fn(f, args[s.param].data());
    }
}

}  // namespace

std::string format_outputs(const Row &row, const std::vector<Bytes> &args) {
    std::string s;
    each_output(row, args, [&](const Field &f, const uint8_t *base) { s += "  " + format_value(f, base) + "\n"; });
    return s;
}

std::string json_outputs(const Row &row, const std::vector<Bytes> &args) {
    std::string s;
    each_output(row, args, [&](const Field &f, const uint8_t *base) {
        add_json_member(s, f.name, json_value(f, base));
    });
    return "{" + s + "}";
}

std::string signature_of(const Row &row) {
    std::string s = std::string("uint32_t ") + row.name + "(";
    for (size_t i = 0; i < row.params.size(); ++i) s += (i ? ", " : "") + c_param(row.params[i]);
    return s + (row.params.empty() ? "void)" : ")");
}

std::string usage_of(const Row &row) {
    std::string s = row.name;
    for (const Param &p : row.params) {
        if (!is_input(p.role)) continue;
        s += ' ';
        if (p.fields) {
            s += '[';
            s += p.name;
            s += p.count > 1 ? "[i].FIELD=VALUE ...]" : ".FIELD=VALUE ...]";
        } else if (p.count > 1) {
            s += element_name(p, 0);
            s += " ... ";
            s += element_name(p, p.count - 1);
        } else {
            s += p.name;
        }
    }
    return s;
}

std::string describe(const Row &row) {
    static const std::pair<Flag, const char *> kFlagText[] = {
        {kNoDriver, "sends nothing to the driver"},
        {kKernelCall, "reaches named kernel calls"},
        {kDpLibrary, "reaches the datapath API library"},
        {kWritesBoard, "writes board memory"},
        {kRawAnswer, "returns the driver's or kernel's answer unchanged"},
    };
    std::string s = signature_of(row) + "\n  " + row.summary + "\n";
    for (const Param &p : row.params) {
        std::string note = p.count > 1 ? " (" + element_name(p, 0) + " to " + element_name(p, p.count - 1) + ")" : "";
        if (p.fields) note += " (fields below; left out: 0)";
        char line[256];
        std::snprintf(line, sizeof line, "  %-12s %-28s %s%s\n", p.name, role_text(p.role), p.what, note.c_str());
        s += line;
    }
    for (const Slot &slot : slots_of(row)) {
        const Param &p = row.params[slot.param];
        if (!p.fields || slot.field.offset >= p.size) continue;  // an array's first element stands for all
        char line[160];
        std::snprintf(line, sizeof line, "    %-24s %-6s at %u\n", slot.field.name.c_str(),
                      type_name(slot.field.type), slot.field.offset);
        s += line;
    }
    std::string flags;
    for (auto [flag, text] : kFlagText)
        if (row.flags & flag) flags += (flags.empty() ? "" : "; ") + std::string(text);
    if (!flags.empty()) s += "  " + flags + "\n";
    s += "  usage: api " + usage_of(row) + "\n";
    s += std::string("  example: api ") + row.name + (*row.example.args ? " " : "") + row.example.args + "\n";
    if (row.example.setup) s += std::string("  after: ") + row.example.setup + "\n";
    return s;
}

}  // namespace zesh::api
