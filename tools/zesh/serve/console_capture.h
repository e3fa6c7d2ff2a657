// Everything the library and the shell print while one request runs, kept
// up to the answer's text limit: the rest is counted as cut, not stored.
#pragma once

#include <cstddef>
#include <streambuf>
#include <string>

namespace zesh::serve {

class ConsoleCapture : public std::streambuf {
public:
    explicit ConsoleCapture(size_t limit) : limit_(limit) {}
    // Routes the library's console output here until destroyed.
    void take_library_output();
    ~ConsoleCapture() override;

    void append(const char *text, size_t len);
    const std::string &text() const { return text_; }
    bool truncated() const { return truncated_; }
    std::string release() { return std::move(text_); }

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char *s, std::streamsize n) override;

private:
    size_t limit_;
    std::string text_;
    bool truncated_ = false;
    bool sink_taken_ = false;
};

}  // namespace zesh::serve
