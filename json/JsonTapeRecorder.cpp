// SPDX-License-Identifier: MIT
#include "json/JsonTapeRecorder.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "json/JsonReaderMessages.h"

namespace ZrXmlLib16 {

void JsonTapeRecorder::FailAtContainer(const JsonName& name) const
{
    throw CZrValidationException(
        FormatString(Message::JSON_ATTRIBUTE_NOT_SIMPLE, name.member.c_str()), m_pathProvider.GetPath());
}

} // namespace ZrXmlLib16
