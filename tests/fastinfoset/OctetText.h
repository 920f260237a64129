// SPDX-License-Identifier: MIT
#ifndef TESTS_FASTINFOSET_OCTETTEXT_H
#define TESTS_FASTINFOSET_OCTETTEXT_H

#include "ZrXmlLib16/BinaryData.h"

#include <string>

namespace TestSupport {

/// "E0 00 01"
inline std::string OctetText(const unsigned char* octets, unsigned long n)
{
    std::string text;
    for (unsigned long i = 0; i < n; ++i) {
        constexpr char digits[] = "0123456789ABCDEF";
        if (i > 0) {
            text += ' ';
        }
        text += digits[octets[i] >> 4];
        text += digits[octets[i] & 0x0F];
    }
    return text;
}

inline std::string OctetText(const ZrXmlLib16::CBinaryData& data)
{
    return OctetText(data.GetData(), data.GetLength());
}

} // namespace TestSupport

#endif
