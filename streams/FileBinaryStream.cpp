// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FileBinaryStream.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "streams/FileHandle.h"
#include "streams/StreamMessages.h"

namespace ZrXmlLib16 {

CFileBinaryStream::CFileBinaryStream(const wchar_t* fileName, XmlEncoding encoding)
    : CBinaryStream(L"CFileBinaryStream")
    , m_fileName(fileName == nullptr ? L"" : fileName)
    , m_encoding(encoding)
{
}

CFileBinaryStream::CFileBinaryStream(const wchar_t* fileName, XmlEncoding encoding, CBinaryData& data)
    : CBinaryStream(L"CFileBinaryStream", data)
    , m_fileName(fileName == nullptr ? L"" : fileName)
    , m_encoding(encoding)
{
}

CFileBinaryStream::~CFileBinaryStream() = default;

void CFileBinaryStream::ToFile()
{
    const CBinaryData& data = GetBinaryStream();
    FileHandle file = OpenFile(m_fileName.c_str(), "w");
    const bool written = file != nullptr && WriteByteOrderMark(file.get(), m_encoding)
        && WriteOctets(file.get(), data.GetData(), data.GetLength()) && std::fclose(file.release()) == 0;
    if (!written) {
        throw CZrException(FormatString(Message::FILE_NOT_WRITTEN, m_fileName.c_str()));
    }
}

} // namespace ZrXmlLib16
