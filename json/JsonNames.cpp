// SPDX-License-Identifier: MIT
#include "json/JsonNames.h"

#include "streams/UnicodeText.h"

#include <cstdint>

namespace ZrXmlLib16 {

namespace {

constexpr std::wstring_view TEXT_MEMBER = L"#text";
constexpr std::wstring_view DECLARATION = L"xmlns";
constexpr std::wstring_view INSTANCE_PREFIX = L"xsi";
constexpr std::wstring_view XML_PREFIX = L"xml";

bool IsNameStart(wchar_t c)
{
    const auto value = static_cast<std::uint32_t>(c);
    if (value >= 0x80) { // which of these may stand in a name is left to the XML parser
        return value <= 0xFFFF && !IsHighSurrogate(value) && !IsLowSurrogate(value);
    }
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || c == L'_';
}

bool IsNamePart(wchar_t c)
{
    return IsNameStart(c) || (c >= L'0' && c <= L'9') || c == L'-' || c == L'.';
}

/// "_xHHHH_", with eight digits for a value above FFFF.
void AppendEscaped(std::wstring& name, std::uint32_t value)
{
    name += L"_x";
    for (int shift = value > 0xFFFF ? 28 : 12; shift >= 0; shift -= 4) {
        name.push_back(L"0123456789ABCDEF"[(value >> shift) & 15]);
    }
    name.push_back(L'_');
}

/// Appends a name without colon: whatever cannot stand in one is escaped, so that no member name becomes markup.
void AppendName(std::wstring& name, std::wstring_view part)
{
    if (part.empty()) {
        name.push_back(L'_');
        return;
    }
    for (std::size_t i = 0; i < part.size(); ++i) {
        const wchar_t c = part[i];
        if (i == 0 ? IsNameStart(c) : IsNamePart(c)) {
            name.push_back(c);
            continue;
        }
        const auto value = static_cast<std::uint32_t>(c);
        const auto next = i + 1 < part.size() ? static_cast<std::uint32_t>(part[i + 1]) : 0;
        if (IsHighSurrogate(value) && IsLowSurrogate(next)) {
            AppendEscaped(name, JoinSurrogates(value, next));
            ++i;
        } else {
            AppendEscaped(name, value);
        }
    }
}

} // namespace

JsonName::JsonName(std::wstring_view memberName, JsonRoundTrip mode)
    : member(memberName)
    , kind(Kind::Element)
    , hasInstancePrefix(false)
{
    std::wstring_view name = member;
    if (name.empty() || name == TEXT_MEMBER) {
        kind = Kind::Text;
        return;
    }
    if (name[0] == L'@') {
        kind = Kind::Attribute;
        name.remove_prefix(1);
    }
    const std::size_t colon = name.find(L':');
    if (colon != std::wstring_view::npos) {
        const std::wstring_view prefix = name.substr(0, colon);
        hasInstancePrefix = prefix == INSTANCE_PREFIX;
        const bool isKept = mode == JsonRoundTrip_Full ? !prefix.empty() : hasInstancePrefix || prefix == XML_PREFIX;
        if (isKept) {
            AppendName(xmlName, prefix);
            xmlName.push_back(L':');
        }
        if (kind == Kind::Attribute && mode != JsonRoundTrip_Full && prefix == DECLARATION) {
            kind = Kind::Ignored;
        }
        if (isKept || mode != JsonRoundTrip_Full) {
            name.remove_prefix(colon + 1);
        }
    }
    AppendName(xmlName, name);
    // An attribute that becomes a declaration only by losing its prefix has to go as well.
    if (kind == Kind::Attribute && mode != JsonRoundTrip_Full && xmlName == DECLARATION) {
        kind = Kind::Ignored;
    }
}

JsonNames::JsonNames(JsonRoundTrip mode)
    : m_mode(mode)
{
}

const JsonName& JsonNames::Search(std::wstring_view member)
{
    Entry* const earlier = m_previous ? m_previous->earlierFollower : nullptr;
    Entry* const entry = earlier && AreEqual(earlier->name.member, member) ? earlier : &Find(member);
    if (m_previous) {
        m_previous->earlierFollower = m_previous->follower;
        m_previous->follower = entry;
    }
    m_previous = entry;
    return entry->name;
}

JsonNames::Entry& JsonNames::Find(std::wstring_view member)
{
    const auto found = m_index.find(member);
    if (found != m_index.end()) {
        return *found->second;
    }
    Entry& entry = m_entries.emplace_back(member, m_mode);
    m_index.emplace(entry.name.member, &entry);
    m_usesInstancePrefix = m_usesInstancePrefix || entry.name.hasInstancePrefix;
    return entry;
}

} // namespace ZrXmlLib16
