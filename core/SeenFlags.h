// SPDX-License-Identifier: MIT
#ifndef CORE_SEENFLAGS_H
#define CORE_SEENFLAGS_H

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ZrXmlLib16 {

/// One flag per record of a class, all false at first. Up to 64 of them live on the stack.
class CSeenFlags {
public:
    explicit CSeenFlags(std::size_t count)
        : m_few(0)
    {
        if (count > FEW) {
            m_many.resize(count);
        }
    }

    bool Test(std::size_t index) const { return m_many.empty() ? ((m_few >> index) & 1U) != 0 : m_many[index]; }

    void Set(std::size_t index)
    {
        if (m_many.empty()) {
            m_few |= std::uint64_t(1) << index;
        } else {
            m_many[index] = true;
        }
    }

private:
    static constexpr std::size_t FEW = 64;

    std::uint64_t m_few;
    std::vector<bool> m_many;
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
