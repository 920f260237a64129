// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/StringBuffer.h"

#include "streams/LargePages.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned long DEFAULT_BLOCK_SIZE = 4095;

} // namespace

CStringBuffer::CStringBuffer()
    : CStringBuffer(DEFAULT_BLOCK_SIZE + 1)
{
}

CStringBuffer::CStringBuffer(unsigned long n)
    : m_blockSize(std::max(n, 2UL) - 1)
    , m_usedInCurrent(0)
    , m_currentCapacity(0)
    , m_current(nullptr)
    , m_totalLength(0)
{
}

CStringBuffer::~CStringBuffer() = default;

void CStringBuffer::Append(const wchar_t* text)
{
    if (text != nullptr) {
        Append(text, std::wcslen(text));
    }
}

void CStringBuffer::Append(const std::wstring& text)
{
    Append(text.data(), text.size());
}

void CStringBuffer::AppendOverBlocks(const wchar_t* text, unsigned long length)
{
    while (length > 0) {
        if (m_usedInCurrent == m_currentCapacity) {
            AddBlock();
        }
        const unsigned long part = std::min(length, m_currentCapacity - m_usedInCurrent);
        std::copy_n(text, part, m_current + m_usedInCurrent);
        m_usedInCurrent += part;
        m_totalLength += part;
        text += part;
        length -= part;
    }
}

void CStringBuffer::AddBlock()
{
    AddBlock(m_blockSize);
}

void CStringBuffer::AddBlock(unsigned long capacity)
{
    std::unique_ptr<wchar_t[]> block(new wchar_t[capacity + 1]);
    PreferLargePages(block.get(), (capacity + 1) * sizeof(wchar_t));
    m_earlierLengths.resize(m_blocks.size());
    m_blocks.push_back(std::move(block));
    if (!m_earlierLengths.empty()) {
        m_earlierLengths.back() = m_usedInCurrent;
    }
    m_current = m_blocks.back().get();
    m_currentCapacity = capacity;
    m_usedInCurrent = 0;
}

void CStringBuffer::SetText(const wchar_t* text)
{
    const std::wstring copy(text == nullptr ? L"" : text);
    Clear();
    Append(copy);
}

unsigned long CStringBuffer::GetUsed(std::size_t block) const
{
    return block + 1 == m_blocks.size() ? m_usedInCurrent : m_earlierLengths[block];
}

const wchar_t* CStringBuffer::GetText()
{
    if (m_blocks.empty()) {
        return L"";
    }
    if (m_blocks.size() > 1) {
        CStringBuffer joined;
        joined.AddBlock(m_totalLength);
        for (std::size_t i = 0; i < m_blocks.size(); ++i) {
            joined.Append(m_blocks[i].get(), GetUsed(i));
        }
        m_blocks.swap(joined.m_blocks);
        m_earlierLengths.swap(joined.m_earlierLengths);
        m_current = m_blocks.back().get();
        m_currentCapacity = m_totalLength;
        m_usedInCurrent = m_totalLength;
    }
    m_current[m_usedInCurrent] = L'\0';
    return m_current;
}

void CStringBuffer::Empty()
{
    if (m_blocks.size() != 1) {
        Clear();
        return;
    }
    m_usedInCurrent = 0;
    m_totalLength = 0;
}

void CStringBuffer::Clear()
{
    m_blocks.clear();
    m_earlierLengths.clear();
    m_usedInCurrent = 0;
    m_currentCapacity = 0;
    m_current = nullptr;
    m_totalLength = 0;
}

} // namespace ZrXmlLib16
