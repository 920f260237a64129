// SPDX-License-Identifier: MIT
#ifndef XML_INVENTEDPREFIX_H
#define XML_INVENTEDPREFIX_H

#include <string>

namespace ZrXmlLib16 {

constexpr int INVENTED_PREFIX_LETTERS = 26;

/// The number of an invented prefix, -1 for any other text.
inline int NumberOfPrefix(const std::wstring& prefix)
{
    if (prefix.size() != 2 || prefix[0] < L'A' || prefix[0] > 0x10FFFF || prefix[1] < L'A' || prefix[1] > L'Z') {
        return -1;
    }
    return (prefix[0] - L'A') * INVENTED_PREFIX_LETTERS + (prefix[1] - L'A');
}

} // namespace ZrXmlLib16

#endif
