// SPDX-License-Identifier: MIT
#include "json/JsonText.h"

#include "lexical/ItemTypeTable.h"
#include "xml/TextWriting.h"

#include <cstdint>

namespace ZrXmlLib16 {

namespace {

constexpr std::uint32_t Bit(wchar_t c)
{
    return std::uint32_t{1} << c;
}

// kept: required behaviour. Quotation marks and backslashes are copied as well, although they end or change the string.
constexpr std::uint32_t COPIED_CONTROLS = Bit(L'\b') | Bit(L'\t') | Bit(L'\f');

bool IsCopied(std::uint32_t code)
{
    return code >= 32 || ((COPIED_CONTROLS >> code) & 1) != 0;
}

void AppendControl(CTextStream& stream, std::uint32_t code)
{
    constexpr wchar_t digits[] = L"0123456789ABCDEF";
    AppendLiteral(stream, L"\\u00");
    stream.Append(digits[code >> 4]);
    stream.Append(digits[code & 15]);
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
    stream.Append(L'"');
    AppendJsonText(stream, value, endOfLine);
    stream.Append(L'"');
}

void AppendJsonText(CTextStream& stream, const std::wstring& text, const std::wstring& endOfLine)
{
    const wchar_t* run = text.c_str();
    for (const wchar_t* position = run;; ++position) {
        const auto code = static_cast<std::uint32_t>(*position);
        if (IsCopied(code)) {
            continue;
        }
        stream.Append(run, static_cast<unsigned long>(position - run));
        run = position + 1;
        switch (code) {
        case 0:
            return;
        case L'\n':
            stream.Append(endOfLine);
            break;
        case L'\r': // kept: required behaviour. Carriage returns are dropped.
            break;
        default:
            AppendControl(stream, code);
        }
    }
}

} // namespace ZrXmlLib16
