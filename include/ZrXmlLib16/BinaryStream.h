// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_BINARYSTREAM_H
#define ZRXMLLIB16_BINARYSTREAM_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// Collects the octets of a writer in its own buffer or in one of the caller's. Not synchronised.
class ZRXML_API CBinaryStream {
public:
    /// Appends to a buffer of its own.
    CBinaryStream();
    /// Appends to the caller's buffer, which must outlive the stream.
    explicit CBinaryStream(CBinaryData& data);
    virtual ~CBinaryStream();

    /// Appends octets.
    void Append(unsigned char value);
    /// @param data may be null when n is 0.
    void Append(const unsigned char* data, unsigned long n);
    /// Appends all octets of a value.
    void Append(const CBinaryData& data);

    /// The buffer that is appended to.
    CBinaryData& GetBinaryStream();

    CBinaryStream(const CBinaryStream&) = delete;
    CBinaryStream& operator=(const CBinaryStream&) = delete;

protected:
    /// @param className name of the derived class; not kept.
    explicit CBinaryStream(const wchar_t* className);
    /// For a derived class that appends to the caller's buffer.
    CBinaryStream(const wchar_t* className, CBinaryData& data);

private:
    CBinaryData m_own;
    CBinaryData& m_data;
};

} // namespace ZrXmlLib16

#endif
