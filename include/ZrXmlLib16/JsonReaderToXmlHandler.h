// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_JSONREADERTOXMLHANDLER_H
#define ZRXMLLIB16_JSONREADERTOXMLHANDLER_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/IJsonReaderHandler.h"
#include "ZrXmlLib16/JsonRoundTrip.h"

#include <memory>
#include <string>

namespace ZrXmlLib16 {

class CXmlTextWriter;
class IErrorPathProvider;
class JsonTape;

/// Turns a JSON document into XML.
///
/// The document is an object with one element member, the root. A member becomes an element of its name, an array one
/// element for each item, "@name" an attribute, "#text" or an empty name the text of the element around it. Names are
/// mirrored as they are written, with an empty namespace, so "@xmlns" members become declarations; characters that
/// cannot stand in a name become "_xHHHH_". The modes differ as follows:
///
/// - JsonRoundTrip_Full keeps prefixes and declarations, and null is an element with xsi:nil. Only this mode reads back
///   everything that was written.
/// - JsonRoundTrip_Attributes drops prefixes (other than "xsi" and "xml"), declarations and null members, so the
///   namespace of qualified attributes is lost.
/// - JsonRoundTrip_Plain reads like JsonRoundTrip_Attributes, but what was written in that mode has no mark of what was
///   an attribute: documents of classes with attributes cannot be read back.
///
/// Attribute members may come after the others, so all events are collected and the XML is written at the end of the
/// document. No XML declaration is written, and the writer is left open. Not synchronised.
class ZRXML_API CJsonReaderToXmlHandler : public IJsonReaderHandler {
public:
    /// @param writer not owned.
    /// @param pathProvider tells where a failure occurred; not owned.
    CJsonReaderToXmlHandler(CXmlTextWriter& writer, JsonRoundTrip mode, const IErrorPathProvider& pathProvider);
    ~CJsonReaderToXmlHandler() override;
    CJsonReaderToXmlHandler(const CJsonReaderToXmlHandler&) = delete;
    CJsonReaderToXmlHandler& operator=(const CJsonReaderToXmlHandler&) = delete;

    /// Opens the writer.
    void ReadStartDocument() override;
    /// Writes the document; nothing when there was none.
    /// @throws CZrValidationException when the document has no root element or several.
    void ReadEndDocument() override;
    void ReadName(const std::wstring& name) override;
    void ReadString(const std::wstring& value) override;
    void ReadNumber(const std::wstring& text) override;
    /// The four operations of objects and arrays throw CZrValidationException when the value of an attribute or text
    /// member is one of these, and CZrInvalidStateException for an end without start.
    void ReadStartObject() override;
    void ReadEndObject() override;
    void ReadStartArray() override;
    void ReadEndArray() override;
    void ReadBool(bool value) override;
    void ReadNull() override;

private:
    CXmlTextWriter& m_writer;
    const IErrorPathProvider& m_pathProvider;
    std::unique_ptr<JsonTape> m_tape;
};

} // namespace ZrXmlLib16

#endif
