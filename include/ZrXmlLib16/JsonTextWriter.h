// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_JSONTEXTWRITER_H
#define ZRXMLLIB16_JSONTEXTWRITER_H

#include "ZrXmlLib16/EOLType.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/JsonRoundTrip.h"
#include "ZrXmlLib16/XmlWriter.h"

namespace ZrXmlLib16 {

class CTextStream;

/// Writes a document as JSON text to a stream, indented unless told otherwise.
///
/// An element is an object member named after it, an attribute a member whose name begins with "@". The value of an
/// element without members is its text; beside members, which have to come first, the text is the member "#text". The
/// items of a collection, announced with SetContextState, form an array; a run of items with another name forms the
/// next one. WriteStartDocument and WriteEndDocument write the braces around the root. The members of an object keep
/// the order of the events, and a name may occur more than once.
///
/// Text appended before an exception stays in the stream. The stream is asked to flush after WriteStartDocument and
/// WriteComment only, when it holds more than 4095 characters.
class ZRXML_API CJsonTextWriter : public CXmlWriter {
public:
    /// @param stream not owned; outlives the writer.
    explicit CJsonTextWriter(CTextStream& stream);
    ~CJsonTextWriter() override;

    /// Whether members and items get lines of their own and indentation. Default true.
    bool GetFormat() const;
    void SetFormat(bool format);
    /// Default EOL_LF.
    EOLType GetEOLType() const;
    /// @throws CZrException for a value outside the enumeration; nothing changes.
    void SetEOLType(EOLType type);
    /// Default JsonRoundTrip_Full.
    JsonRoundTrip GetSupportRoundtrip() const;
    void SetSupportRoundtrip(JsonRoundTrip mode);
    /// Written once per level. Default one tab.
    std::wstring GetIndentChars() const;
    /// @param text null is empty.
    void SetIndentChars(const wchar_t* text);

    /// Writes the opening brace of the document.
    void WriteStartDocument();
    /// Writes the closing brace of the document.
    void WriteEndDocument();

    /// Opens the stream.
    void Open() override;
    /// Closes the stream first.
    /// @throws CZrException while an element is open.
    void Close() override;
    /// Writes a block comment, which JSON itself does not have; it ends its line.
    void WriteComment(const std::wstring& text) override;
    /// Writes nothing.
    void WritePI(const std::wstring& text) override;
    /// Writes nothing.
    void WriteInlineSchema(const std::wstring& text) override;
    /// With JsonRoundTrip_Full the namespaces of the root become "@xmlns" members.
    /// @throws CZrException with JsonRoundTrip_Full for a namespace that has no prefix, except at the root.
    void WriteStartElement(const std::wstring& name, const std::wstring& namespaceUri) override;
    /// Numbers and booleans are written bare, everything else between quotation marks. Carriage returns are dropped,
    /// line feeds become the line end of the writer, the value ends at a NUL. Quotation marks and backslashes are not
    /// escaped and break the text.
    void WriteString(const std::wstring& value, ItemType type, bool isDefault) override;
    /// @throws CZrInvalidStateException when no element is open.
    void WriteEndElement() override;
    /// @throws CZrException with JsonRoundTrip_Full for a namespace that has no prefix, and when no element is open.
    void WriteAttributeString(
        const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& value, ItemType type) override;
    /// Writes nothing unless JsonRoundTrip_Full is set; declares the prefix of the attribute when there is none.
    /// @throws CZrException for a namespace that has no prefix, and when no element is open.
    void WriteAttributeType(const std::wstring& typeName, const std::wstring& typeNamespace, ItemType type) override;
    /// Writes nothing.
    void WriteAttributeNil() override;

private:
    friend class CXmlObjectBase;

    /// An array that has been begun and not ended. Its items have the same name.
    struct OpenArray {
        const CXmlWriterContext* owner;
        std::wstring localName;
        std::wstring namespaceUri;
    };

    bool WriteTextElement(const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& text,
        ItemType type, bool isDefault) override;
    bool IsArrayOpen(const CXmlWriterContext& element) const;
    bool ContinuesArray(
        const CXmlWriterContext& parent, const std::wstring& name, const std::wstring& namespaceUri) const;
    void BeginArray(const CXmlWriterContext& item);
    void EndArray(CXmlWriterContext& element);
    void BeginMember(CXmlWriterContext& element, bool continuesArray);
    void BeginAttribute();
    void AppendElementName(const std::wstring& name, const std::wstring& namespaceUri, bool isRoot);
    void AppendMemberName(bool isMarked, const std::wstring* prefix, const std::wstring& name);
    void AppendRootDeclarations(CXmlWriterContext& root);
    void AppendDeclaration(const std::wstring& prefix, const std::wstring& namespaceUri);
    void BeginLine(const CXmlWriterContext& element, unsigned long extraDepth);
    void Indent(const CXmlWriterContext& element, unsigned long extraDepth);
    const std::wstring& RequirePrefix(const std::wstring& namespaceUri, const std::wstring& name) const;
    void DeclareInstanceNamespace();

    std::wstring m_indentChars;
    std::wstring m_endOfLine;
    EOLType m_eolType;
    JsonRoundTrip m_supportRoundtrip;
    bool m_format;
    CTextStream& m_stream;
    bool m_hasNoMember;              // of the current element: its object has not been begun
    std::vector<OpenArray> m_arrays; // by nesting; ended ones are kept for reuse
    std::size_t m_openArrays;
    std::wstring m_firstItemName; // of the last element that may begin an array
    std::wstring m_firstItemNamespace;
    std::wstring m_indentation;    // the indent characters repeated, as far as needed up to now
    std::wstring m_qualifiedValue; // reused
    /// Whether the stream takes the text piece by piece, which nobody sees of one in memory. Files get it at the end.
    bool m_flushesOften;
};

} // namespace ZrXmlLib16

#endif
