// SPDX-License-Identifier: MIT
#include "xml/NameTable.h"

#include "core/TextComparison.h"
#include "streams/PlainText.h"
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
constexpr Utf16Unit SEPARATOR = L'|';

bool IsInfrastructureNamespace(const std::wstring& namespaceUri)
{
    return namespaceUri == SCHEMA_INSTANCE_NAMESPACE_URI || namespaceUri == XMLNS_NAMESPACE_URI;
}

bool IsInfrastructureName(const std::wstring& localName)
{
    return localName == L"xmlns" || localName == L"type" || localName == L"schemaLocation"
        || localName == L"noNamespaceSchemaLocation";
}

/// The length; reads whole runs.
std::size_t FindEnd(const Utf16Unit* text) noexcept
{
    static_assert(UTF16_RUN * sizeof(Utf16Unit) <= NameTable::OVERREAD);
    for (std::size_t position = 0;; position += UTF16_RUN) {
        const __m128i run = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + position));
        if (const unsigned ends = FindUnit(run, 0)) {
            return position + static_cast<unsigned>(__builtin_ctz(ends)) / sizeof(Utf16Unit);
        }
    }
}

template <class Word> Word LoadAs(const char* bytes) noexcept
{
    Word word = 0;
    std::memcpy(&word, bytes, sizeof(word));
    return word;
}

