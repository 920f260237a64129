// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/NodeText.h"

#include "ZrXmlLib16/ZrVariant.h"
#include "lexical/PlainValue.h"
#include "lexical/ShortText.h"
#include "xml/DocumentStorage.h"
#include "xml/Utf16Text.h"

#include <algorithm>
#include <memory>

namespace ZrXmlLib16 {

namespace {

// The units lie in the arena.
static_assert(Arena::SLACK >= PlainValue::OVERREAD);

constexpr std::size_t SECOND_CAPACITY = 16;
constexpr std::size_t LONGEST_UNITS = UINT32_MAX - 1;

} // namespace

/// Room for more units behind the text; null when the text has to become wide.
unsigned short* NodeText::MakeRoom(DocumentStorage& storage, std::size_t count)
{
    const std::size_t total = m_length + count;
    if (total > LONGEST_UNITS || !storage.KeepsTexts()) {
        return nullptr;
    }
    if (total > m_capacity) {
        Arena& arena = storage.GetArena();
        const std::size_t missing = (total - m_capacity) * sizeof(*m_units);
        if (m_length == 0 || !arena.Extend(m_units + m_capacity, missing)) {
            const std::size_t doubled = m_length == 0 ? total : std::max({2 * total, SECOND_CAPACITY});
            const std::size_t capacity = std::min(doubled, LONGEST_UNITS);
            unsigned short* const units =
                static_cast<unsigned short*>(arena.Allocate(capacity * sizeof(*m_units), alignof(unsigned short)));
            std::copy_n(m_units, m_length, units);
            m_units = units;
            m_capacity = static_cast<std::uint32_t>(capacity);
        } else {
            m_capacity = static_cast<std::uint32_t>(total);
        }
    }
    return m_units + m_length;
}

void NodeText::AppendUnits(DocumentStorage* storage, const unsigned short* units, std::size_t count)
{
    if (m_capacity == 0 && storage && storage->KeepsTexts() && count <= LONGEST_UNITS) { // most texts come in one piece
        m_units = static_cast<unsigned short*>(
            storage->GetArena().Allocate(count * sizeof(*m_units), alignof(unsigned short)));
        m_capacity = static_cast<std::uint32_t>(count);
        m_length = static_cast<std::uint32_t>(CopyExcludingCR(m_units, units, count) - m_units);
    } else if (!IsWide() && count <= m_capacity - m_length) {
        m_length = static_cast<std::uint32_t>(CopyExcludingCR(m_units + m_length, units, count) - m_units);
    } else {
        AppendFurtherUnits(storage, units, count);
    }
}

void NodeText::AppendFurtherUnits(DocumentStorage* storage, const unsigned short* units, std::size_t count)
{
    unsigned short* const room = storage && !IsWide() ? MakeRoom(*storage, count) : nullptr;
    if (room) {
        m_length += static_cast<std::uint32_t>(CopyExcludingCR(room, units, count) - room);
        return;
    }
    std::wstring& text = GetForms(storage).text;
    ReserveAmortised(text, count);
    const std::size_t start = text.size();
    text.resize(start + count);
    wchar_t* const output = &text[start];
    text.resize(start + static_cast<std::size_t>(WidenExcludingCR(output, units, count) - output));
}

void NodeText::AppendWide(DocumentStorage* storage, const wchar_t* text, std::size_t length)
{
    std::wstring& own = GetForms(storage).text;
    ReserveAmortised(own, length);
    own.append(text, length);
}

void NodeText::AppendCompact(DocumentStorage* storage, const wchar_t* text, std::size_t length)
{
    unsigned short* const room =
        storage && !IsWide() && IsUtf16WithoutCR(text, length) ? MakeRoom(*storage, length) : nullptr;
    if (!room) {
        AppendWide(storage, text, length);
        return;
    }
    std::transform(text, text + length, room, [](wchar_t c) { return static_cast<unsigned short>(c); });
    m_length += static_cast<std::uint32_t>(length);
}

void NodeText::AssignParsed(DocumentStorage& storage, const unsigned short* units, std::size_t length)
{
    if (length == 0) {
        return;
    }
    if (!storage.KeepsTexts() || length > LONGEST_UNITS) {
        AssignUtf16(GetForms(&storage).text, units, length);
        return;
    }
    auto* const own =
        static_cast<unsigned short*>(storage.GetArena().Allocate(length * sizeof(*m_units), alignof(unsigned short)));
    if (CopyExcludingCR(own, units, length) != own + length) {
        AssignUtf16(GetForms(&storage).text, units, length);
        return;
    }
    m_units = own;
    m_capacity = static_cast<std::uint32_t>(length);
    m_length = m_capacity;
}

NodeForms& NodeText::GetForms(DocumentStorage* storage)
{
    if (!IsWide()) {
        std::unique_ptr<NodeForms> forms(new NodeForms{{}, {}, false, storage, nullptr, nullptr});
        AssignUtf16(forms->text, m_units, m_length);
        if (storage) {
            storage->Link(*forms);
        }
        m_forms = forms.release();
        m_length = 0;
        m_capacity = WIDE;
    }
    return *m_forms;
}

const std::wstring& NodeText::Borrow(DocumentStorage* storage) const
{
    if (IsWide()) {
        return m_forms->text;
    }
    if (!storage) {
        static const std::wstring empty;
        return empty;
    }
    AssignUtf16(storage->GetScratch(), m_units, m_length);
    return storage->GetScratch();
}

std::wstring NodeText::Copy() const
{
    return IsWide() ? m_forms->text : std::wstring(m_units, m_units + m_length);
}

bool NodeText::ReadPlain(ItemType type, ZrVariant& value) const
{
    return !IsWide() && PlainValue::Read(m_units, m_length, type, value);
}

void NodeText::ReadString(ZrVariant& value) const
{
    if (IsWide()) {
        value.SetString(m_forms->text.data(), m_forms->text.size());
    } else {
        PlainValue::ReadString(m_units, m_length, value);
    }
}

int NodeText::Convert(DocumentStorage* storage, int (*function)(const wchar_t* text)) const
{
    if (IsWide() || m_length == 0 || m_length > ShortText<wchar_t>::LONGEST) {
        return function(Borrow(storage).c_str());
    }
    const ShortText<wchar_t> text(m_units, m_length);
    return function(text.Get());
}

bool NodeText::ContainsCR() const noexcept
{
    return IsWide() && m_forms->text.find(L'\r') != std::wstring::npos;
}

void NodeText::Release() noexcept
{
    if (IsWide()) {
        if (m_forms->storage) {
            m_forms->storage->Unlink(*m_forms);
        }
        delete m_forms;
    }
    m_units = nullptr;
    m_length = 0;
    m_capacity = 0;
}

} // namespace ZrXmlLib16
