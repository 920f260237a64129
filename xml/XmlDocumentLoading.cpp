// SPDX-License-Identifier: MIT
// The loaders of CXmlDocument: each fills the input buffer and has it parsed.
#include "ZrXmlLib16/FastInfosetReader.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrZip.h"
#include "core/FormatSettings.h"
#include "core/TextArgument.h"
#include "streams/FileHandle.h"
#include "xml/DocumentStorage.h"
#include "xml/ExpatReader.h"
#include "xml/XmlMessages.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <cwchar>

namespace ZrXmlLib16 {

namespace {

// Gives an array out of its owner to a function that may replace it, and takes back what is there afterwards, whatever
// happens.
class LentArray {
public:
    explicit LentArray(std::unique_ptr<unsigned char[]>& owner) noexcept
        : m_owner(owner)
        , m_bytes(owner.release())
    {
    }
    ~LentArray() { m_owner.reset(m_bytes); }
    LentArray(const LentArray&) = delete;
    LentArray& operator=(const LentArray&) = delete;

    unsigned char** GetAddress() noexcept { return &m_bytes; }

private:
    std::unique_ptr<unsigned char[]>& m_owner;
    unsigned char* m_bytes;
};

} // namespace

/// Drops the input at the end of a load.
class CXmlDocument::InputScope {
public:
    explicit InputScope(CXmlDocument& document) noexcept
        : m_document(document)
    {
    }
    ~InputScope() { m_document.DestroyInput(); }
    InputScope(const InputScope&) = delete;
    InputScope& operator=(const InputScope&) = delete;

private:
    CXmlDocument& m_document;
};

void CXmlDocument::LoadXml(const char* text)
{
    Cleanup();
    if (!text || !*text) {
        throw CZrException(Message::XML_STRING_EMPTY);
    }
    const InputScope scope(*this);
    m_input = reinterpret_cast<const unsigned char*>(text);
    m_inputSize = std::strlen(text);
    ParseText();
}

void CXmlDocument::LoadXml(const wchar_t* text)
{
    Cleanup();
    if (!text || !*text) {
        throw CZrException(Message::XML_STRING_EMPTY);
    }
    const InputScope scope(*this);
    const std::size_t length = std::wcslen(text);
    AllocateInput(2 * length + 2);
    unsigned char* output = m_inputBuffer.get();
    *output++ = 0xFF;
    *output++ = 0xFE;
    // kept: required behaviour. The low 16 bits of a character are one unit; no surrogate pairs are made.
    for (const wchar_t* const end = text + length; text != end; ++text) {
        *output++ = static_cast<unsigned char>(*text);
        *output++ = static_cast<unsigned char>(*text >> 8);
    }
    ParseText();
}

void CXmlDocument::LoadXmlStream(const unsigned char* bytes, unsigned long length)
{
    Cleanup();
    if (!bytes || length == 0) {
        throw CZrException(Message::XML_STREAM_EMPTY);
    }
    const InputScope scope(*this);
    m_input = bytes;
    m_inputSize = length;
    Parse();
}

void CXmlDocument::Load(const wchar_t* fileName)
{
    Cleanup();
    const InputScope scope(*this);
    ReadFile(TextOrEmpty(fileName));
    Parse();
}

void CXmlDocument::ReadFile(const wchar_t* fileName)
{
    const FileHandle file = OpenFile(fileName, "r");
    if (!file) {
        throw CZrException(FormatString(Message::FILE_OPEN_FAILED, fileName));
    }
    errno = 0;
    const long length = _filelength(file.get());
    if (length < 0) {
        throw CZrException(FormatString(Message::FILE_SIZE_FAILED, fileName, errno));
    }
    AllocateInput(static_cast<unsigned long>(length));
    errno = 0;
    const std::size_t count = std::fread(m_inputBuffer.get(), 1, m_inputSize, file.get());
    if (count == 0 || count < m_inputSize) {
        throw CZrException(FormatString(Message::FILE_READ_FAILED, fileName, errno));
    }
}

void CXmlDocument::AllocateInput(unsigned long size)
{
    m_inputBuffer.reset(new unsigned char[size]);
    m_input = m_inputBuffer.get();
    m_inputSize = size;
}

void CXmlDocument::Parse()
{
    if (MayBeCompressed()) {
        Decompress();
    }
    if (CFastInfosetReader::HasHeader(m_input, m_inputSize)) {
        CFastInfosetReader(CFormatSettings::FastInfoset(*m_context), *this).Parse();
    } else {
        ParseText();
    }
}

// gzip begins with 1F, zlib with an octet that ends in 8 and that neither text nor Fast Infoset begin with: most input
// needs no copy of its own.
bool CXmlDocument::MayBeCompressed() const
{
    const unsigned char first = *m_input;
    return first == 0x1F || (first & 0x0F) == 8;
}

void CXmlDocument::Decompress()
{
    if (!m_inputBuffer) {
        const unsigned char* const bytes = m_input;
        AllocateInput(m_inputSize);
        std::memcpy(m_inputBuffer.get(), bytes, m_inputSize);
    }
    CZrZip::Decompress(LentArray(m_inputBuffer).GetAddress(), &m_inputSize);
    m_input = m_inputBuffer.get();
}

void CXmlDocument::ParseText()
{
    CExpatReader reader(*this);
    reader.CreateParser();
    reader.Parse(true);
}

} // namespace ZrXmlLib16
