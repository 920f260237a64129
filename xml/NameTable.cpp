// SPDX-License-Identifier: MIT
#include "xml/NameTable.h"

#include "values/HashSecret.h"
#include "xml/XmlNamespaces.h"

#include <cstring>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t FIRST_SLOT_COUNT = 32;

bool IsInfrastructureNamespace(const std::wstring& namespaceUri)
{
    return namespaceUri == SCHEMA_INSTANCE_NAMESPACE_URI || namespaceUri == XMLNS_NAMESPACE_URI;
}

bool IsInfrastructureName(const std::wstring& localName)
{
    return localName == L"xmlns" || localName == L"type" || localName == L"schemaLocation"
        || localName == L"noNamespaceSchemaLocation";
}

std::wstring Widen(const Utf16Unit* units, std::size_t length)
{
    std::wstring text;
    AssignUtf16(text, units, length);
    return text;
}

XmlName SplitName(const Utf16Unit* qualifiedName, std::size_t length, DocumentStorage& storage)
{
    const Utf16Unit* const end = qualifiedName + length;
    const Utf16Unit* const separator = std::find(qualifiedName, end, Utf16Unit{L'|'});
    if (separator == end) {
        return XmlName(std::wstring(), Widen(qualifiedName, length), &storage);
    }
    return XmlName(Widen(qualifiedName, static_cast<std::size_t>(separator - qualifiedName)),
        Widen(separator + 1, static_cast<std::size_t>(end - separator - 1)), &storage);
}

} // namespace

// kept: required behaviour. The namespace of declarations counts like the instance namespace, for "nil" too.
XmlName::XmlName(std::wstring namespaceOfName, std::wstring localPart, DocumentStorage* nameStorage)
    : namespaceUri(std::move(namespaceOfName))
    , localName(std::move(localPart))
    , isNamespaceAttribute(IsInfrastructureNamespace(namespaceUri) && IsInfrastructureName(localName))
    , isNilAttribute(IsInfrastructureNamespace(namespaceUri) && localName == L"nil")
    , storage(nameStorage)
{
}

NameTable::Entry::Entry(const Key& key, XmlName entryName)
    : keyUnits(key.size / sizeof(Utf16Unit))
    , form(key.form)
    , name(std::move(entryName))
{
    std::memcpy(keyUnits.data(), key.bytes, key.size);
}

NameTable::NameTable(DocumentStorage& owner)
    : m_owner(owner)
{
}

// Stops at the first difference: what lies behind a shorter name must not be read.
bool NameTable::Entry::Is(const Utf16Unit* qualifiedName) const noexcept
{
    const Utf16Unit* own = keyUnits.data();
    const Utf16Unit* const end = own + keyUnits.size();
    for (; end - own >= 4; own += 4, qualifiedName += 4) {
        if (own[0] != qualifiedName[0] || own[1] != qualifiedName[1] || own[2] != qualifiedName[2]
            || own[3] != qualifiedName[3]) {
            return false;
        }
    }
    for (; own != end; ++own, ++qualifiedName) {
        if (*own != *qualifiedName) {
            return false;
        }
    }
    return true;
}

const XmlName& NameTable::Intern(const Utf16Unit* qualifiedName)
{
    if (m_previous && m_previous->follower && m_previous->follower->Is(qualifiedName)) {
        m_previous = m_previous->follower;
        return m_previous->name;
    }
    return Search(qualifiedName);
}

// Apart from Intern, so that the usual way through that stays short.
const XmlName& NameTable::Search(const Utf16Unit* qualifiedName)
{
    const std::size_t length = Utf16Length(qualifiedName);
    const Key key = MakeKey(qualifiedName, (length + 1) * sizeof(Utf16Unit), KeyForm::Parser);
    Entry* const found = Find(key);
    Entry& entry = found ? *found : Insert(key, SplitName(qualifiedName, length, m_owner));
    if (m_previous) {
        m_previous->follower = &entry;
    }
    m_previous = &entry;
    return entry.name;
}

const XmlName& NameTable::Intern(const std::wstring& namespaceUri, const std::wstring& localName)
{
    m_wideKey.assign(1, static_cast<wchar_t>(namespaceUri.size()));
    m_wideKey.append(namespaceUri).append(localName);
    const Key key = MakeKey(m_wideKey.data(), m_wideKey.size() * sizeof(wchar_t), KeyForm::Wide);
    const Entry* const found = Find(key);
    return found ? found->name : Insert(key, XmlName(namespaceUri, localName, &m_owner)).name;
}

NameTable::Key NameTable::MakeKey(const void* bytes, std::size_t size, KeyForm form) const noexcept
{
    const HashSecret& secret = GetHashSecret();
    std::uint64_t hash = MultiplyAndFold(secret.seed ^ size, secret.multiplier);
    const char* const text = static_cast<const char*>(bytes);
    std::uint64_t part = 0;
    std::size_t position = 0;
    for (; position + sizeof(part) <= size; position += sizeof(part)) {
        std::memcpy(&part, text + position, sizeof(part));
        hash = MultiplyAndFold(hash ^ part, secret.multiplier);
    }
    if (position != size) {
        part = 0;
        std::memcpy(&part, text + position, size - position);
        hash = MultiplyAndFold(hash ^ part, secret.multiplier);
    }
    return Key{text, size, form, hash};
}

NameTable::Entry* NameTable::Find(const Key& key) const noexcept
{
    if (m_slots.empty()) {
        return nullptr;
    }
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t index = key.hash & mask;; index = (index + 1) & mask) {
        const Slot& slot = m_slots[index];
        if (!slot.entry) {
            return nullptr;
        }
        if (slot.hash == key.hash && slot.entry->form == key.form
            && slot.entry->keyUnits.size() * sizeof(Utf16Unit) == key.size
            && std::memcmp(slot.entry->keyUnits.data(), key.bytes, key.size) == 0) {
            return slot.entry;
        }
    }
}

NameTable::Entry& NameTable::Insert(const Key& key, XmlName name)
{
    if (2 * (m_entries.size() + 1) > m_slots.size()) {
        Grow();
    }
    m_entries.emplace_back(key, std::move(name));
    FreeSlot(key.hash) = Slot{key.hash, &m_entries.back()};
    return m_entries.back();
}

void NameTable::Grow()
{
    std::vector<Slot> old(std::max(FIRST_SLOT_COUNT, 2 * m_slots.size()), Slot{0, nullptr});
    old.swap(m_slots);
    for (const Slot& slot : old) {
        if (slot.entry) {
            FreeSlot(slot.hash) = slot;
        }
    }
}

NameTable::Slot& NameTable::FreeSlot(std::uint64_t hash) noexcept
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t index = hash & mask;
    while (m_slots[index].entry) {
        index = (index + 1) & mask;
    }
    return m_slots[index];
}

} // namespace ZrXmlLib16
