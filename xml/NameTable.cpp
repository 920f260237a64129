// SPDX-License-Identifier: MIT
#include "xml/NameTable.h"

#include "values/HashSecret.h"
#include "xml/DocumentStorage.h"
#include "xml/XmlNamespaces.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t FIRST_SLOT_COUNT = 64;
constexpr std::size_t ORDINARY_LENGTH = 128;

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

} // namespace

// kept: required behaviour. The namespace of declarations counts like the instance namespace, for "nil" too.
XmlName::XmlName(const std::wstring& namespaceOfName, std::wstring localPart, DocumentStorage* nameStorage)
    : namespaceUri(namespaceOfName)
    , localName(std::move(localPart))
    , isNamespaceAttribute(IsInfrastructureNamespace(namespaceUri) && IsInfrastructureName(localName))
    , isNilAttribute(IsInfrastructureNamespace(namespaceUri) && localName == L"nil")
    , isLong(namespaceUri.size() + localName.size() > ORDINARY_LENGTH)
    , storage(nameStorage)
{
}

NameTable::Entry::Entry(const Key& key, XmlName entryName, Entry* olderEntry)
    : name(std::move(entryName))
    , keySize(key.size)
    , hash(key.hash)
    , form(key.form)
    , older(olderEntry)
{
    std::memcpy(reinterpret_cast<char*>(this + 1), key.bytes, key.size);
}

bool NameTable::Entry::Is(const Key& key) const noexcept
{
    return hash == key.hash && form == key.form && keySize == key.size
        && std::memcmp(KeyBytes(), key.bytes, key.size) == 0;
}

NameTable::~NameTable()
{
    while (m_newest) {
        std::exchange(m_newest, m_newest->older)->~Entry();
    }
}

// Apart from Intern, so that the usual way through that stays short.
const XmlName& NameTable::Search(const Utf16Unit* qualifiedName)
{
    const std::size_t length = Utf16Length(qualifiedName);
    const Key key = MakeKey(qualifiedName, (length + 1) * sizeof(Utf16Unit), KeyForm::Parser);
    Entry* entry = Find(key);
    if (!entry) {
        entry = &Insert(key, SplitName(qualifiedName, length));
    }
    if (m_previous) {
        m_previous->followers[1] = std::exchange(m_previous->followers[0], entry);
    }
    m_previous = entry;
    return entry->name;
}

XmlName NameTable::SplitName(const Utf16Unit* qualifiedName, std::size_t length)
{
    const Utf16Unit* const end = qualifiedName + length;
    const Utf16Unit* const separator = std::find(qualifiedName, end, Utf16Unit{L'|'});
    const Utf16Unit* const localName = separator == end ? qualifiedName : separator + 1;
    const std::size_t namespaceLength = separator == end ? 0 : static_cast<std::size_t>(separator - qualifiedName);
    return XmlName(ShareNamespace(Widen(qualifiedName, namespaceLength)),
        Widen(localName, static_cast<std::size_t>(end - localName)), &m_owner);
}

const XmlName& NameTable::Intern(const std::wstring& namespaceUri, const std::wstring& localName)
{
    m_wideKey.assign(1, static_cast<wchar_t>(namespaceUri.size()));
    m_wideKey.append(namespaceUri).append(localName);
    const Key key = MakeKey(m_wideKey.data(), m_wideKey.size() * sizeof(wchar_t), KeyForm::Wide);
    const Entry* const found = Find(key);
    return found ? found->name : Insert(key, XmlName(ShareNamespace(namespaceUri), localName, &m_owner)).name;
}

/// The one text for a namespace, which lives as long as the table.
const std::wstring& NameTable::ShareNamespace(const std::wstring& namespaceUri)
{
    static const std::wstring none;
    if (namespaceUri.empty()) {
        return none;
    }
    const Key key = MakeKey(namespaceUri.data(), namespaceUri.size() * sizeof(wchar_t), KeyForm::Namespace);
    const Entry* const found = Find(key);
    return found ? found->name.localName : Insert(key, XmlName(none, namespaceUri, &m_owner)).name.localName;
}

NameTable::Key NameTable::MakeKey(const void* bytes, std::size_t size, KeyForm form) noexcept
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
    if (m_slotCount == 0) {
        return nullptr;
    }
    const std::size_t mask = m_slotCount - 1;
    for (std::size_t index = key.hash & mask;; index = (index + 1) & mask) {
        Entry* const entry = m_slots[index];
        if (!entry || entry->Is(key)) {
            return entry;
        }
    }
}

NameTable::Entry& NameTable::Insert(const Key& key, XmlName name)
{
    if (2 * (m_entryCount + 1) > m_slotCount) {
        Grow();
    }
    void* const memory = m_owner.GetArena().Allocate(sizeof(Entry) + std::max(key.size, Entry::BLOCK), alignof(Entry));
    m_newest = new (memory) Entry(key, std::move(name), m_newest);
    ++m_entryCount;
    return *(FreeSlot(key.hash) = m_newest);
}

void NameTable::Grow()
{
    const std::size_t count = std::max(FIRST_SLOT_COUNT, 2 * m_slotCount);
    m_slots = static_cast<Entry**>(m_owner.GetArena().Allocate(count * sizeof(Entry*), alignof(Entry*)));
    m_slotCount = count;
    std::fill_n(m_slots, count, nullptr);
    for (Entry* entry = m_newest; entry; entry = entry->older) {
        FreeSlot(entry->hash) = entry;
    }
}

NameTable::Entry*& NameTable::FreeSlot(std::uint64_t hash) noexcept
{
    const std::size_t mask = m_slotCount - 1;
    std::size_t index = hash & mask;
    while (m_slots[index]) {
        index = (index + 1) & mask;
    }
    return m_slots[index];
}

} // namespace ZrXmlLib16
