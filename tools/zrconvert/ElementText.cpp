// SPDX-License-Identifier: MIT
#include "ElementText.h"

#include "ZrXmlLib16/ElementCol.h"
#include "ZrXmlLib16/XmlElement.h"

#include <utility>
#include <vector>

namespace Convert {

using ZrXmlLib16::CElement;
using ZrXmlLib16::CXmlElement;

namespace {

constexpr wchar_t SECTION_START[] = L"<![CDATA[";
constexpr std::size_t SECTION_START_LENGTH = 9;
constexpr wchar_t SECTION_END[] = L"]]>";
constexpr std::size_t SECTION_END_LENGTH = 3;
constexpr wchar_t WHITE_SPACE[] = L" \t\r\n";

/// A section cannot hold its own end: that is divided between two sections.
std::wstring MakeSection(std::wstring content)
{
    constexpr wchar_t dividedEnd[] = L"]]]]><![CDATA[>";
    constexpr std::size_t dividedLength = 15;
    for (std::size_t at = content.find(SECTION_END); at != std::wstring::npos;
         at = content.find(SECTION_END, at + dividedLength)) {
        content.replace(at, SECTION_END_LENGTH, dividedEnd);
    }
    return SECTION_START + content + SECTION_END;
}

void PrepareText(const CXmlElement& source, CElement& element, const TextRules& rules)
{
    const std::wstring& original = source.GetText();
    const bool mayTrim = rules.trim && source.GetFirstElement();
    const bool maySections = rules.forXml && original.find(SECTION_START) != std::wstring::npos;
    if (original.empty() || !(mayTrim || maySections)) {
        return;
    }
    const std::wstring trimmed = mayTrim ? Trim(original) : original;
    element.SetText((maySections ? GatherSections(trimmed, rules.hasSections) : trimmed).c_str());
}

} // namespace

std::wstring Trim(const std::wstring& text)
{
    const std::size_t begin = text.find_first_not_of(WHITE_SPACE);
    return begin == std::wstring::npos ? std::wstring()
                                       : text.substr(begin, text.find_last_not_of(WHITE_SPACE) + 1 - begin);
}

std::wstring GatherSections(const std::wstring& text, bool hasSections)
{
    std::wstring content;
    std::size_t at = 0;
    bool anySection = false;
    bool anythingElse = false;
    while (at < text.size()) {
        const std::size_t start = hasSections ? text.find(SECTION_START, at) : std::wstring::npos;
        const std::size_t end =
            start == std::wstring::npos ? start : text.find(SECTION_END, start + SECTION_START_LENGTH);
        if (end == std::wstring::npos) {
            content.append(text, at, std::wstring::npos);
            anythingElse = true;
            break;
        }
        anySection = true;
        anythingElse = anythingElse || start > at;
        content.append(text, at, start - at);
        content.append(text, start + SECTION_START_LENGTH, end - start - SECTION_START_LENGTH);
        at = end + SECTION_END_LENGTH;
    }
    const bool beginsLikeSection = content.compare(0, SECTION_START_LENGTH, SECTION_START) == 0;
    return anythingElse && (anySection || beginsLikeSection) ? MakeSection(std::move(content)) : text;
}

void PrepareTexts(const CXmlElement& source, CElement& tree, const TextRules& rules)
{
    std::vector<std::pair<const CXmlElement*, CElement*>> open{{&source, &tree}};
    while (!open.empty()) {
        const auto [original, copy] = open.back();
        open.pop_back();
        PrepareText(*original, *copy, rules);
        const CXmlElement* child = original->GetFirstElement();
        if (!child) {
            continue; // asking for its elements would create their collection
        }
        const ZrXmlLib16::CSmartPtr<ZrXmlLib16::CElementCol> children = copy->GetElements();
        for (CElement* childCopy : *children) {
            open.emplace_back(child, childCopy);
            child = child->GetNextSiblingElement();
        }
    }
}

} // namespace Convert
