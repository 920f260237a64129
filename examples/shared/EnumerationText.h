// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ENUMERATIONTEXT_H
#define EXAMPLES_SHARED_ENUMERATIONTEXT_H

#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"

#include <cwchar>
#include <iterator>
#include <string>

namespace Shared {

/// The two converters that the record of an enumeration takes. The values count from 0.
/// @tparam texts array of the lexical forms, in the order of the values
/// @{

/// @throws CZrInvalidParamException for a number that is no value.
template <const auto& texts> const wchar_t* EnumerationToString(int value)
{
    if (value < 0 || value >= static_cast<int>(std::size(texts))) {
        throw ZrXmlLib16::CZrInvalidParamException(L"There is no value " + std::to_wstring(value));
    }
    return texts[value];
}

/// @throws CZrInvalidValueException for a text that is none of them.
template <const auto& texts> int EnumerationFromString(const wchar_t* text)
{
    int value = 0;
    for (const wchar_t* known : texts) {
        if (std::wcscmp(text, known) == 0) {
            return value;
        }
        ++value;
    }
    throw ZrXmlLib16::CZrInvalidValueException(L"The value [" + std::wstring(text) + L"] is not in the enumeration");
}
/// @}

} // namespace Shared

#endif