/// The last eight octets, or all of fewer. The size is an even number.
std::uint64_t LoadEnd(const char* bytes, std::size_t size) noexcept
{
    if (size >= 8) {
        return LoadAs<std::uint64_t>(bytes + size - 8);
    }
    if (size >= 4) {
        return std::uint64_t{LoadAs<std::uint32_t>(bytes)} << 32 | LoadAs<std::uint32_t>(bytes + size - 4);
    }
    return size == 0 ? 0 : LoadAs<std::uint16_t>(bytes);
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

XmlName::XmlName(const NamespaceText& text, const std::wstring& localName, DocumentStorage* nameStorage)
    : namespaceUri(text.uri)
    , objectName(localName)
    , storage(nameStorage)
{
    Classify(text, localName.size());
}

XmlName::XmlName(
    const NamespaceText& text, const Utf16Unit* localName, std::size_t length, DocumentStorage* nameStorage)
    : namespaceUri(text.uri)
    , objectName(localName, length)
    , storage(nameStorage)
{
    Classify(text, length);
}

// kept: required behaviour. The namespace of declarations counts like the instance namespace, for "nil" too.
inline void XmlName::Classify(const NamespaceText& text, std::size_t length)
{
    isNamespaceAttribute = text.isInfrastructure && IsInfrastructureName(GetLocalName());
    isNilAttribute = text.isInfrastructure && GetLocalName() == L"nil";
    isLong = text.uri.size() + length > ORDINARY_LENGTH;
}

const std::wstring& XmlName::MakeWideLocalName() const
{
    auto wide = std::make_unique<std::wstring>();
    objectName.CopyTo(*wide);
    wideLocalName = std::move(wide);
    return *wideLocalName;
}

NameTable::Entry::Entry(const Key& key, std::size_t size, DocumentStorage& storage, Entry* olderEntry)
    : text(key.text)
    , name(key.form == KeyForm::Wide
              ? XmlName(
                  text, std::wstring(static_cast<const wchar_t*>(key.local), key.localSize / sizeof(wchar_t)), &storage)
              : XmlName(text, static_cast<const Utf16Unit*>(key.local),
                  key.form == KeyForm::Namespace ? 0 : key.localSize / sizeof(Utf16Unit), &storage))
    , keySize(size)
    , localSize(key.localSize)
    , hash(key.hash)
    , firstBlock((1u << std::min(size, BLOCK)) - 1)
    , form(key.form)
    , older(olderEntry)
{
}

bool NameTable::Entry::Is(const Key& key) const noexcept
{
    if (hash != key.hash || form != key.form || localSize != key.localSize) {
        return false;
    }
    const char* const local =
        form == KeyForm::Parser ? KeyBytes() + (keySize - sizeof(Utf16Unit) - localSize) : KeyBytes();
    return (form == KeyForm::Namespace || &text == &key.text) && std::memcmp(local, key.local, localSize) == 0;
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
    const std::size_t length = FindEnd(qualifiedName);
    const NamespaceText& text = FindNamespace(qualifiedName, length);
    const std::size_t start = text.uri.empty() && *qualifiedName != SEPARATOR ? 0 : text.uri.size() + 1;
    const Key key = MakeKey(text, qualifiedName + start, (length - start) * sizeof(Utf16Unit), KeyForm::Parser);
    Entry* entry = Find(key);
    if (!entry) {
        entry = &Insert(key, qualifiedName, (length + 1) * sizeof(Utf16Unit));
        m_newestParsed = entry;
    }
    if (m_previous) {
        Entry** const followers = m_previous->followers;
        for (std::size_t index = std::size(m_previous->followers) - 1; index > 0; --index) {
            followers[index] = followers[index - 1];
        }
        followers[0] = entry;
    }
    m_previous = entry;
    return entry->name;
}

/// The namespace of a name that the parser delivered: mostly that of the new name before.
const NamespaceText& NameTable::FindNamespace(const Utf16Unit* qualifiedName, std::size_t length)
{
    if (m_newestParsed) {
        const NamespaceText& text = m_newestParsed->text;
        const std::size_t size = text.uri.size();
        if (size != 0 && size < length && qualifiedName[size] == SEPARATOR
            && std::memcmp(m_newestParsed->KeyBytes(), qualifiedName, size * sizeof(Utf16Unit)) == 0) {
            return text;
        }
    }
    const Utf16Unit* const end = qualifiedName + length;
    const Utf16Unit* const separator = std::find(qualifiedName, end, SEPARATOR);
    return separator == end ? NoNamespace() : ShareNamespace(std::wstring(qualifiedName, separator));
}

const XmlName& NameTable::Intern(const std::wstring& namespaceUri, const Utf16Unit* localName, std::size_t length)
{
    return FindOrInsert(MakeKey(ShareNamespace(namespaceUri), localName, length * sizeof(Utf16Unit), KeyForm::Units))
        .name;
}

const XmlName& NameTable::Intern(const std::wstring& namespaceUri, const std::wstring& localName)
{
    Utf16Unit units[ORDINARY_LENGTH];
    const std::size_t length = localName.size();
    if (length <= ORDINARY_LENGTH && NarrowPlainText(localName.data(), length, units)) {
        return Intern(namespaceUri, units, length);
    }
    return FindOrInsert(
        MakeKey(ShareNamespace(namespaceUri), localName.data(), length * sizeof(wchar_t), KeyForm::Wide))
        .name;
}

/// The one text for a namespace, which lives as long as the table.
const NamespaceText& NameTable::ShareNamespace(const std::wstring& namespaceUri)
{
    if (namespaceUri.empty()) {
        return NoNamespace();
    }
    if (m_latestNamespace && SameText(m_latestNamespace->uri, namespaceUri)) {
        return *m_latestNamespace;
    }
    const std::size_t size = namespaceUri.size() * sizeof(wchar_t);
    const Key key = MakeKey(NoNamespace(), namespaceUri.data(), size, KeyForm::Namespace);
    if (const Entry* const found = Find(key)) {
        m_latestNamespace = &found->text;
    } else {
        auto text = std::make_unique<const NamespaceText>(namespaceUri);
        Insert({*text, key.local, key.localSize, key.form, key.hash}, key.local, size);
        m_latestNamespace = text.release();
    }
    return *m_latestNamespace;
}

NameTable::Key NameTable::MakeKey(
    const NamespaceText& text, const void* local, std::size_t localSize, KeyForm form) noexcept
{
    const HashSecret& secret = GetHashSecret();
    const auto space = reinterpret_cast<std::uintptr_t>(&text);
    std::uint64_t hash = MultiplyAndFold(secret.seed ^ space << 16 ^ localSize, secret.multiplier);
    const char* const bytes = static_cast<const char*>(local);
    std::size_t position = 0;
    for (; position + sizeof(std::uint64_t) < localSize; position += sizeof(std::uint64_t)) {
        hash = MultiplyAndFold(hash ^ LoadAs<std::uint64_t>(bytes + position), secret.multiplier);
    }
    hash = MultiplyAndFold(hash ^ LoadEnd(bytes, localSize), secret.multiplier);
    return Key{text, local, localSize, form, hash};
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

NameTable::Entry& NameTable::FindOrInsert(const Key& key)
{
    Entry* const found = Find(key);
    return found ? *found : Insert(key, key.local, key.localSize);
}

/// @param bytes the text that the new entry keeps behind it.
NameTable::Entry& NameTable::Insert(const Key& key, const void* bytes, std::size_t size)
{
    if (2 * (m_entryCount + 1) > m_slotCount) {
        Grow();
    }
    void* const memory = m_owner.GetArena().Allocate(sizeof(Entry) + std::max(size, Entry::BLOCK), alignof(Entry));
    m_newest = new (memory) Entry(key, size, m_owner, m_newest);
    std::memcpy(static_cast<char*>(memory) + sizeof(Entry), bytes, size);
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
