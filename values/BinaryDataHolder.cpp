// SPDX-License-Identifier: MIT
#include "values/BinaryDataHolder.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "values/BinaryMessages.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned long MINIMUM_CAPACITY = 8192;

} // namespace

CBinaryData::CDataHolder::CDataHolder(
    std::unique_ptr<unsigned char[]> data, unsigned long length, unsigned long capacity)
    : m_data(std::move(data))
    , m_length(length)
    , m_capacity(capacity)
    , m_referenceCount(1)
{
}

CBinaryData::CDataHolder* CBinaryData::CDataHolder::Adopt(unsigned char* data, unsigned long length)
{
    std::unique_ptr<unsigned char[]> owned(data);
    return data == nullptr || length == 0 ? nullptr : new CDataHolder(std::move(owned), length, length);
}

CBinaryData::CDataHolder* CBinaryData::CDataHolder::Copy(const unsigned char* data, unsigned long length)
{
    if (data == nullptr || length == 0) {
        return nullptr;
    }
    const unsigned long capacity = std::max(2 * length, MINIMUM_CAPACITY);
    std::unique_ptr<unsigned char[]> copy(new unsigned char[capacity]);
    std::memcpy(copy.get(), data, length);
    return new CDataHolder(std::move(copy), length, capacity);
}

void CBinaryData::CDataHolder::AddRef()
{
    CZRCriticalSection::CGuard guard(m_lock);
    ++m_referenceCount;
}

void CBinaryData::CDataHolder::Release(bool detach)
{
    {
        CZRCriticalSection::CGuard guard(m_lock);
        if (detach && m_referenceCount > 1) {
            throw CZrException(FormatString(Message::RELEASE_OF_SHARED_DATA, static_cast<int>(m_referenceCount - 1)));
        }
        if (--m_referenceCount != 0) {
            return;
        }
    }
    if (detach) {
        (void)m_data.release();
    }
    delete this;
}

void CBinaryData::CDataHolder::Append(const unsigned char* data, unsigned long n)
{
    CZRCriticalSection::CGuard guard(m_lock);
    if (m_referenceCount > 1) {
        throw CZrException(FormatString(Message::APPEND_TO_SHARED_DATA, static_cast<int>(m_referenceCount)));
    }
    if (n > m_capacity - m_length) {
        Grow(2 * (m_length + n), data, n);
    } else {
        std::memcpy(m_data.get() + m_length, data, n);
    }
    m_length += n;
}

void CBinaryData::CDataHolder::Grow(unsigned long capacity, const unsigned char* appended, unsigned long n)
{
    std::unique_ptr<unsigned char[]> grown(new unsigned char[capacity]);
    std::memcpy(grown.get(), m_data.get(), m_length);
    // The appended octets may lie in the old array, which therefore goes last.
    std::memcpy(grown.get() + m_length, appended, n);
    m_data = std::move(grown);
    m_capacity = capacity;
}

CBinaryData::CDataHolder* CBinaryData::CDataHolder::GetExclusiveCopy()
{
    CZRCriticalSection::CGuard guard(m_lock);
    if (m_referenceCount < 2) {
        return this;
    }
    CDataHolder* copy = Copy(m_data.get(), m_length);
    --m_referenceCount; // another value keeps this holder alive
    return copy;
}

} // namespace ZrXmlLib16
