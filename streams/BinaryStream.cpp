// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BinaryStream.h"

namespace ZrXmlLib16 {

CBinaryStream::CBinaryStream()
    : m_data(m_own)
{
}

CBinaryStream::CBinaryStream(CBinaryData& data)
    : m_data(data)
{
}

CBinaryStream::CBinaryStream(const wchar_t*)
    : CBinaryStream()
{
}

CBinaryStream::CBinaryStream(const wchar_t*, CBinaryData& data)
    : CBinaryStream(data)
{
}

CBinaryStream::~CBinaryStream() = default;

void CBinaryStream::Append(unsigned char value)
{
    m_data.Append(value);
}

void CBinaryStream::Append(const unsigned char* data, unsigned long n)
{
    m_data.Append(data, n);
}

void CBinaryStream::Append(const CBinaryData& data)
{
    m_data.Append(data);
}

CBinaryData& CBinaryStream::GetBinaryStream()
{
    return m_data;
}

} // namespace ZrXmlLib16
