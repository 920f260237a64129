// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_IJSONREADERHANDLER_H
#define ZRXMLLIB16_IJSONREADERHANDLER_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// Receives a JSON document as a sequence of events. Texts are borrowed for the length of the call; an exception of a
/// handler ends the reading.
class ZRXML_API IJsonReaderHandler {
public:
    virtual ~IJsonReaderHandler();
    /// Before the first value.
    virtual void ReadStartDocument() = 0;
    /// After the value of the document.
    virtual void ReadEndDocument() = 0;
    /// The name of the member whose value comes next. Duplicate names arrive as they stand in the text.
    virtual void ReadName(const std::wstring& name) = 0;
    /// A text. @param value without quotes and escapes.
    virtual void ReadString(const std::wstring& value) = 0;
    /// A number. @param text as it stands in the source.
    virtual void ReadNumber(const std::wstring& text) = 0;
    /// An opening brace.
    virtual void ReadStartObject() = 0;
    /// A closing brace.
    virtual void ReadEndObject() = 0;
    /// An opening bracket.
    virtual void ReadStartArray() = 0;
    /// A closing bracket.
    virtual void ReadEndArray() = 0;
    /// true or false.
    virtual void ReadBool(bool value) = 0;
    /// null.
    virtual void ReadNull() = 0;
};

} // namespace ZrXmlLib16

#endif
