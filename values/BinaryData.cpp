// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BinaryData.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "streams/Base64Codec.h"
#include "values/BinaryDataHolder.h"
#include "values/BinaryMessages.h"

#include <cstring>
#include <cwchar>
#include <functional>
#include <memory>
#include <utility>

namespace ZrXmlLib16 {

namespace {

const unsigned char* RawUnits(const wchar_t* text)
{
    return reinterpret_cast<const unsigned char*>(text);
}

unsigned long RawLength(const wchar_t* text)
{
    return text == nullptr ? 0 : std::wcslen(text) * sizeof(wchar_t);
}

} // namespace

CBinaryData::CBinaryData()
    : m_holder(nullptr)
{
}

CBinaryData::CBinaryData(const CBinaryData& other)
    : m_holder(other.m_holder)
{
    if (m_holder != nullptr) {
        m_holder->AddRef();
    }
}

CBinaryData::CBinaryData(CBinaryData&& other) noexcept
    : m_holder(std::exchange(other.m_holder, nullptr))
{
}

CBinaryData::CBinaryData(unsigned char* data, unsigned long length, bool adopt)
    : m_holder(adopt ? CDataHolder::Adopt(data, length) : CDataHolder::Copy(data, length))
{
}

CBinaryData::CBinaryData(const wchar_t* text)
    : m_holder(CDataHolder::Copy(RawUnits(text), RawLength(text)))
{
}

CBinaryData::~CBinaryData()
{
    ReplaceHolder(nullptr);
}

CBinaryData& CBinaryData::operator=(const CBinaryData& other)
{
    // The new reference comes first, so that assigning a value to itself is harmless.
    if (other.m_holder != nullptr) {
        other.m_holder->AddRef();
    }
    ReplaceHolder(other.m_holder);
    return *this;
}

CBinaryData& CBinaryData::operator=(CBinaryData&& other) noexcept
{
    ReplaceHolder(std::exchange(other.m_holder, nullptr));
    return *this;
}

void CBinaryData::ReplaceHolder(CDataHolder* holder) noexcept
{
    CDataHolder* const previous = std::exchange(m_holder, holder);
    if (previous != nullptr) {
        previous->Release(false);
    }
}

void CBinaryData::MakeExclusive()
{
    m_holder = m_holder->GetExclusiveCopy();
}

void CBinaryData::SetBuffer(unsigned char* data, unsigned long length)
{
    ReplaceHolder(CDataHolder::Copy(data, length));
}

void CBinaryData::SetBuffer(const wchar_t* text)
{
    ReplaceHolder(CDataHolder::Copy(RawUnits(text), RawLength(text)));
}

void CBinaryData::Clear()
{
    ReplaceHolder(nullptr);
}

unsigned char* CBinaryData::GetData() const
{
    return m_holder == nullptr ? nullptr : m_holder->GetData();
}

unsigned long CBinaryData::GetLength() const
{
    return m_holder == nullptr ? 0 : m_holder->GetLength();
}

void CBinaryData::CheckIndex(unsigned long index) const
{
    // kept: required behaviour. An index equal to the length is accepted and yields the end position.
    if (m_holder == nullptr || index > m_holder->GetLength()) {
        throw CZrException(FormatString(Message::INDEX_OUT_OF_RANGE, static_cast<int>(index)));
    }
}

const unsigned char* CBinaryData::operator[](unsigned long index) const
{
    CheckIndex(index);
    return m_holder->GetData() + index;
}

unsigned char* CBinaryData::operator[](unsigned long index)
{
    CheckIndex(index);
    MakeExclusive();
    return m_holder->GetData() + index;
}

void CBinaryData::Append(const unsigned char* data, unsigned long n)
{
    if (data == nullptr || n == 0) {
        return;
    }
    if (m_holder == nullptr) {
        m_holder = CDataHolder::Copy(data, n);
        return;
    }
    const unsigned char* const begin = m_holder->GetData();
    const std::less<const unsigned char*> before;
    const bool isOwnData = !before(data, begin) && before(data, begin + m_holder->GetLength());
    MakeExclusive();
    // Once the buffer is no longer shared, the other owners may free the array that the caller's pointer refers to.
    m_holder->Append(isOwnData ? m_holder->GetData() + (data - begin) : data, n);
}

void CBinaryData::Append(unsigned char value)
{
    Append(&value, 1);
}

void CBinaryData::Append(wchar_t value)
{
    Append(RawUnits(&value), sizeof(value));
}

void CBinaryData::Append(const wchar_t* text)
{
    Append(RawUnits(text), RawLength(text));
}

void CBinaryData::Append(const std::wstring& text)
{
    Append(RawUnits(text.data()), text.size() * sizeof(wchar_t));
}

void CBinaryData::Append(const CBinaryData& data)
{
    Append(data.GetData(), data.GetLength());
}

bool CBinaryData::operator==(const CBinaryData& other) const
{
    return m_holder == other.m_holder
        || (GetLength() == other.GetLength() && std::memcmp(GetData(), other.GetData(), GetLength()) == 0);
}

bool CBinaryData::operator!=(const CBinaryData& other) const
{
    return !(*this == other);
}

unsigned char* CBinaryData::ReleaseData()
{
    if (m_holder == nullptr) {
        return nullptr;
    }
    MakeExclusive();
    unsigned char* const data = m_holder->GetData();
    m_holder->Release(true);
    m_holder = nullptr;
    return data;
}

std::wstring CBinaryData::GetAsBase64() const
{
    return EncodeBase64(GetData(), GetLength());
}

void CBinaryData::SetAsBase64(const wchar_t* text)
{
    Clear();
    const unsigned long textLength = text == nullptr ? 0 : std::wcslen(text);
    if (textLength == 0) {
        return;
    }
    std::unique_ptr<unsigned char[]> decoded(new unsigned char[DecodedBase64Bound(textLength)]);
    const unsigned long length = DecodeBase64(text, textLength, decoded.get());
    m_holder = CDataHolder::Adopt(decoded.release(), length);
}

} // namespace ZrXmlLib16
