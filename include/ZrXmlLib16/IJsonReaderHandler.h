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
    virtual void ReadStartDocument() = 0;
    virtual void ReadEndDocument() = 0;
    /// The name of the member whose value comes next. Duplicate names arrive as they stand in the text.
    virtual void ReadName(const std::wstring& name) = 0;
    /// @param value without quotes and escapes.
    virtual void ReadString(const std::wstring& value) = 0;
    /// @param text as it stands in the source.
    virtual void ReadNumber(const std::wstring& text) = 0;
    virtual void ReadStartObject() = 0;
    virtual void ReadEndObject() = 0;
    virtual void ReadStartArray() = 0;
    virtual void ReadEndArray() = 0;
    virtual void ReadBool(bool value) = 0;
    virtual void ReadNull() = 0;
};

} // namespace ZrXmlLib16

#endif
