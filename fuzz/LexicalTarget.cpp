// SPDX-License-Identifier: MIT
#include "fuzz/FuzzSupport.h"
#include "fuzz/Targets.h"

#include "ZrXmlLib16/ZrXmlLib16.h"

#include <cmath>

using namespace ZrXmlLib16;
using Rule = CWhitespaceUtils::WhitespaceRule;

namespace Fuzz {

namespace {

constexpr wchar_t SEPARATOR = 0x1F;

struct LexicalInput {
    ItemType type;
    Rule rule;
    CPrimitiveRestrictions facets;
    std::wstring text;
    std::wstring format;
};

// The next field of the text, which loses it.
std::wstring TakeField(std::wstring& text)
{
    const std::size_t end = text.find(SEPARATOR);
    const std::wstring field = text.substr(0, end);
    text.erase(0, end == std::wstring::npos ? end : end + 1);
    return field;
}

LexicalInput Read(InputReader input)
{
    LexicalInput result;
    result.type = static_cast<ItemType>(1 + input.Below(26));
    result.rule = static_cast<Rule>(input.Below(4));
    const unsigned given = input.Octet();
    const long number = static_cast<long>(input.Octet());
    CPrimitiveRestrictions& facets = result.facets;
    unsigned bit = 0;
    for (long* facet :
        {&facets.m_minLength, &facets.m_maxLength, &facets.m_length, &facets.m_totalDigits, &facets.m_fractionDigits})
        *facet = (given >> bit++ & 1U) ? number : -1;
    std::wstring text = CEncoder::Utf8ToUnicode(input.Rest(), input.RestSize());
    result.text = TakeField(text);
    (given & 32U ? facets.m_minExclusive : facets.m_minInclusive) = TakeField(text);
    (given & 64U ? facets.m_maxExclusive : facets.m_maxInclusive) = TakeField(text);
    facets.m_pattern = TakeField(text).substr(0, 64);
    result.format = text;
    return result;
}

bool IsNaN(const ZrVariant& value)
{
    return (value.GetItemType() == ItemType_r4 && std::isnan(value.GetR4()))
        || (value.GetItemType() == ItemType_r8 && std::isnan(value.GetR8()));
}

bool Fulfils(const ZrVariant& value, const CPrimitiveRestrictions& facets)
{
    return Tolerate([&] { CXmlObjectHelper::CheckRestriction(L"value", value, value.GetItemType(), facets); });
}

// A value lies between itself and itself; strings, binary data and booleans have no order.
void CheckOwnBounds(const ZrVariant& value, const std::wstring& text)
{
    const ItemType type = value.GetItemType();
    const bool ordered = type != ItemType_hexBinary && type != ItemType_base64Binary && type != ItemType_string
        && type != ItemType_char && type != ItemType_boolean;
    if (!ordered || IsNaN(value))
        return;
    CPrimitiveRestrictions inclusive;
    inclusive.m_minInclusive = inclusive.m_maxInclusive = text;
    Require(Fulfils(value, inclusive), "a value is not below or above itself");
    CPrimitiveRestrictions exclusive;
    exclusive.m_minExclusive = text;
    Require(!Fulfils(value, exclusive), "a value is not greater than itself");
}

} // namespace

int RunLexicalInput(const std::uint8_t* data, std::size_t size)
{
    const LexicalInput input = Read(InputReader(data, size));
    ZrVariant value;
    if (!Tolerate([&] { value.FromString(input.text, input.type, input.rule); }))
        return 0;
    Require(value.GetItemType() == input.type, "the value has the type that was asked for");
    Fulfils(value, input.facets);
    Tolerate([&] { value.ToString(input.format.c_str()); });

    ZrVariant second;
    std::wstring written;
    std::wstring again;
    RequireSuccess("every value has a text", [&] { written = value.ToString(nullptr); });
    // A duration of no length has a text that is no duration.
    if (input.type == ItemType_duration && (written == L"P" || written == L"-P"))
        return 0;
    RequireSuccess("what is written can be read", [&] {
        second.FromString(written, input.type, CWhitespaceUtils::Rule_None);
        again = second.ToString(nullptr);
    });
    RequireEqual("the text of a value is read as the same value", written, again);
    CheckOwnBounds(second, written);
    return 0;
}

} // namespace Fuzz
