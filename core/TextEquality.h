// SPDX-License-Identifier: MIT
#ifndef CORE_TEXTEQUALITY_H
#define CORE_TEXTEQUALITY_H

#include <cstring>
#include <string>
#include <string_view>

namespace ZrXmlLib16 {

/// What operator== says, without the two library functions that it calls for wide strings.
inline bool AreEqual(std::wstring_view left, std::wstring_view right)
{
    return left.size() == right.size() && std::memcmp(left.data(), right.data(), left.size() * sizeof(wchar_t)) == 0;
}

} // namespace ZrXmlLib16

#endif
