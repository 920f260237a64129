// SPDX-License-Identifier: MIT
#ifndef XML_NAMETABLE_H
#define XML_NAMETABLE_H

#include "xml/Utf16Text.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace ZrXmlLib16 {

class DocumentStorage;

/// The name of an element or attribute, with the two questions that readers ask about attribute names answered once.
struct XmlName {
    /// @param nameStorage where the name is shared; null for a name that belongs to a single node.
    XmlName(std::wstring namespaceOfName, std::wstring localPart, DocumentStorage* nameStorage);

    std::wstring namespaceUri;
    std::wstring localName;
    bool isNamespaceAttribute;
    bool isNilAttribute;
    DocumentStorage* storage;
};

/// The distinct names of one document. A name lives as long as the table and never moves.
///
/// Names are found by the form they arrive in: the units the parser delivers, or namespace and local name as wide text.
/// The same name arriving in both forms gets two entries, so equal names need not have equal addresses. Documents
/// repeat themselves: the name that followed last time is tried before the search.
class NameTable {
public:
    explicit NameTable(DocumentStorage& owner);
    NameTable(const NameTable&) = delete;
    NameTable& operator=(const NameTable&) = delete;

    /// @param qualifiedName NUL-terminated: the namespace, "|" and the local name, or the local name alone.
    const XmlName& Intern(const Utf16Unit* qualifiedName);
    const XmlName& Intern(const std::wstring& namespaceUri, const std::wstring& localName);

private:
    enum class KeyForm { Parser, Wide };
    struct Key {
        const char* bytes;
        std::size_t size;
        KeyForm form;
        std::uint64_t hash;
    };
    struct Entry {
        Entry(const Key& key, XmlName entryName);

        bool Is(const Utf16Unit* qualifiedName) const noexcept;

        std::vector<Utf16Unit> keyUnits; // of the parser's form: with the final NUL; a wide character takes two
        const KeyForm form;
        const XmlName name;
        Entry* follower = nullptr; // the parser's name that came after this one the last time
    };
    struct Slot {
        std::uint64_t hash;
        Entry* entry; // null marks a free slot
    };

    [[gnu::noinline]] const XmlName& Search(const Utf16Unit* qualifiedName);
    Key MakeKey(const void* bytes, std::size_t size, KeyForm form) const noexcept;
    Entry* Find(const Key& key) const noexcept;
    Entry& Insert(const Key& key, XmlName name);
    void Grow();
    Slot& FreeSlot(std::uint64_t hash) noexcept;

    DocumentStorage& m_owner;
    std::deque<Entry> m_entries;
    std::vector<Slot> m_slots;   // open addressing; the size is a power of two, at most half of it in use
    Entry* m_previous = nullptr; // the last one that came from the parser
    std::wstring m_wideKey;      // reused
};

} // namespace ZrXmlLib16

#endif
