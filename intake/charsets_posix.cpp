// intake/charsets_posix.cpp - by the C library.
#ifndef _WIN32

#include "intake/charsets.h"

#include <array>
#include <cstdint>
#include <iconv.h>

namespace tallyhoop {

namespace {

/// A conversion to UTF-8, ended at the end of its life.
class Conversion
{
public:
    explicit Conversion(const std::string& charset) : m_conversion{iconv_open("UTF-8", charset.c_str())} {}
    ~Conversion()
    {
        if (isThere())
            iconv_close(m_conversion);
    }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    /// The system's way to say that it does not know the set is a pointer with all bits set.
    bool isThere() const { return reinterpret_cast<std::intptr_t>(m_conversion) != -1; }

    std::string operator()(std::string_view text)
    {
        std::string bytes{text}; // iconv wants one that it may change, and does not change it
        std::string utf8;
        std::array<char, 4096> piece{};
        char* from = bytes.data();
        std::size_t left = bytes.size();
        while (left > 0) {
            char* to = piece.data();
            std::size_t room = piece.size();
            const std::size_t before = left;
            const bool isDone = iconv(m_conversion, &from, &left, &to, &room) != static_cast<std::size_t>(-1);
            utf8.append(piece.data(), to);
            if (!isDone && left == before && to == piece.data()) { // no character begins here
                utf8.push_back('?');
                ++from;
                --left;
            }
        }
        return utf8;
    }

private:
    iconv_t m_conversion;
};

} // namespace

std::optional<std::string> utf8FromCharset(std::string_view bytes, const std::string& charset)
{
    Conversion conversion{charset};
    if (!conversion.isThere())
        return std::nullopt;
    return conversion(bytes);
}

} // namespace tallyhoop

#endif
