// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_JSONTEXTREADER_H
#define ZRXMLLIB16_JSONTEXTREADER_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Export.h"

#include <memory>
#include <string>

namespace ZrXmlLib16 {

class CJsonReaderDefaultHandler;
class CSerializationContext;
class IErrorPathProvider;
class IJsonReaderHandler;

/// Parses JSON (RFC 8259) and reports what it reads to a handler.
///
/// Objects and arrays may be nested 100 levels deep. Deviations from the standard: text after the first value is
/// ignored, an empty text is no error, control characters may stand in strings, and "\uXXXX" yields a single hex digit.
/// Names of more than 1,000 characters are refused. Not synchronised.
class ZRXML_API CJsonTextReader {
public:
    /// @param text is referenced, not copied; outlives the reader.
    explicit CJsonTextReader(const std::wstring& text);
    virtual ~CJsonTextReader();

    /// @param handler not owned; null for none.
    void SetJsonReaderHandler(IJsonReaderHandler* handler);
    /// Where the reader is; owned by the reader.
    const IErrorPathProvider* GetErrorPathProvider() const;
    /// Reads the text from its beginning.
    /// @throws CZrValidationException for a syntax error, with the path in the document; the message names line and
    /// position.
    void Read();

    /// The JSON text as XML in UTF-8 without XML declaration; empty for an empty text without root element name. The
    /// JSON settings of the context say what CJsonReaderToXmlHandler makes of the text.
    /// @throws CZrValidationException for a syntax error and for a document that cannot be mirrored in XML.
    static CBinaryData ConvertJsonToXml(const std::wstring& json, const CSerializationContext& context);

    /// Whether line and block comments may stand wherever whitespace may. Default false.
    void SetAllowComments(bool value);
    /// When it is not empty, the text is reported as the value of a member of this name.
    /// @param name null is empty.
    void SetRootElementName(const wchar_t* name);

    CJsonTextReader(const CJsonTextReader&) = delete;
    CJsonTextReader& operator=(const CJsonTextReader&) = delete;

private:
    std::unique_ptr<CJsonReaderDefaultHandler> m_handler;
    bool m_allowComments;
    std::wstring m_rootElementName;
    const std::wstring& m_text;
};

} // namespace ZrXmlLib16

#endif
