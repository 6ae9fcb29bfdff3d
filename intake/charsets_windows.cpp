// intake/charsets_windows.cpp - by the code pages of Windows.
#ifdef _WIN32

#include "intake/charsets.h"

#include "base/windows1252.h"

#include <array>
#include <charconv>
#include <windows.h>

namespace tallyhoop {

namespace {

struct NamedPage {
    std::string_view name;
    UINT page;
};

constexpr UINT kUtf16Low = 1200; ///< no code page for programs: converted by us
constexpr UINT kUtf16High = 1201;

constexpr std::array<NamedPage, 14> kNamedPages = {{{"utf-16", kUtf16Low},
                                                    {"utf-16le", kUtf16Low},
                                                    {"utf-16be", kUtf16High},
                                                    {"utf-7", CP_UTF7},
                                                    {"koi8-r", 20866},
                                                    {"koi8-u", 21866},
                                                    {"macintosh", 10000},
                                                    {"gb2312", 936},
                                                    {"gbk", 936},
                                                    {"gb18030", 54936},
                                                    {"big5", 950},
                                                    {"shift_jis", 932},
                                                    {"euc-kr", 949},
                                                    {"iso-2022-jp", 50220}}};

/// @returns the number at the end of a name that begins so, such as 1250 of "windows-1250"
std::optional<UINT> numberAfter(std::string_view name, std::string_view beginning)
{
    UINT number = 0;
    if (!startsWithFolded(name, beginning))
        return std::nullopt;
    name.remove_prefix(beginning.size());
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
    return error == std::errc{} && end == name.data() + name.size() ? std::optional{number} : std::nullopt;
}

std::optional<UINT> codePageOf(std::string_view charset)
{
    for (const NamedPage& named : kNamedPages)
        if (equalFolded(charset, named.name))
            return named.page;
    constexpr UINT kBeforeIso8859 = 28590;
    if (const auto part = numberAfter(charset, "iso-8859-"))
        return kBeforeIso8859 + *part;
    for (const std::string_view beginning : {"windows-", "cp", "ibm"})
        if (const auto page = numberAfter(charset, beginning))
            return page;
    return std::nullopt;
}

std::wstring wideFromUtf16(std::string_view bytes, bool isHighFirst)
{
    std::wstring wide;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        wide.push_back(static_cast<wchar_t>(isHighFirst ? first << 8 | second : second << 8 | first));
    }
    return wide;
}

std::wstring wideFrom(std::string_view bytes, UINT page)
{
    if (page == kUtf16Low || page == kUtf16High)
        return wideFromUtf16(bytes, page == kUtf16High);
    const auto size = static_cast<int>(bytes.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(page, 0, bytes.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(page, 0, bytes.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string utf8From(const std::wstring& wide)
{
    const auto size = static_cast<int>(wide.size());
    const int needed = WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), needed, nullptr, nullptr);
    return utf8;
}

} // namespace

std::optional<std::string> utf8FromCharset(std::string_view bytes, const std::string& charset)
{
    const std::optional<UINT> page = codePageOf(charset);
    if (!page || (*page != kUtf16Low && *page != kUtf16High && !IsValidCodePage(*page)))
        return std::nullopt;
    return utf8From(wideFrom(bytes, *page));
}

} // namespace tallyhoop

#endif
