// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_FASTINFOSETWRITER_H
#define ZRXMLLIB16_FASTINFOSETWRITER_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/FInfoDecl.h"
#include "ZrXmlLib16/XmlWriter.h"

#include <memory>
#include <string>

namespace ZrXmlLib16 {

class CBinaryStream;
class CFastInfosetContext;

/// Writes Fast Infoset (ITU-T X.891) to a stream: elements, attributes, text, and the namespaces of the root. Names
/// and short values that come again are written as indexes.
///
/// The stream gets the octets in blocks, and all of them at WriteEndDocument and when an operation throws; what it has
/// then is no complete document.
class ZRXML_API CFastInfosetWriter : public CXmlWriter {
public:
    /// @param context not owned; with its vocabulary it outlives the writer and does not change meanwhile.
    /// @param stream not owned; outlives the writer.
    CFastInfosetWriter(const CFastInfosetContext& context, CBinaryStream& stream);
    ~CFastInfosetWriter() override;

    /// Comes before the root.
    /// @throws CZrException for a value outside the enumeration.
    void WriteStartDocument(FInfoDecl declaration);
    /// Comes after the root.
    void WriteEndDocument();

    /// Writes nothing.
    void WriteComment(const std::wstring& text) override;
    /// Writes nothing of the instruction, but ends the attributes of the current element if there are none yet.
    void WritePI(const std::wstring& text) override;
    /// Writes nothing.
    void WriteInlineSchema(const std::wstring& text) override;
    /// @throws CZrException for an empty name, possibly not before the next operation.
    void WriteStartElement(const std::wstring& name, const std::wstring& namespaceUri) override;
    /// Element text, whether or not it is a default. Empty text ends the attributes, too.
    /// @throws CZrException for text that the encoding of its type cannot express, and what the conversion of the text
    /// throws; CZrInvalidStateException for text outside of the root.
    void WriteString(const std::wstring& text, ItemType type, bool isDefault) override;
    /// @throws CZrInvalidStateException when no element is open.
    void WriteEndElement() override;
    /// The attribute operations throw CZrException when no start tag is open: none started, or content was written
    /// already; and as WriteString does for values.
    void WriteAttributeString(
        const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& value, ItemType type) override;
    void WriteAttributeType(const std::wstring& typeName, const std::wstring& typeNamespace, ItemType type) override;
    void WriteAttributeNil() override;

private:
    class Output;
    struct PendingName;

    // Of the current element. Its header tells whether it has attributes, so it waits for what comes next.
    enum class StartTag { Pending, InAttributes, Closed };

    bool WriteTextElement(const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& text,
        ItemType type, bool isDefault) override;
    void WriteHeader(bool hasAttributes);
    const std::wstring& PrefixOf(const std::wstring& namespaceUri);
    bool HasNamespaces() const;
    void WriteNamespaces(unsigned int leadingBits);
    void CloseStartTag();
    void WriteOwedTerminator();
    void RequireAttributes();
    void WriteAttribute(
        const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& value, ItemType type);

    std::unique_ptr<Output> m_output;
    StartTag m_startTag;
    bool m_isTerminatorOwed;       // of the element that ended last
    std::wstring m_qualifiedValue; // reused
};

} // namespace ZrXmlLib16

#endif
