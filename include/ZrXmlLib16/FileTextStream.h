// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_FILETEXTSTREAM_H
#define ZRXMLLIB16_FILETEXTSTREAM_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/TextStream.h"

#include <cstdio>
#include <string>

namespace ZrXmlLib16 {

/// A text stream that writes to a file. Files of the encodings UTF-16 and Wide begin with the octets FF FE.
class ZRXML_API CFileTextStream : public CTextStream {
public:
    /// @param fileName its UTF-8 form is the path; null is an empty name.
    CFileTextStream(const wchar_t* fileName, XmlEncoding encoding);
    /// Closes an open file; errors are not reported.
    ~CFileTextStream() override;

    /// Drops collected text and creates or truncates the file.
    /// @throws CZrException when the file cannot be written.
    void Open() override;
    /// Flushes and closes the file; without an open file it does nothing.
    /// @throws CZrException as Flush does, and when the file cannot be completed.
    void Close() override;
    /// Writes the collected text to the file and drops it; does nothing when there is none.
    /// @throws CZrException when no file is open, and when writing fails, which also closes the file.
    void Flush() override;

private:
    void CloseFile() noexcept;

    std::wstring m_fileName;
    CBinaryData m_byteBlock;
    FILE* m_file;
};

} // namespace ZrXmlLib16

#endif
