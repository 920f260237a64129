// SPDX-License-Identifier: MIT
#include "classes/FixType.h"

#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"

#include <cwchar>
#include <string>

namespace Gpx {
namespace {

constexpr const wchar_t* TEXTS[] = {L"none", L"2d", L"3d", L"dgps", L"pps"};
constexpr int COUNT = 5;

} // namespace

const wchar_t* FixTypeToString(int value)
{
    if (value < 0 || value >= COUNT) {
        throw ZrXmlLib16::CZrInvalidParamException(L"There is no fixType " + std::to_wstring(value));
    }
    return TEXTS[value];
}

int FixTypeFromString(const wchar_t* text)
{
    for (int value = 0; value < COUNT; ++value) {
        if (std::wcscmp(text, TEXTS[value]) == 0) {
            return value;
        }
    }
    throw ZrXmlLib16::CZrInvalidValueException(L"The value [" + std::wstring(text) + L"] is not a fixType");
}

} // namespace Gpx
