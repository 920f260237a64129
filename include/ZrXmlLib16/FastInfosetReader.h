// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_FASTINFOSETREADER_H
#define ZRXMLLIB16_FASTINFOSETREADER_H

#include "ZrXmlLib16/Export.h"

#include <memory>

namespace ZrXmlLib16 {

class CFastInfosetContext;
class CXmlDocument;

/// Reads a Fast Infoset document (ITU-T X.891) into a CXmlDocument.
///
/// Elements, attributes, namespace attributes and character chunks are kept. Comments, processing instructions,
/// document type declarations, unexpanded entity references and the optional components of the document are passed
/// over; a transmitted vocabulary has no effect, not even the name of an external one. Nesting may have any depth. A
/// reader serves one document on one thread.
class ZRXML_API CFastInfosetReader {
public:
    /// @param context not owned; it and its vocabulary do not change while a document is read.
    /// @param document not owned; its input is read.
    CFastInfosetReader(const CFastInfosetContext& context, CXmlDocument& document);
    virtual ~CFastInfosetReader();
    CFastInfosetReader(const CFastInfosetReader&) = delete;
    CFastInfosetReader& operator=(const CFastInfosetReader&) = delete;

    /// Reads the document's whole input, up to the end of the root element.
    /// @return false when the input is no Fast Infoset document; the document is left alone then.
    /// @throws CZrException for malformed content; the document keeps what was built before.
    bool Parse();
    /// Releases what was needed for reading. Parse does so itself in the end, whatever happens.
    void Cleanup();

    /// Whether the octets begin as a Fast Infoset document does, with or without an XML declaration.
    static bool HasHeader(const unsigned char* bytes, unsigned long length);

private:
    class Decoder;

    const CFastInfosetContext& m_context;
    CXmlDocument& m_document;
    std::unique_ptr<Decoder> m_decoder; // null unless a document is being read
};

} // namespace ZrXmlLib16

#endif
