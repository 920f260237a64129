// SPDX-License-Identifier: MIT
#include "JsonEscapes.h"

#include "ZrXmlLib16/AttributeCol.h"
#include "ZrXmlLib16/ElementCol.h"
#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/ZrException.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace Convert {

using ZrXmlLib16::CElement;

namespace {

struct Escape {
    wchar_t character;
    wchar_t letter;
};

constexpr Escape ESCAPES[] = {
    {L'"', L'"'}, {L'\\', L'\\'}, {L'\b', L'b'}, {L'\f', L'f'}, {L'\n', L'n'}, {L'\r', L'r'}, {L'\t', L't'}};

const Escape* FindEscape(wchar_t character)
{
    const Escape* const found = std::find_if(
        std::begin(ESCAPES), std::end(ESCAPES), [&](const Escape& row) { return row.character == character; });
    return found == std::end(ESCAPES) ? nullptr : found;
}

bool NeedsEscapes(const std::wstring& text)
{
    return std::any_of(text.begin(), text.end(), FindEscape);
}

std::wstring Escaped(const std::wstring& text)
{
    std::wstring escaped;
    for (const wchar_t character : text) {
        if (const Escape* escape = FindEscape(character)) {
            escaped.append({L'\\', escape->letter});
        } else {
            escaped += character;
        }
    }
    return escaped;
}

/// The number that four hexadecimal digits make, or -1.
int ParseUnit(const unsigned char* digits, const unsigned char* end)
{
    constexpr int DIGITS = 4;
    if (end - digits < DIGITS) {
        return -1;
    }
    int unit = 0;
    for (const unsigned char* digit = digits; digit != digits + DIGITS; ++digit) {
        const int letter = *digit | 0x20;
        const bool isLetter = letter >= 'a' && letter <= 'f';
        if (!isLetter && (*digit < '0' || *digit > '9')) {
            return -1;
        }
        unit = unit * 16 + (isLetter ? letter - 'a' + 10 : *digit - '0');
    }
    return unit;
}

/// Appends the characters of consecutive escapes, which may be halves of surrogate pairs.
void AppendUnits(const std::wstring& units, Bytes& plain)
{
    const std::string text = ZrXmlLib16::CEncoder::UnicodeToUtf8(Escaped(units));
    plain.insert(plain.end(), text.begin(), text.end());
}

} // namespace

Bytes DecodeUnicodeEscapes(const Bytes& json)
{
    constexpr int ESCAPE_LENGTH = 6;
    Bytes plain;
    plain.reserve(json.size());
    const unsigned char* at = json.data();
    const unsigned char* const end = at + json.size();
    while (at != end) {
        std::wstring units;
        for (int unit = 0; end - at >= ESCAPE_LENGTH && at[0] == '\\' && at[1] == 'u'; at += ESCAPE_LENGTH) {
            unit = ParseUnit(at + 2, end);
            if (unit < 0) {
                break;
            }
            units += static_cast<wchar_t>(unit);
        }
        if (!units.empty()) {
            AppendUnits(units, plain);
            continue;
        }
        // The character behind a backslash begins no escape.
        const int length = *at == '\\' && end - at >= 2 ? 2 : 1;
        plain.insert(plain.end(), at, at + length);
        at += length;
    }
    return plain;
}

void EscapeForJson(CElement& tree, const ZrXmlLib16::CSerializationContext& context)
{
    const ZrXmlLib16::CNamespaceAliasMap& aliases = context.GetNamespaceAliases();
    std::wstring uris = context.GetDefaultNamespaceURI();
    for (int index = 0; index < aliases.GetNamespaceCount(); ++index) {
        uris += aliases.GetNamespaceAt(index);
    }
    if (NeedsEscapes(uris)) {
        throw ZrXmlLib16::CZrException(L"A namespace of the document cannot be written as JSON.");
    }
    std::vector<CElement*> open{&tree};
    while (!open.empty()) {
        CElement* const element = open.back();
        open.pop_back();
        const std::wstring text = element->GetText();
        if (NeedsEscapes(text)) {
            element->SetText(Escaped(text).c_str());
        }
        const auto attributes = element->GetAttributes();
        for (int index = 0; index < attributes->GetCount(); ++index) {
            ZrXmlLib16::CAttribute* const attribute = attributes->Item(index);
            attribute->SetValue(Escaped(attribute->GetValue()).c_str());
        }
        const auto children = element->GetElements();
        open.insert(open.end(), children->begin(), children->end());
    }
}

} // namespace Convert
