// SPDX-License-Identifier: MIT
#ifndef CORE_SEENFLAGS_H
#define CORE_SEENFLAGS_H

#include <cstddef>
#include <cstdint>
#include <memory>

namespace ZrXmlLib16 {

/// One flag per record of a class, all false at first. Up to 64 of them live on the stack.
class CSeenFlags {
public:
    explicit CSeenFlags(std::size_t count)
    {
        if (count > BITS) {
            m_many.reset(new std::uint64_t[count / BITS + 1]());
            m_words = m_many.get();
        }
    }
    CSeenFlags(const CSeenFlags&) = delete;
    CSeenFlags& operator=(const CSeenFlags&) = delete;

    bool Test(std::size_t index) const { return ((m_words[index / BITS] >> index % BITS) & 1U) != 0; }
    void Set(std::size_t index) { m_words[index / BITS] |= std::uint64_t(1) << index % BITS; }

private:
    static constexpr std::size_t BITS = 64;

    std::uint64_t m_few = 0;
    std::uint64_t* m_words = &m_few;
    std::unique_ptr<std::uint64_t[]> m_many;
};

/// Number of records in a null-terminated array; a null array has none.
template <class Record> std::size_t CountRecords(Record* const* records)
{
    std::size_t count = 0;
    while (records && records[count]) {
        ++count;
    }
    return count;
}

} // namespace ZrXmlLib16

#endif
