// SPDX-License-Identifier: MIT
#include "xml/NameTable.h"

#include "values/HashSecret.h"
#include "xml/DocumentStorage.h"
#include "xml/XmlNamespaces.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>
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

const NamespaceText& NoNamespace()
{
    static const NamespaceText none{std::wstring()};
    return none;
}

} // namespace

NamespaceText::NamespaceText(std::wstring namespaceUri)
    : uri(std::move(namespaceUri))
    , isInfrastructure(IsInfrastructureNamespace(uri))
{
}

// kept: required behaviour. The namespace of declarations counts like the instance namespace, for "nil" too.
XmlName::XmlName(const NamespaceText& text, std::wstring localPart, DocumentStorage* nameStorage)
    : namespaceUri(text.uri)
    , localName(std::move(localPart))
    , isNamespaceAttribute(text.isInfrastructure && IsInfrastructureName(localName))
    , isNilAttribute(text.isInfrastructure && localName == L"nil")
    , isLong(namespaceUri.size() + localName.size() > ORDINARY_LENGTH)
    , storage(nameStorage)
{
    objectName.Set(localName.c_str());
}

NameTable::Entry::Entry(const Key& key, const NamespaceText& namespaceText, std::wstring localName,
    DocumentStorage& storage, Entry* olderEntry)
    : text(namespaceText)
    , name(namespaceText, std::move(localName), &storage)
    , keySize(key.size)
    , hash(key.hash)
    , firstBlock((1u << std::min(key.size, BLOCK)) - 1)
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
        Entry* const entry = std::exchange(m_newest, m_newest->older);
        if (entry->form == KeyForm::Namespace) {
            delete &entry->text;
        }
        entry->~Entry();
    }
}

// Apart from Intern, so that the usual way through that stays short.
const XmlName& NameTable::Search(const Utf16Unit* qualifiedName)
{
    const std::size_t length = Utf16Length(qualifiedName);
    const Key key = MakeKey(qualifiedName, (length + 1) * sizeof(Utf16Unit), KeyForm::Parser);
    Entry* entry = Find(key);
    if (!entry) {
        entry = &InsertParsed(key, qualifiedName, length);
    }
    if (m_previous) {
        auto& followers = m_previous->followers;
        std::copy_backward(std::begin(followers), std::end(followers) - 1, std::end(followers));
        followers[0] = entry;
    }
    m_previous = entry;
    return entry->name;
}

NameTable::Entry& NameTable::InsertParsed(const Key& key, const Utf16Unit* qualifiedName, std::size_t length)
{
    const Utf16Unit* const end = qualifiedName + length;
    const Utf16Unit* const separator = std::find(qualifiedName, end, Utf16Unit{L'|'});
    const bool hasNamespace = separator != end;
    const NamespaceText& text = hasNamespace
        ? ShareNamespace(qualifiedName, static_cast<std::size_t>(separator - qualifiedName))
        : NoNamespace();
    Entry& entry = Insert(key, text, std::wstring(hasNamespace ? separator + 1 : qualifiedName, end));
    m_newestParsed = &entry;
    return entry;
}

const XmlName& NameTable::Intern(const std::wstring& namespaceUri, const std::wstring& localName)
{
    const NamespaceText& text = ShareNamespace(namespaceUri);
    const auto address = reinterpret_cast<std::uintptr_t>(&text);
    m_wideKey.assign({static_cast<wchar_t>(address >> 32), static_cast<wchar_t>(address)});
    m_wideKey.append(localName);
    const Key key = MakeKey(m_wideKey.data(), m_wideKey.size() * sizeof(wchar_t), KeyForm::Wide);
    const Entry* const found = Find(key);
    return found ? found->name : Insert(key, text, localName).name;
}

/// New names mostly are of the namespace of the new name before.
const NamespaceText& NameTable::ShareNamespace(const Utf16Unit* units, std::size_t length)
{
    if (m_newestParsed && m_newestParsed->text.uri.size() == length
        && std::memcmp(m_newestParsed->KeyBytes(), units, length * sizeof(Utf16Unit)) == 0) {
        return m_newestParsed->text;
    }
    return ShareNamespace(std::wstring(units, units + length));
}

/// The one text for a namespace, which lives as long as the table.
const NamespaceText& NameTable::ShareNamespace(const std::wstring& namespaceUri)
{
    if (namespaceUri.empty()) {
        return NoNamespace();
    }
    if (m_latestNamespace && m_latestNamespace->uri == namespaceUri) {
        return *m_latestNamespace;
    }
    const Key key = MakeKey(namespaceUri.data(), namespaceUri.size() * sizeof(wchar_t), KeyForm::Namespace);
    if (const Entry* const found = Find(key)) {
        m_latestNamespace = &found->text;
    } else {
        auto text = std::make_unique<const NamespaceText>(namespaceUri);
        Insert(key, *text, std::wstring());
        m_latestNamespace = text.release();
    }
    return *m_latestNamespace;
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

NameTable::Entry& NameTable::Insert(const Key& key, const NamespaceText& text, std::wstring localName)
{
    if (2 * (m_entryCount + 1) > m_slotCount) {
        Grow();
    }
    void* const memory = m_owner.GetArena().Allocate(sizeof(Entry) + std::max(key.size, Entry::BLOCK), alignof(Entry));
    m_newest = new (memory) Entry(key, text, std::move(localName), m_owner, m_newest);
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
