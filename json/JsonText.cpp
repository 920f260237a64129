// SPDX-License-Identifier: MIT
#include "json/JsonText.h"

#include "lexical/ItemTypeTable.h"
#include "streams/TextRun.h"
#include "xml/TextWriting.h"

#include <cstdint>

namespace ZrXmlLib16 {

namespace {

/// Control characters, apart from a few.
// kept: required behaviour. Quotation marks and backslashes are copied as well, although they end or change the string.
struct ControlEscapes {
    static bool IsSpecial(wchar_t c)
    {
        return static_cast<std::uint32_t>(c) < 32 && c != L'\b' && c != L'\t' && c != L'\f';
    }
    static __m128i Candidates(__m128i four)
    {
        return _mm_cmpeq_epi32(_mm_and_si128(four, _mm_set1_epi32(~31)), _mm_setzero_si128());
    }
};

void AppendControl(CTextStream& stream, std::uint32_t code)
{
    constexpr wchar_t digits[] = L"0123456789ABCDEF";
    AppendLiteral(stream, L"\\u00");
    stream.Append(digits[code >> 4]);
    stream.Append(digits[code & 15]);
}

/// Ends at a NUL, if there is one.
void AppendEscaped(CTextStream& stream, const wchar_t* position, const wchar_t* end, const std::wstring& endOfLine)
{
    TextRun::Prefetch prefetch(position, end);
    while (position != end) {
        prefetch.At(position);
        const wchar_t* const runEnd = TextRun::EndOfPiece(position, end);
        {
            TextRun run(stream, static_cast<std::size_t>(runEnd - position));
            position = run.PutPlain(position, runEnd, ControlEscapes());
        }
        if (position == runEnd) {
            continue;
        }
        switch (const wchar_t control = *position++) {
        case 0:
            return;
        case L'\n':
            stream.Append(endOfLine);
            break;
        case L'\r': // kept: required behaviour. Carriage returns are dropped.
            break;
        default:
            AppendControl(stream, static_cast<std::uint32_t>(control));
        }
    }
}

} // namespace

// kept: required behaviour. NaN and INF are bare like all numbers.
void AppendJsonValue(CTextStream& stream, const std::wstring& value, ItemType type, const std::wstring& endOfLine)
{
    const ItemTypeRow* const row = FindItemType(type);
    if (row && row->isBareInJson) {
        stream.Append(value);
    } else {
        AppendJsonString(stream, value, endOfLine);
    }
}

void AppendJsonString(CTextStream& stream, const std::wstring& value, const std::wstring& endOfLine)
{
    const wchar_t* position = value.data();
    const wchar_t* const end = position + value.size();
    const wchar_t* const runEnd = TextRun::EndOfPiece(position, end);
    {
        TextRun run(stream, 2 + static_cast<std::size_t>(runEnd - position));
        run.Put(L'"');
        position = run.PutPlain(position, runEnd, ControlEscapes());
        if (position == end) {
            run.Put(L'"');
            return;
        }
    }
    AppendEscaped(stream, position, end, endOfLine);
    stream.Append(L'"');
}

void AppendJsonText(CTextStream& stream, const std::wstring& text, const std::wstring& endOfLine)
{
    AppendEscaped(stream, text.data(), text.data() + text.size(), endOfLine);
}

} // namespace ZrXmlLib16
