// SPDX-License-Identifier: MIT
#ifndef VALUES_BINARYDATAHOLDER_H
#define VALUES_BINARYDATAHOLDER_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/ZRCriticalSection.h"

#include <memory>

namespace ZrXmlLib16 {

/// The buffer that copies of a CBinaryData share.
///
/// Invariants: the length never exceeds the capacity and is never 0; a holder that is shared is never modified. The
/// count and every change of the buffer are guarded by the lock, and the holder is destroyed only after the lock was
/// left.
class CBinaryData::CDataHolder {
public:
    /// A holder that owns the array, with a count of 1; null when there is no data (the array is freed).
    static CDataHolder* Adopt(unsigned char* data, unsigned long length);
    /// A holder with a copy of the octets and room to grow, with a count of 1; null when there is no data.
    static CDataHolder* Copy(const unsigned char* data, unsigned long length);

    void AddRef();
    /// Drops one reference; the last one destroys the holder.
    /// @param detach the array survives and belongs to the caller, who must hold the only reference.
    void Release(bool detach);

    unsigned char* GetData() const { return m_data.get(); }
    unsigned long GetLength() const { return m_length; }

    /// @param data may be part of the buffer.
    void Append(const unsigned char* data, unsigned long n);
    /// This holder when nobody shares it; otherwise a copy, and this holder loses one reference.
    CDataHolder* GetExclusiveCopy();

private:
    CDataHolder(std::unique_ptr<unsigned char[]> data, unsigned long length, unsigned long capacity);
    ~CDataHolder() = default;
    CDataHolder(const CDataHolder&) = delete;
    CDataHolder& operator=(const CDataHolder&) = delete;

    void Grow(unsigned long capacity, const unsigned char* appended, unsigned long n);

    std::unique_ptr<unsigned char[]> m_data;
    unsigned long m_length;
    unsigned long m_capacity;
    long m_referenceCount;
    CZRCriticalSection m_lock;
};

} // namespace ZrXmlLib16

#endif
