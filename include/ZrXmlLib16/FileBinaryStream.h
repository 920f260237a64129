// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_FILEBINARYSTREAM_H
#define ZRXMLLIB16_FILEBINARYSTREAM_H

#include "ZrXmlLib16/BinaryStream.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/XmlEncoding.h"

#include <string>

namespace ZrXmlLib16 {

/// A binary stream whose content can be written to a file.
class ZRXML_API CFileBinaryStream : public CBinaryStream {
public:
    /// @param fileName its UTF-8 form is the path; null is an empty name.
    /// @param encoding UTF-16 and Wide make the file begin with the octets FF FE.
    CFileBinaryStream(const wchar_t* fileName, XmlEncoding encoding);
    /// @param data the buffer to append to and to write; it must outlive the stream.
    CFileBinaryStream(const wchar_t* fileName, XmlEncoding encoding, CBinaryData& data);
    ~CFileBinaryStream() override;

    /// Writes the whole content, replacing the file.
    /// @throws CZrException when the file cannot be written.
    void ToFile();

private:
    std::wstring m_fileName;
    XmlEncoding m_encoding;
};

} // namespace ZrXmlLib16

#endif
