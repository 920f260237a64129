// SPDX-License-Identifier: MIT
#ifndef XML_NAMETABLE_H
#define XML_NAMETABLE_H

#include "ZrXmlLib16/NameText.h"
#include "xml/ClassMemory.h"
#include "xml/Utf16Text.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>

#include <emmintrin.h>

namespace ZrXmlLib16 {

class DocumentStorage;

/// A namespace, which many names share.
struct NamespaceText {
    explicit NamespaceText(std::wstring namespaceUri);

    const std::wstring uri;
    const bool isInfrastructure; ///< the instance namespace or that of declarations
};

/// The name of an element or attribute, with the questions that readers ask about names answered once.
struct XmlName {
    /// @{
    /// @param text not owned.
    /// @param nameStorage where the name is shared; null for a name that belongs to a single node.
    XmlName(const NamespaceText& text, const std::wstring& localName, DocumentStorage* nameStorage);
    XmlName(const NamespaceText& text, const Utf16Unit* localName, std::size_t length, DocumentStorage* nameStorage);
    /// @}

    /// Makes the wide form when somebody asks for it first.
    const std::wstring& GetLocalName() const
    {
        const std::wstring* const wide = wideLocalName ? wideLocalName.get() : objectName.FindWide();
        return wide ? *wide : MakeWideLocalName();
    }

    const std::wstring& namespaceUri;
    const NameText objectName; ///< the local name in the form in which objects keep theirs
    mutable std::unique_ptr<const std::wstring> wideLocalName;
    bool isNamespaceAttribute;
    bool isNilAttribute;
    bool isLong; ///< more than 128 characters
    DocumentStorage* storage;

    /// @{
    /// What a walk over the document has found out about the name; holds for the walk of that number.
    struct Element {
        const void* record = nullptr; ///< that has this name and namespace; null: not known
        unsigned long walk = 0;
    };
    struct Attribute {
        const void* record = nullptr;  ///< that takes the attribute; null: not known
        const void* records = nullptr; ///< the list it is in
        std::size_t index = 0;         ///< and where
        unsigned long walk = 0;
    };
    mutable Element element;
    mutable Attribute attribute;
    /// @}
    /// The class of the object that was read from such an element last; null when there was none.
    mutable ClassMemory::Entry* objectClass = nullptr;

private:
    void Classify(const NamespaceText& text, std::size_t length);
    const std::wstring& MakeWideLocalName() const;
};

/// The name of a node that was built by hand.
struct OwnXmlName : private NamespaceText, public XmlName {
    OwnXmlName(const std::wstring& namespaceOfName, const std::wstring& localPart)
        : NamespaceText(namespaceOfName)
        , XmlName(static_cast<const NamespaceText&>(*this), localPart, nullptr)
    {
    }
};

/// The distinct names of one document. A name lives as long as the table and never moves.
///
/// Names are found by the form they arrive in: the units the parser delivers, or namespace and local name as wide text.
/// The same name arriving in both forms gets two entries, so equal names need not have equal addresses. Documents
/// repeat themselves: the names that followed the previous one before are tried ahead of the search.
class NameTable {
public:
    /// Octets behind the end of a name that Intern may look at.
    static constexpr std::size_t OVERREAD = 32;

    explicit NameTable(DocumentStorage& owner) noexcept
        : m_owner(owner)
    {
    }
    ~NameTable();
    NameTable(const NameTable&) = delete;
    NameTable& operator=(const NameTable&) = delete;

    /// @param qualifiedName NUL-terminated: the namespace, "|" and the local name, or the local name alone. OVERREAD
    /// octets behind it can be read.
    const XmlName& Intern(const Utf16Unit* qualifiedName)
    {
        if (m_previous) {
            for (Entry* const follower : m_previous->followers) {
                if (follower && follower->Is(qualifiedName)) {
                    m_previous = follower;
                    return follower->name;
                }
            }
        }
        return Search(qualifiedName);
    }
    const XmlName& Intern(const std::wstring& namespaceUri, const Utf16Unit* localName, std::size_t length);
    const XmlName& Intern(const std::wstring& namespaceUri, const std::wstring& localName);

private:
    /// How the local name of an entry lies in memory: in a name as the parser delivered it, as units, or as wide text.
    /// The last form is that of a namespace in wide text.
    enum class KeyForm : unsigned char { Parser, Units, Wide, Namespace };
    struct Key {
        const NamespaceText& text; // any for a namespace
        const void* local;         // the local name, or the namespace
        std::size_t localSize;     // octets
        KeyForm form;
        std::uint64_t hash;
    };
    /// Lies in the document's arena, its text behind it, at least a block long: the name as the parser delivered it
    /// with its final NUL, or the local name alone, or the namespace.
    struct Entry {
        static constexpr std::size_t BLOCK = 16;

