// SPDX-License-Identifier: MIT
#include "support/TestText.h"

#include "ZrXmlLib16/Formatting.h"

namespace TestSupport {

std::string Narrow(const std::wstring& text)
{
    return ZrXmlLib16::UnicodeToMultiByte(text.c_str());
}

} // namespace TestSupport
