// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FastInfosetReader.h"

#include "fastinfoset/FastInfosetDecoder.h"
#include "fastinfoset/FastInfosetHeader.h"

namespace ZrXmlLib16 {

CFastInfosetReader::CFastInfosetReader(const CFastInfosetContext& context, CXmlDocument& document)
    : m_context(context)
    , m_document(document)
{
}

CFastInfosetReader::~CFastInfosetReader()
{
    Cleanup();
}

void CFastInfosetReader::Cleanup()
{
    m_decoder.reset();
}

bool CFastInfosetReader::HasHeader(const unsigned char* bytes, unsigned long length)
{
    return GetFastInfosetSignatureLength(bytes, length) != 0;
}

bool CFastInfosetReader::Parse()
{
    const unsigned char* const bytes = m_document.GetInputBuffer();
    const unsigned long length = m_document.GetInputSize();
    const unsigned long signature = bytes ? GetFastInfosetSignatureLength(bytes, length) : 0;
    if (signature == 0) {
        return false;
    }
    struct CleanupScope {
        ~CleanupScope() { reader.Cleanup(); }
        CFastInfosetReader& reader;
    };
    const CleanupScope scope = {*this};
    m_decoder.reset(new Decoder(m_context, m_document, {bytes + signature, length - signature}));
    m_decoder->Run();
    return true;
}

} // namespace ZrXmlLib16
