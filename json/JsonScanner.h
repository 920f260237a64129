// SPDX-License-Identifier: MIT
#ifndef JSON_JSONSCANNER_H
#define JSON_JSONSCANNER_H

#include <cstddef>
#include <string>
#include <string_view>

namespace ZrXmlLib16 {

class IErrorPathProvider;

/// The tokens of a JSON text.
///
/// Strings and numbers are borrowed: from the text, or, where a string has escapes, from a buffer that the next string
/// overwrites.
class JsonScanner {
public:
    /// A word of the language, by what follows its first letter.
    struct Literal {
        const wchar_t* rest;
        std::size_t length;
        const wchar_t* messageAtEnd;
        const wchar_t* messageAtMismatch;
    };

    /// @param text outlives the scanner.
    /// @param pathProvider tells where a failure occurred; outlives the scanner.
    JsonScanner(std::wstring_view text, bool allowComments, const IErrorPathProvider& pathProvider);
    JsonScanner(const JsonScanner&) = delete;
    JsonScanner& operator=(const JsonScanner&) = delete;

    wchar_t GetCurrent() const { return m_current; }
    bool IsAtEnd() const { return m_isAtEnd; }

    /// Makes the next character that is neither whitespace nor part of a comment the current one.
    /// @return false when there is none.
    bool ReadNextToken();
    /// The string whose opening quotation mark is the current character, without quotes and escapes. The token behind
    /// it becomes the current one, like after numbers and literals.
    std::wstring_view ReadString();
    /// The number that begins with the current character, as it is spelt.
    std::wstring_view ReadNumber();
    void ReadLiteral(const Literal& literal);

    /// @throws CZrValidationException with line, position and path.
    [[noreturn]] void Fail(const wchar_t* message) const;
    /// For messages that name the current character.
    [[noreturn]] void FailAtCharacter(const wchar_t* message) const;
    [[noreturn]] void FailWithoutPosition(const wchar_t* message) const;

private:
    bool ReadNextChar();
    bool ReadNextChars(wchar_t* buffer, std::size_t count);
    bool FindNextToken();
    bool SkipComment();
    bool IsNextChar(wchar_t first, wchar_t second) const;
    void CountLine();
    void SkipDigits();
    void RequireDigit() const;
    void RequireNextChar(const wchar_t* messageAtEnd);
    std::wstring_view ReadEscapedString(const wchar_t* start);
    void ReadEscape();
    void ReadUnicodeEscape();
    int GetLine() const { return static_cast<int>(m_line); }
    int GetColumn() const { return static_cast<int>(m_next - m_lineStart); }

    const wchar_t* m_next; // behind the current character
    const wchar_t* const m_end;
    const wchar_t* m_lineStart; // the place that counts as column 0
    std::size_t m_line = 1;
    wchar_t m_current = 0;
    bool m_isAtEnd = false;
    const bool m_allowComments;
    std::wstring m_unescaped; // reused
    const IErrorPathProvider& m_pathProvider;
};

inline bool JsonScanner::ReadNextToken()
{
    const wchar_t* next = m_next;
    while (next != m_end && *next == L' ') {
        ++next;
    }
    if (next != m_end && *next > L' ' && *next != L'/') {
        m_current = *next;
        m_next = next + 1;
        return true;
    }
    return FindNextToken();
}

} // namespace ZrXmlLib16

#endif
