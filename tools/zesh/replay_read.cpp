// Reading a recording back: the header, then one call per line (see the
// README's "Record and replay" for the line format).
#include <algorithm>
#include <istream>
#include <map>
#include <optional>
#include <sstream>

#include "replay.h"
#include "shell.h"
#include "values.h"
#include "ze_host.h"

namespace zesh {
namespace {

constexpr const char *kHeader = ZE_HOST_RECORD_HEADER_STEM ZE_HOST_RECORD_FORMAT;
constexpr const char *kHeaderStem = ZE_HOST_RECORD_HEADER_STEM;
constexpr const char *kNodeStem = "/dev/ze_ioctl_";

using Fields = std::map<std::string, std::string>;

class LineParser {
public:
    LineParser(const std::string &text, RecordedCall &c) : text_(text), c_(c) {}

    bool parse() {
        std::istringstream split(text_);
        std::vector<std::string> w;
        for (std::string word; split >> word;) w.push_back(word);
        if (w[0] == "sim") return sim();
        static const std::map<std::string, RecordedCall::Kind> kKinds = {
            {"ioctl", RecordedCall::Kind::Ioctl},
            {"kcall", RecordedCall::Kind::KernelCall},
            {"dp", RecordedCall::Kind::DpBlock}};
        auto kind = kKinds.find(w[0]);
        if (kind == kKinds.end()) return refuse("no call kind '" + w[0] + "'");
        if (w.size() < 2) return refuse("a call without a node or name");
        c_.kind = kind->second;
        c_.target = w[1];
        // A replay on a device node reaches the datapath driver's nodes only.
        if (c_.kind == RecordedCall::Kind::Ioctl && !c_.target.starts_with(kNodeStem))
            return refuse("'" + c_.target + "' is not a datapath driver node (" + kNodeStem + "*)");
        for (size_t i = 2; i < w.size(); ++i) {
            const size_t eq = w[i].find('=');
            if (eq == std::string::npos || !fields_.emplace(w[i].substr(0, eq), w[i].substr(eq + 1)).second)
                return refuse("'" + w[i] + "' is not a field or repeats one");
        }
        if (!number("result", c_.result)) return false;
        const bool ok = c_.kind == RecordedCall::Kind::Ioctl        ? number("cmd", c_.number) && block()
                        : c_.kind == RecordedCall::Kind::KernelCall ? number("len", c_.number) && payload()
                                                                    : dp();
        if (ok && !fields_.empty()) return refuse("unknown field '" + fields_.begin()->first + "'");
        return ok;
    }

    const std::string &error() const { return error_; }

private:
    bool refuse(const std::string &text) {
        error_ = text;
        return false;
    }

    // A sim line is one shell command: "sim" and its sub-command.
    bool sim() {
        auto cmds = split_line(text_);
        if (cmds.size() != 1 || cmds[0].size() < 2 || cmds[0][0] != "sim")
            return refuse("a sim line holds one sim command");
        auto rows = sim_commands();
        if (std::none_of(rows.begin(), rows.end(),
                         [&](const SimCommand &s) { return s.replayed && cmds[0][1] == s.name; }))
            return refuse("'sim " + cmds[0][1] + "' is not a simulator command that a replay runs");
        c_.kind = RecordedCall::Kind::Sim;
        c_.words = cmds[0];
        return true;
    }

    std::optional<std::string> take(const char *key) {
        auto it = fields_.find(key);
        if (it == fields_.end()) return std::nullopt;
        std::string v = it->second;
        fields_.erase(it);
        return v;
    }

    bool number(const char *key, uint32_t &v) {
        auto text = take(key);
        uint64_t n;
        if (!text) return refuse(std::string("no field ") + key);
        if (!parse_number(*text, n) || n > UINT32_MAX) return refuse(std::string("bad number in ") + key);
        v = static_cast<uint32_t>(n);
        return true;
    }

    bool block() {
        auto unknown = take("block"), sent = take("sent"), returned = take("returned");
        if (unknown) {
            c_.block = RecordedCall::Block::Unknown;
            return *unknown == "unknown" && !sent && !returned ? true : refuse("block=unknown stands alone");
        }
        if (!sent && !returned) return true;
        c_.block = RecordedCall::Block::Known;
        if (sent && returned && zesim::from_hex(*sent, c_.sent) && zesim::from_hex(*returned, c_.returned) &&
            c_.sent.size() == c_.returned.size())
            return true;
        return refuse("sent and returned must be hex bytes of one length");
    }

    // A kernel call's payload has the call's length; its output-length word
    // is recorded as sent and as returned, or not at all.
    bool payload() {
        if (!block()) return false;
        if (c_.block == RecordedCall::Block::Unknown ||
            (c_.block == RecordedCall::Block::Known && c_.sent.size() != c_.number))
            return refuse("the payload does not hold len bytes");
        c_.has_outlen = fields_.count("outlen_sent") || fields_.count("outlen_returned");
        return !c_.has_outlen ||
               (number("outlen_sent", c_.outlen_sent) && number("outlen_returned", c_.outlen_returned));
    }

    // A datapath library call exchanges a block with a command id, or is an
    // operation with an index.
    bool dp() {
        if (!fields_.count("index")) return number("cmd", c_.number) && block();
        c_.kind = RecordedCall::Kind::DpOp;
        return number("index", c_.number);
    }

    const std::string &text_;
    RecordedCall &c_;
    Fields fields_;
    std::string error_;
};

}  // namespace

bool read_recording(std::istream &in, std::vector<RecordedCall> &calls, std::string &error) {
    std::string text, note;
    if (!std::getline(in, text) || text != kHeader) {
        error = text.starts_with(kHeaderStem)
                    ? "recording format " + text.substr(std::string(kHeaderStem).size()) +
                          " is not supported (this zesh reads format " ZE_HOST_RECORD_FORMAT ")"
                    : std::string("not a recording (its first line is not '") + kHeader + "')";
        return false;
    }
    for (size_t line = 2; std::getline(in, text); ++line) {
        if (!text.empty() && text.back() == '\r') text.pop_back();
        const size_t first = text.find_first_not_of(" \t");
        if (first == std::string::npos) continue;
        if (text[first] == '#') {
            note = "line " + std::to_string(line) + ": " + text;
            continue;
        }
        RecordedCall c;
        c.line = line;
        c.note = note;
        LineParser parser(text, c);
        if (!parser.parse()) {
            error = "line " + std::to_string(line) + ": " + parser.error();
            return false;
        }
        calls.push_back(std::move(c));
    }
    return true;
}

}  // namespace zesh
