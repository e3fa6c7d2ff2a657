// The interface manager's registry of named commands.
#include <string>
#include <vector>

#include "ze_host.h"

namespace {

struct Entry {
    std::string name;
    ze_ifm_handler_f handler;
};

struct Registry {
    std::vector<Entry> entries;
    uint32_t fail_in = 0;  // registrations left before the forced failure
    uint32_t fail_code = 0;
};

Registry &registry() {
    static Registry r;
    return r;
}

}  // namespace

extern "C" {

uint32_t ze_ifm_regapi(const char *name, ze_ifm_handler_f handler) {
    Registry &r = registry();
    if (r.fail_code && r.fail_in-- == 0) {
        uint32_t code = r.fail_code;
        r.fail_code = 0;
        return code;
    }
    if (!name || !handler) return ZE_HOST_ERR_UNSUPPORTED;
    for (Entry &e : r.entries)
        if (e.name == name) {
            e.handler = handler;  // registering a name again replaces its handler
            return 0;
        }
    r.entries.push_back({name, handler});
    return 0;
}

ze_ifm_handler_f ze_host_ifm_find(const char *name) {
    for (const Entry &e : registry().entries)
        if (name && e.name == name) return e.handler;
    return nullptr;
}

uint32_t ze_host_ifm_count(void) { return static_cast<uint32_t>(registry().entries.size()); }

const char *ze_host_ifm_at(uint32_t i, ze_ifm_handler_f *handler) {
    const auto &entries = registry().entries;
    if (i >= entries.size()) return nullptr;
    if (handler) *handler = entries[i].handler;
    return entries[i].name.c_str();
}

void ze_host_ifm_clear(void) { registry().entries.clear(); }

void ze_host_ifm_fail_at(uint32_t nth, uint32_t code) {
    registry().fail_in = nth;
    registry().fail_code = code;
}

}  // extern "C"
