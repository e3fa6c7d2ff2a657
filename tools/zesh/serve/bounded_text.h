// Everything the shell prints while one line runs, kept up to the answer's
// text limit: the rest is counted as cut, not stored.
#pragma once

#include <cstddef>
#include <streambuf>
#include <string>

namespace zesh::serve {

class BoundedText : public std::streambuf {
public:
    explicit BoundedText(size_t limit) : limit_(limit) {}

    bool truncated() const { return truncated_; }
    std::string release() { return std::move(text_); }

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char *s, std::streamsize n) override;

private:
    void append(const char *text, size_t len);

    size_t limit_;
    std::string text_;
    bool truncated_ = false;
};

}  // namespace zesh::serve
