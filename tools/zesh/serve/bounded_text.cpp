#include "bounded_text.h"

#include <algorithm>

namespace zesh::serve {

void BoundedText::append(const char *text, size_t len) {
    size_t room = limit_ - text_.size();
    if (len > room) truncated_ = true;
    text_.append(text, std::min(len, room));
}

BoundedText::int_type BoundedText::overflow(int_type c) {
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    char ch = traits_type::to_char_type(c);
    append(&ch, 1);
    return c;
}

std::streamsize BoundedText::xsputn(const char *s, std::streamsize n) {
    append(s, static_cast<size_t>(n));
    return n;
}

}  // namespace zesh::serve
