// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FastInfosetBinaryData.h"

#include "core/TextArgument.h"
#include "fastinfoset/EncodingAlgorithms.h"

#include <vector>

namespace ZrXmlLib16 {

CFastInfosetBinaryData::CFastInfosetBinaryData() = default;

CFastInfosetBinaryData::CFastInfosetBinaryData(const CBinaryData& data)
    : CBinaryData(data)
{
}

CFastInfosetBinaryData::CFastInfosetBinaryData(unsigned char* data, unsigned long length, bool adopt)
    : CBinaryData(data, length, adopt)
{
}

CFastInfosetBinaryData::CFastInfosetBinaryData(const wchar_t* text)
    : CBinaryData(text)
{
}

CFastInfosetBinaryData::~CFastInfosetBinaryData() = default;

void CFastInfosetBinaryData::SetAsEncodedString(unsigned long algorithm, const wchar_t* text)
{
    Clear();
    std::vector<unsigned char> octets;
    EncodingAlgorithms::Encode(algorithm, TextOrEmpty(text), octets);
    SetBuffer(octets.data(), octets.size());
}

std::wstring CFastInfosetBinaryData::GetAsString(unsigned long algorithm) const
{
    std::wstring text;
    EncodingAlgorithms::AppendDecoded(algorithm, GetData(), GetLength(), text);
    return text;
}

} // namespace ZrXmlLib16
