// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_TEXTSTREAM_H
#define ZRXMLLIB16_TEXTSTREAM_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/StringBuffer.h"
#include "ZrXmlLib16/XmlEncoding.h"

namespace ZrXmlLib16 {

/// Collects the text of a writer and encodes it on request.
///
/// The base class keeps all text in memory until it is read: Close and Flush do nothing. Text holds UTF-16 units, one
/// per wide character; single values above U+FFFF are tolerated. Not synchronised.
class ZRXML_API CTextStream {
public:
    /// A stream without encoding: it can be read as text only.
    CTextStream();
    /// A stream whose text can be read as octets too.
    explicit CTextStream(XmlEncoding encoding);
    virtual ~CTextStream();

    /// Begins a new text; what was collected before is dropped.
    virtual void Open();
    /// Ends the text.
    virtual void Close();
    /// Writes out what derived classes hold back.
    virtual void Flush();

    /// Appends text.
    void Append(wchar_t c);
    /// @param text NUL-terminated; null is empty text.
    void Append(const wchar_t* text);
    /// Appends a text.
    void Append(const std::wstring& text) { Append(text.data(), text.size()); }
    /// Appends a run of characters. @param text may be null when the length is 0.
    void Append(const wchar_t* text, unsigned long length);

    /// Number of characters collected.
    unsigned long GetLength() const { return m_buffer.GetLength(); }
    /// The collected text, NUL-terminated. The stream owns it; it is valid until the next change.
    const wchar_t* GetText();
    /// The encoding of the constructor.
    XmlEncoding GetEncoding() const;

    /// The collected text as octets, without a byte order mark.
    ///
    /// UTF-8: surrogate pairs become one character, lone surrogates U+FFFD. Wide: four octets per character. UTF-16:
    /// each of the first GetLength() octets of the text's storage, widened to 16 bits, so only the first quarter of the
    /// text is covered.
    /// @throws CZrException when the stream has none of these encodings.
    CBinaryData GetEncodedStream();

    CTextStream(const CTextStream&) = delete;
    CTextStream& operator=(const CTextStream&) = delete;

protected:
    /// @param className name of the derived class; not kept.
    CTextStream(const wchar_t* className, XmlEncoding encoding);

    /// Drops the collected text.
    void EmptyText();

private:
    friend class CUtf8TextStream;
    friend class JsonXmlStream;
    friend class TextRun;

    CTextStream(XmlEncoding encoding, unsigned long blockSize);
    void AppendLong(const wchar_t* text, unsigned long length);
    /// Makes room for that many characters at the end of the text.
    virtual void MakeRoom(unsigned long length);
    CBinaryData EncodeUtf8() const;
    CBinaryData WidenFirstQuarter();
    CBinaryData CopyStorage() const;

    CStringBuffer m_buffer;
    XmlEncoding m_encoding;
};

inline void CTextStream::Append(wchar_t c)
{
    if (!m_buffer.HasRoom(1)) {
        MakeRoom(1);
    }
    m_buffer.Append(c);
}

inline void CTextStream::Append(const wchar_t* text, unsigned long length)
{
    if (m_buffer.HasRoom(length)) {
        m_buffer.Append(text, length);
    } else {
        AppendLong(text, length);
    }
}

} // namespace ZrXmlLib16

#endif
