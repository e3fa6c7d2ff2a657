// The simulator's state as a text file:
//
//   zesim state format 1
//   bracket closed                 (or "bracket open")
//   # global attributes            (the descriptor's name before its blocks)
//   block 0x100 0200000000...      (descriptor id, the stored bytes in hex)
//   ...
//   end 57                         (the number of block lines)
//
// Lines starting with '#' and blank lines are ignored. The end line guards
// against a file cut short; a load changes nothing unless the whole file is
// well formed.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "ze_sim.h"

namespace zesim {
namespace {

constexpr const char *kHeader = "zesim state format 1";

bool parse_u32(const std::string &s, uint32_t &v) {
    if (s.empty() || s[0] == '-') return false;
    char *end = nullptr;
    errno = 0;
    const unsigned long long n = std::strtoull(s.c_str(), &end, 0);
    if (errno || *end || n > UINT32_MAX) return false;
    v = static_cast<uint32_t>(n);
    return true;
}

// The meaningful lines of a file with their line numbers.
struct Line {
    size_t number;
    std::vector<std::string> words;
};

bool read_lines(const std::string &path, std::string &header, std::vector<Line> &lines, std::string &error) {
    std::ifstream in(path);
    if (!in) {
        error = "cannot open " + path;
        return false;
    }
    std::string text;
    for (size_t number = 1; std::getline(in, text); ++number) {
        if (!text.empty() && text.back() == '\r') text.pop_back();
        if (number == 1) {
            header = text;
            continue;
        }
        std::istringstream split(text);
        Line line{number, {}};
        for (std::string w; split >> w;) line.words.push_back(w);
        if (!line.words.empty() && line.words[0][0] != '#') lines.push_back(std::move(line));
    }
    return true;
}

bool parse(const std::vector<Line> &lines, State &s, std::string &error) {
    auto fail = [&](const Line &l, const std::string &what) {
        error = "line " + std::to_string(l.number) + ": " + what;
        return false;
    };
    if (lines.empty()) {
        error = "truncated: no bracket line";
        return false;
    }
    const Line &bracket = lines[0];
    if (bracket.words.size() != 2 || bracket.words[0] != "bracket" ||
        (bracket.words[1] != "open" && bracket.words[1] != "closed"))
        return fail(bracket, "expected 'bracket open' or 'bracket closed'");
    s.bracket_open = bracket.words[1] == "open";
    for (size_t i = 1; i < lines.size(); ++i) {
        const Line &l = lines[i];
        uint32_t n;
        if (l.words[0] == "end") {
            if (l.words.size() != 2 || !parse_u32(l.words[1], n)) return fail(l, "expected 'end COUNT'");
            if (n != s.blocks.size())
                return fail(l, "the file holds " + std::to_string(s.blocks.size()) + " blocks, its end line says " +
                                   l.words[1]);
            if (i + 1 != lines.size()) return fail(lines[i + 1], "text after the end line");
            return true;
        }
        Bytes content;
        if (l.words[0] != "block" || l.words.size() != 3 || !parse_u32(l.words[1], n) ||
            !from_hex(l.words[2], content))
            return fail(l, "expected 'block ID HEX'");
        s.blocks.emplace_back(n, std::move(content));
    }
    error = "truncated: no end line";
    return false;
}

}  // namespace

bool save_state(const std::string &path, std::string &error) {
    const State s = state();
    std::ofstream out(path);
    out << kHeader << "\nbracket " << (s.bracket_open ? "open" : "closed") << "\n";
    const BlockDesc *named = nullptr;
    for (const auto &[id, content] : s.blocks) {
        const BlockDesc *d = find_block(id);
        if (d != named) out << "# " << d->name << "\n";
        named = d;
        char head[24];
        std::snprintf(head, sizeof head, "block 0x%x ", id);
        out << head << to_hex(content) << "\n";
    }
    out << "end " << s.blocks.size() << "\n";
    out.close();
    if (!out) error = "cannot write " + path;
    return !!out;
}

bool load_state(const std::string &path, std::string &error) {
    std::string header;
    std::vector<Line> lines;
    if (!read_lines(path, header, lines, error)) return false;
    State s;
    std::string what;
    if (header != kHeader)
        what = header.starts_with("zesim state format ")
                   ? "state format " + header.substr(19) + " is not supported (this build reads format 1)"
                   : "not a simulator state file (its first line is not '" + std::string(kHeader) + "')";
    else if (parse(lines, s, what) && set_state(s, what))
        return true;
    error = path + ": " + what;
    return false;
}

}  // namespace zesim
