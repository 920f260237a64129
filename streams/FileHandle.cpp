// SPDX-License-Identifier: MIT
#include "streams/FileHandle.h"

#include "ZrXmlLib16/Formatting.h"

namespace ZrXmlLib16 {

FileHandle OpenFile(const wchar_t* name, const char* mode)
{
    return FileHandle(std::fopen(UnicodeToMultiByte(name == nullptr ? L"" : name).c_str(), mode));
}

bool WriteOctets(FILE* file, const unsigned char* data, unsigned long length)
{
    if (length == 0) {
        return true;
    }
    // Without the flush a full disk would be noticed only when the file is closed.
    return std::fwrite(data, 1, length, file) == length && std::fflush(file) == 0;
}

bool WriteByteOrderMark(FILE* file, XmlEncoding encoding)
{
    // kept: required behaviour. The mark precedes four-octet units as well.
    constexpr unsigned char mark[] = {0xFF, 0xFE};
    const bool hasMark = encoding == Encoding_UTF16 || encoding == Encoding_Wide;
    return !hasMark || WriteOctets(file, mark, sizeof(mark));
}

} // namespace ZrXmlLib16