        Entry(const Key& key, std::size_t size, DocumentStorage& storage, Entry* olderEntry);

        bool Is(const Key& key) const noexcept;
        bool Is(const Utf16Unit* qualifiedName) const noexcept;
        static __m128i CompareBlocks(const char* own, const char* other) noexcept;
        static bool SameBlocks(const char* own, const char* other, std::size_t one, std::size_t two) noexcept;
        const char* KeyBytes() const noexcept { return reinterpret_cast<const char*>(this + 1); }

        const NamespaceText& text; // which an entry for a namespace owns
        const XmlName name;
        const std::size_t keySize; // of the text behind the entry
        const std::size_t localSize;
        const std::uint64_t hash;
        const unsigned firstBlock; // a bit for every octet of the key that is in the first block
        const KeyForm form;
        Entry* const older;              // all entries, the newest first
        Entry* followers[4] = {nullptr}; // the parser's names that came after this one, the latest new one first
    };

    [[gnu::noinline]] const XmlName& Search(const Utf16Unit* qualifiedName);
    const NamespaceText& FindNamespace(const Utf16Unit* qualifiedName, std::size_t length);
    const NamespaceText& ShareNamespace(const std::wstring& namespaceUri);
    static Key MakeKey(const NamespaceText& text, const void* local, std::size_t localSize, KeyForm form) noexcept;
    Entry* Find(const Key& key) const noexcept;
    Entry& FindOrInsert(const Key& key);
    Entry& Insert(const Key& key, const void* bytes, std::size_t size);
    void Grow();
    Entry*& FreeSlot(std::uint64_t hash) noexcept;

    DocumentStorage& m_owner;
    Entry* m_newest = nullptr;
    Entry* m_previous = nullptr; // the last one that came from the parser
    Entry** m_slots = nullptr;   // open addressing, in the arena; at most half of them in use, null marks a free one
    std::size_t m_slotCount = 0; // a power of two
    std::size_t m_entryCount = 0;
    const Entry* m_newestParsed = nullptr;
    const NamespaceText* m_latestNamespace = nullptr; // that came as wide text
};

/// The octets that are the same in two blocks are 0xFF.
inline __m128i NameTable::Entry::CompareBlocks(const char* own, const char* other) noexcept
{
    return _mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(own)),
        _mm_loadu_si128(reinterpret_cast<const __m128i*>(other)));
}

inline bool NameTable::Entry::SameBlocks(const char* own, const char* other, std::size_t one, std::size_t two) noexcept
{
    const __m128i same = _mm_and_si128(CompareBlocks(own + one, other + one), CompareBlocks(own + two, other + two));
    return _mm_movemask_epi8(same) == (1 << BLOCK) - 1;
}

// Stops at the first two blocks that differ: what lies behind a shorter name must not be read, but for the rest of
// these.
inline bool NameTable::Entry::Is(const Utf16Unit* qualifiedName) const noexcept
{
    const char* const own = KeyBytes();
    const char* const other = reinterpret_cast<const char*>(qualifiedName);
    const auto same = static_cast<unsigned>(_mm_movemask_epi8(CompareBlocks(own, other)));
    if ((~same & firstBlock) != 0) {
        return false;
    }
    if (keySize <= BLOCK) {
        return true;
    }
    std::size_t position = BLOCK;
    for (; keySize - position > 2 * BLOCK; position += 2 * BLOCK) {
        if (!SameBlocks(own, other, position, position + BLOCK)) {
            return false;
        }
    }
    // The last blocks may begin within those before.
    const std::size_t last = keySize - BLOCK;
    return SameBlocks(own, other, std::min(position, last), last);
}

} // namespace ZrXmlLib16

#endif
