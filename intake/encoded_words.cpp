// intake/encoded_words.cpp - decodes each word, and joins those that follow each other.
#include "intake/encoded_words.h"

#include "base/windows1252.h"
#include "intake/mail_encodings.h"
#include "intake/mail_text.h"
#include "intake/plain_text.h"

#include <optional>
#include <utility>

namespace tallyhoop {

namespace {

/// Mail programs may write 75 characters, and some write more. A limit keeps the search for the end of a word short.
constexpr std::size_t kLongestWord = 2000;

/// An encoded word at the beginning of a text, such as `=?utf-8?q?Zo=C3=A9?=`.
struct Word {
    std::string charset;
    std::string bytes;
    std::size_t length = 0;
};

std::optional<Word> wordAt(std::string_view text)
{
    if (!text.starts_with("=?"))
        return std::nullopt;
    text = text.substr(0, kLongestWord);
    const std::size_t charsetEnd = text.find('?', 2);
    if (charsetEnd == std::string_view::npos || charsetEnd + 2 >= text.size() || text[charsetEnd + 2] != '?')
        return std::nullopt;
    const std::size_t begin = charsetEnd + 3;
    const std::size_t end = text.find("?=", begin);
    if (end == std::string_view::npos)
        return std::nullopt;
    const std::string_view content = text.substr(begin, end - begin);
    const std::string_view charset = text.substr(2, charsetEnd - 2);
    Word word{std::string{charset.substr(0, charset.find('*'))}, {}, end + 2};
    switch (text[charsetEnd + 1]) {
    case 'q':
    case 'Q':
        word.bytes = fromQuotedPrintable(content, true);
        return word;
    case 'b':
    case 'B':
        word.bytes = fromBase64(content);
        return word;
    default:
        return std::nullopt;
    }
}

/// Decodes a text from its beginning to its end.
class Decoder
{
public:
    std::string decoded(std::string_view text)
    {
        while (!text.empty()) {
            if (const std::optional<Word> word = wordAt(text)) {
                takeWord(*word);
                text.remove_prefix(word->length);
            } else {
                takePlain(text.front());
                text.remove_prefix(1);
            }
        }
        endWords();
        return isUtf8(m_utf8) ? m_utf8 : utf8Of(m_utf8);
    }

private:
    void takeWord(const Word& word)
    {
        if (!equalFolded(m_charset, word.charset))
            convert();
        m_charset = word.charset;
        m_bytes += word.bytes;
        m_blanks.clear();
        m_isAfterWord = true;
    }

    void takePlain(char letter)
    {
        if (m_isAfterWord && kMailBlanks.find(letter) != std::string_view::npos) {
            m_blanks.push_back(letter); // whether they count shows what follows them
            return;
        }
        endWords();
        m_utf8.push_back(letter);
    }

    void endWords()
    {
        convert();
        m_utf8 += std::exchange(m_blanks, {});
        m_isAfterWord = false;
    }

    void convert() { m_utf8 += inUtf8(std::exchange(m_bytes, {}), m_charset); }

    std::string m_utf8;
    std::string m_bytes; ///< of words that follow each other, in one character set
    std::string m_charset;
    std::string m_blanks; ///< after the last of them
    bool m_isAfterWord = false;
};

} // namespace

std::string withoutEncodedWords(std::string_view text) { return Decoder{}.decoded(text); }

} // namespace tallyhoop
