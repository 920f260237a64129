// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_BINARYDATA_H
#define ZRXMLLIB16_BINARYDATA_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// A sequence of octets: the value of hexBinary and base64Binary items and the byte buffer of the library.
///
/// Copies share one buffer until one of them is modified. The shared buffer is counted under its own lock, so copies
/// may live on different threads; one object must not be used by two threads at once. Wide characters are taken as
/// their raw code units, four octets each in host byte order. Null pointers count as no data.
class ZRXML_API CBinaryData {
public:
    /// The shared buffer; internal.
    class CDataHolder;

    /// Empty.
    CBinaryData();
    CBinaryData(const CBinaryData& other);
    /// @param adopt true: the value takes over the array, which must have been made by new[]; false: it copies the
    /// octets.
    CBinaryData(unsigned char* data, unsigned long length, bool adopt);
    /// The code units of a text. @param text zero-terminated; null is empty
    explicit CBinaryData(const wchar_t* text);
    virtual ~CBinaryData();
    CBinaryData& operator=(const CBinaryData& other);

    /// Replaces the content by a copy of the octets, which may be part of this value.
    void SetBuffer(unsigned char* data, unsigned long length);
    void SetBuffer(const wchar_t* text);
    /// Drops the content.
    void Clear();

    /// The octets, null when there are none. They may be shared: nobody may write through this pointer.
    unsigned char* GetData() const;
    /// Number of octets.
    unsigned long GetLength() const;
    /// Pointer to the octet at the index; the length itself is accepted as index and gives the end position.
    /// @throws CZrException for an empty value and for an index above the length.
    const unsigned char* operator[](unsigned long index) const;
    /// The same for writing: the value stops sharing its buffer.
    unsigned char* operator[](unsigned long index);

    /// Appends octets, or the code units of text, four octets each. @param data may be part of this value.
    void Append(const unsigned char* data, unsigned long n);
    void Append(unsigned char value);
    void Append(wchar_t value);
    void Append(const wchar_t* text);
    void Append(const std::wstring& text);
    void Append(const CBinaryData& data);

    /// Equal lengths and equal octets.
    bool operator==(const CBinaryData& other) const;
    bool operator!=(const CBinaryData& other) const;

    /// Hands the buffer to the caller, who frees it with delete[]; the value becomes empty. @return null for an empty
    /// value.
    unsigned char* ReleaseData();

    /// Two upper-case hex digits per octet.
    std::wstring GetAsHexString() const;
    static std::wstring GetAsHexString(unsigned char* data, unsigned long length);
    /// Replaces the content by the octets that the hex text denotes; the value is empty after a failure.
    /// @throws CZrInvalidValueException as ConvertToHexData does.
    void SetAsHexString(const wchar_t* text);
    /// Parses hex text, in either case, into a new array.
    /// @param data receives the array, which the caller frees with delete[]; null for empty text and after a failure.
    /// @return the number of octets.
    /// @throws CZrInvalidValueException for an odd number of characters and for a character that is no hex digit.
    static unsigned long ConvertToHexData(const wchar_t* text, unsigned char** data);

    /// Base64 of the octets (RFC 4648, section 4), without line breaks.
    std::wstring GetAsBase64() const;
    /// Replaces the content by the decoded octets, as lenient as CBase64::Decode.
    void SetAsBase64(const wchar_t* text);

    CBinaryData(CBinaryData&& other) noexcept;
    CBinaryData& operator=(CBinaryData&& other) noexcept;

private:
    void ReplaceHolder(CDataHolder* holder) noexcept;
    void MakeExclusive();
    void CheckIndex(unsigned long index) const;

    CDataHolder* m_holder;
};

} // namespace ZrXmlLib16

#endif
