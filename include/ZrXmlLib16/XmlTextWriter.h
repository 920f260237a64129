// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLTEXTWRITER_H
#define ZRXMLLIB16_XMLTEXTWRITER_H

#include "ZrXmlLib16/EOLType.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/XmlWriter.h"

namespace ZrXmlLib16 {

class CTextStream;

/// Writes XML 1.0 text to a stream, indented unless told otherwise.
///
/// Characters that XML does not allow pass through. Text appended before an exception stays in the stream. The stream
/// is asked to flush between operations, whenever it holds more than 4095 characters.
class ZRXML_API CXmlTextWriter : public CXmlWriter {
public:
    /// @param stream not owned; outlives the writer.
    explicit CXmlTextWriter(CTextStream& stream);
    ~CXmlTextWriter() override;

    /// Opens the stream.
    void Open() override;
    /// Closes the stream first.
    /// @throws CZrException while an element is open.
    void Close() override;
    void SetDefaultNamespace(const std::wstring& namespaceUri) override;
    void AddNamespace(const std::wstring& prefix, const std::wstring& namespaceUri) override;
    /// The text is escaped like element text; the comment ends its line.
    void WriteComment(const std::wstring& text) override;
    void WritePI(const std::wstring& text) override;
    /// Writes the text as it is, between line ends, into the open start tag.
    void WriteInlineSchema(const std::wstring& text) override;
    void WriteStartElement(const std::wstring& name, const std::wstring& namespaceUri) override;
    /// Writes nothing for empty text, and for a default value unless these are written. A value that begins with
    /// "<![CDATA[" is not escaped. Carriage returns are dropped, line feeds become the line end of the writer.
    void WriteString(const std::wstring& value, ItemType type, bool isDefault) override;
    /// @throws CZrInvalidStateException when no element is open.
    void WriteEndElement() override;
    /// The attribute operations throw CZrException when no start tag is open: none started, or content was written
    /// already.
    void WriteAttributeString(
        const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& value, ItemType type) override;
    void WriteAttributeType(const std::wstring& typeName, const std::wstring& typeNamespace, ItemType type) override;
    void WriteAttributeNil() override;

    /// Writes the XML declaration; it names the encoding of the stream when that is UTF-8 or UTF-16.
    void WriteStartDocument();
    /// Writes a line as it is.
    /// @throws CZrException while an element is open.
    void WriteHeaderDirective(const std::wstring& text);
    /// Writes markup as it is, with a line end when formatting.
    void WriteRawElement(const std::wstring& text);

    /// Whether elements get lines of their own and indentation. Default true.
    bool GetFormat() const;
    void SetFormat(bool format);
    /// Default EOL_LF.
    EOLType GetEOLType() const;
    /// @throws CZrException for a value outside the enumeration; nothing changes.
    void SetEOLType(EOLType type);
    /// Written once per level. Default one tab.
    std::wstring GetIndentChars() const;
    /// @param text null is empty.
    void SetIndentChars(const wchar_t* text);
    /// Whether values that equal their default are written. Default false.
    bool GetWriteDefaultElementValues() const;
    void SetWriteDefaultElementValues(bool value);

private:
    bool WriteTextElement(const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& text,
        ItemType type, bool isDefault) override;
    void CloseParentElm();
    void KeepName(const std::wstring* prefix, const std::wstring& name);
    void AppendEscaped(const std::wstring& text, bool isAttribute);
    void AppendEscaped(const wchar_t* position, const wchar_t* end, bool isAttribute);
    void AppendEscape(wchar_t special, bool isAttribute);
    void AppendDeclaration(const std::wstring& prefix, const std::wstring& namespaceUri);
    void AppendRootDeclarations();
    void RequireOpenStartTag() const;

    bool m_writeDefaultElementValues;
    std::wstring m_indentChars;
    std::wstring m_endOfLine;
    EOLType m_eolType;
    bool m_format;
    CTextStream& m_stream;
    std::wstring m_indentation;    // the indent characters repeated, as far as needed up to now
    std::wstring m_qualifiedValue; // reused
    std::wstring m_openNames;      // of the open elements with their prefixes, one behind the other; then room
    std::size_t m_openNamesLength;
};

} // namespace ZrXmlLib16

#endif
