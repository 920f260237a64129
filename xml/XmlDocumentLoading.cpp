// SPDX-License-Identifier: MIT
// The loaders of CXmlDocument: each fills the input buffer and has it parsed.
#include "ZrXmlLib16/FastInfosetReader.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrZip.h"
#include "core/FormatSettings.h"
#include "core/TextArgument.h"
#include "streams/FileHandle.h"
#include "streams/LargePages.h"
#include "streams/Utf8Decoding.h"
#include "xml/ConvertedTextScope.h"
#include "xml/DocumentStorage.h"
#include "xml/ExpatReader.h"
#include "xml/XmlMessages.h"
#include "json/JsonToXml.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <cwchar>

namespace ZrXmlLib16 {

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
    CheckInputSize();
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
    if (ConvertedTextScope::IsActive()) { // nobody looks for its lines in the input
        m_inputSize = 2 * length + 2;
        CheckInputSize();
        CExpatReader reader(*this);
        reader.CreateParser();
        reader.ParseConverted(std::wstring_view(text, length));
        return;
    }
    AllocateInput(2 * length + 2);
    unsigned char* output = m_inputBuffer.get();
    *output++ = 0xFF;
    *output++ = 0xFE;
    // kept: required behaviour. The low 16 bits of a character are one unit; no surrogate pairs are made.
    for (const wchar_t* const end = text + length; text != end; ++text) {
        *output++ = static_cast<unsigned char>(*text);
        *output++ = static_cast<unsigned char>(*text >> 8);
    }
    CheckInputSize();
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

CBinaryData CXmlDocument::LoadJson(const char* text)
{
    return EncodeXml(ConvertJson(text));
}

CBinaryData CXmlDocument::LoadJson(const wchar_t* text)
{
    return EncodeXml(ConvertJson(text));
}

CBinaryData CXmlDocument::LoadJsonStream(const unsigned char* bytes, unsigned long length)
{
    return EncodeXml(ConvertJsonStream(bytes, length));
}

CBinaryData CXmlDocument::LoadJsonFile(const wchar_t* fileName)
{
    return EncodeXml(ConvertJsonFile(fileName));
}

// kept: required behaviour. Narrow JSON text is widened octet by octet, not decoded as UTF-8.
WideText CXmlDocument::ConvertJson(const char* text)
{
    Cleanup();
    if (!text || !*text) {
        throw CZrException(Message::JSON_STRING_EMPTY);
    }
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text);
    return ConvertJsonToText(std::wstring(bytes, bytes + std::strlen(text)), *m_context);
}

WideText CXmlDocument::ConvertJson(const wchar_t* text)
{
    Cleanup();
    if (!text || !*text) {
        throw CZrException(Message::JSON_STRING_EMPTY);
    }
    return MakeWellFormed(ConvertJsonToText(text, *m_context));
}

WideText CXmlDocument::ConvertJsonStream(const unsigned char* bytes, unsigned long length)
{
    Cleanup();
    if (!bytes || length == 0) {
        throw CZrException(Message::JSON_STREAM_EMPTY);
    }
    const InputScope scope(*this);
    m_input = bytes;
    m_inputSize = length;
    return ConvertJsonInput();
}

WideText CXmlDocument::ConvertJsonFile(const wchar_t* fileName)
{
    Cleanup();
    const InputScope scope(*this);
    ReadFile(TextOrEmpty(fileName));
    return ConvertJsonInput();
}

WideText CXmlDocument::ConvertJsonInput()
{
    CheckInputSize();
    Decompress();
    const bool isMarked = m_inputSize >= 3 && std::memcmp(m_input, "\xEF\xBB\xBF", 3) == 0;
    const unsigned long markLength = isMarked ? 3 : 0;
    const WideText text = DecodeUtf8Text(m_input + markLength, m_inputSize - markLength);
    DestroyInput();
    return ConvertJsonToText(text.View(), *m_context);
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
    m_inputSize = static_cast<unsigned long>(length);
    CheckInputSize();
    AllocateInput(m_inputSize);
    errno = 0;
    const std::size_t count = std::fread(m_inputBuffer.get(), 1, m_inputSize, file.get());
    if (count == 0 || count < m_inputSize) {
        throw CZrException(FormatString(Message::FILE_READ_FAILED, fileName, errno));
    }
}

void CXmlDocument::AllocateInput(unsigned long size)
{
    m_inputBuffer.reset(new unsigned char[size]);
    PreferLargePages(m_inputBuffer.get(), size);
    m_input = m_inputBuffer.get();
    m_inputSize = size;
}

void CXmlDocument::Parse()
{
    CheckInputSize();
    Decompress();
    if (CFastInfosetReader::HasHeader(m_input, m_inputSize)) {
        CFastInfosetReader(CFormatSettings::FastInfoset(*m_context), *this).Parse();
    } else {
        ParseText();
    }
}

// The input may be the caller's: it is read where it is.
void CXmlDocument::Decompress()
{
    CBinaryData inflated;
    const unsigned long maximum = m_context->GetInputLimits().GetMaxInflatedOctets();
    if (!CZrZip::DecompressData(m_input, m_inputSize, maximum, inflated)) {
        return;
    }
    const unsigned long size = inflated.GetLength();
    m_inputBuffer.reset(inflated.ReleaseData());
    m_input = m_inputBuffer.get();
    m_inputSize = size;
}

void CXmlDocument::CheckInputSize() const
{
    const unsigned long maximum = m_context->GetInputLimits().GetMaxDocumentOctets();
    if (m_inputSize > maximum) {
        throw CZrException(FormatString(Message::DOCUMENT_TOO_LARGE, maximum));
    }
}

void CXmlDocument::ParseText()
{
    CExpatReader reader(*this);
    reader.CreateParser();
    reader.Parse(true);
}

} // namespace ZrXmlLib16
