#include "options.h"

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace zesh::serve {

const char *const kServeUsage =
    "usage: zesh serve --socket PATH [--device NODE] [--mode 0660] [--group G]\n"
    "                  [--allow-uid U,...] [--allow-gid G,...] [--allow-board-write U,...]\n"
    "                  [--foreground] [--syslog]\n"
    "  serves the registered commands to other processes on a Unix-domain socket\n"
    "  --socket PATH        the socket (a stale one is replaced, a live one kept)\n"
    "  --device NODE        send datapath commands to NODE instead of the simulator\n"
    "  --mode M, --group G  permissions and group of the socket file (default 0660)\n"
    "  --allow-uid, --allow-gid  who may connect (default: this uid and root; the\n"
    "                       socket's group when --group is given)\n"
    "  --allow-board-write U,...  users whose lines may write board memory\n"
    "  --foreground         do not detach\n"
    "  --syslog             log to syslog instead of standard error\n";

namespace {

bool number(std::string_view s, unsigned long &v, int base = 10) {
    if (s.empty()) return false;
    std::string text(s);
    char *end = nullptr;
    errno = 0;
    v = std::strtoul(text.c_str(), &end, base);
    return !errno && *end == '\0' && v <= 0xffffffffu;
}

// A user or group by number or by name.
template <class Id, class Entry>
bool id_of(std::string_view s, Id &id, Entry *(*by_name)(const char *), Id Entry::*member) {
    unsigned long v;
    if (number(s, v)) {
        id = static_cast<Id>(v);
        return true;
    }
    const Entry *e = by_name(std::string(s).c_str());
    if (e) id = e->*member;
    return e != nullptr;
}

bool user_id(std::string_view s, uid_t &id) { return id_of(s, id, getpwnam, &passwd::pw_uid); }
bool group_id(std::string_view s, gid_t &id) { return id_of(s, id, getgrnam, &group::gr_gid); }

template <class Id, class Lookup>
bool id_list(std::string_view list, std::vector<Id> &out, Lookup lookup) {
    while (true) {
        size_t comma = list.find(',');
        Id id;
        if (!lookup(list.substr(0, comma), id)) return false;
        out.push_back(id);
        if (comma == std::string_view::npos) return true;
        list.remove_prefix(comma + 1);
    }
}

}  // namespace

std::optional<Options> parse_options(int argc, char **argv, std::string &error) {
    Options o;
    bool uids_given = false;
    for (int i = 0; i < argc; ++i) {
        std::string_view opt = argv[i];
        if (opt == "--foreground") {
            o.foreground = true;
            continue;
        }
        if (opt == "--syslog") {
            o.syslog = true;
            continue;
        }
        if (i + 1 >= argc) {
            error = "unknown option or missing value: " + std::string(opt);
            return std::nullopt;
        }
        std::string_view value = argv[++i];
        bool ok = true;
        unsigned long v = 0;
        gid_t gid = 0;
        if (opt == "--socket") {
            o.socket = value;
        } else if (opt == "--device") {
            o.device = value;
        } else if (opt == "--mode") {
            ok = number(value, v, 8) && v <= 07777;
            o.mode = static_cast<mode_t>(v);
        } else if (opt == "--group") {
            ok = group_id(value, gid);
            o.group = gid;
        } else if (opt == "--allow-uid") {
            ok = id_list(value, o.allow_uid, user_id);
            uids_given = true;
        } else if (opt == "--allow-gid") {
            ok = id_list(value, o.allow_gid, group_id);
        } else if (opt == "--allow-board-write") {
            ok = id_list(value, o.board_writers, user_id);
        } else {
            error = "unknown option " + std::string(opt);
            return std::nullopt;
        }
        if (!ok) {
            error = "bad value '" + std::string(value) + "' for " + std::string(opt);
            return std::nullopt;
        }
    }
    if (o.socket.empty()) {
        error = "--socket PATH is required";
        return std::nullopt;
    }
    if (!uids_given) o.allow_uid = {getuid(), 0};
    if (o.allow_gid.empty() && o.group) o.allow_gid = {*o.group};
    return o;
}

}  // namespace zesh::serve
