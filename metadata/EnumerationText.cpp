// SPDX-License-Identifier: MIT
#include "metadata/EnumerationText.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "metadata/MetadataMessages.h"

namespace ZrXmlLib16Data {

const wchar_t* EnumerationText(EnumToString enumToString, const ZrXmlLib16::ZrVariant& value)
{
    const wchar_t* text = enumToString(static_cast<int>(value.GetI4()));
    if (!text) {
        throw ZrXmlLib16::CZrException(ZrXmlLib16::FormatString(Message::ENUMERATION_WITHOUT_TEXT, 0));
    }
    return text;
}

} // namespace ZrXmlLib16Data
