#include "console_capture.h"

#include <algorithm>

#include "ze_host.h"

namespace zesh::serve {
namespace {
void to_capture(const char *text, size_t len, void *ctx) {
    static_cast<ConsoleCapture *>(ctx)->append(text, len);
}
}  // namespace

void ConsoleCapture::take_library_output() {
    ze_host_set_print_sink(to_capture, this);
    sink_taken_ = true;
}

ConsoleCapture::~ConsoleCapture() {
    if (sink_taken_) ze_host_set_print_sink(nullptr, nullptr);
}

void ConsoleCapture::append(const char *text, size_t len) {
    size_t room = limit_ - text_.size();
    if (len > room) truncated_ = true;
    text_.append(text, std::min(len, room));
}

ConsoleCapture::int_type ConsoleCapture::overflow(int_type c) {
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    char ch = traits_type::to_char_type(c);
    append(&ch, 1);
    return c;
}

std::streamsize ConsoleCapture::xsputn(const char *s, std::streamsize n) {
    append(s, static_cast<size_t>(n));
    return n;
}

}  // namespace zesh::serve
