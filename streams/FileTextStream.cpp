// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FileTextStream.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "streams/FileHandle.h"
#include "streams/StreamMessages.h"

#include <utility>

namespace ZrXmlLib16 {

CFileTextStream::CFileTextStream(const wchar_t* fileName, XmlEncoding encoding)
    : CTextStream(L"CFileTextStream", encoding)
    , m_fileName(fileName == nullptr ? L"" : fileName)
    , m_file(nullptr)
{
}

CFileTextStream::~CFileTextStream()
{
    try {
        CFileTextStream::Close();
    } catch (...) {
        CloseFile(); // a destructor has nobody to report to
    }
}

void CFileTextStream::CloseFile() noexcept
{
    FileHandle(std::exchange(m_file, nullptr)).reset();
}

void CFileTextStream::Open()
{
    CTextStream::Open();
    CloseFile();
    FileHandle file = OpenFile(m_fileName.c_str(), "w");
    if (file == nullptr || !WriteByteOrderMark(file.get(), GetEncoding())) {
        throw CZrException(FormatString(Message::FILE_NOT_WRITTEN, m_fileName.c_str()));
    }
    m_file = file.release();
}

void CFileTextStream::Flush()
{
    if (GetLength() == 0) {
        return;
    }
    m_byteBlock = GetEncodedStream();
    const bool written = m_file != nullptr && WriteOctets(m_file, m_byteBlock.GetData(), m_byteBlock.GetLength());
    m_byteBlock.Clear();
    if (!written) {
        CloseFile();
        throw CZrException(Message::FLUSH_FAILED);
    }
    EmptyText();
}

void CFileTextStream::Close()
{
    if (m_file == nullptr) {
        return;
    }
    Flush();
    if (std::fclose(std::exchange(m_file, nullptr)) != 0) {
        throw CZrException(Message::FLUSH_FAILED);
    }
    CTextStream::Close();
}

} // namespace ZrXmlLib16
