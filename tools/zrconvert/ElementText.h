// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_ELEMENTTEXT_H
#define ZRCONVERT_ELEMENTTEXT_H

#include <string>

namespace ZrXmlLib16 {
class CElement;
class CXmlElement;
}

namespace Convert {

/// What happens to the text of the elements between reading and writing.
struct TextRules {
    /// Whether elements that have children lose the white space around their text, which is indentation.
    bool trim;
    /// Whether the text has been read with the delimiters of its CDATA sections.
    bool hasSections;
    /// Whether the text is for a writer of XML, which takes a text that begins like a section for one.
    bool forXml;
};

/// Makes the texts of a tree what the writer needs. That of XML writes a text that begins like a CDATA section as it
/// is, and escapes every other one as a whole.
/// @param source what the tree was copied from
void PrepareTexts(const ZrXmlLib16::CXmlElement& source, ZrXmlLib16::CElement& tree, const TextRules& rules);

/// The text without the white space at its ends.
std::wstring Trim(const std::wstring& text);

/// The same content, as a text that the writer writes right: unchanged when it holds no section or nothing else, else
/// in one section.
std::wstring GatherSections(const std::wstring& text, bool hasSections);

} // namespace Convert

#endif
