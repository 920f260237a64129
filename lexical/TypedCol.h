// SPDX-License-Identifier: MIT
#ifndef LEXICAL_TYPEDCOL_H
#define LEXICAL_TYPEDCOL_H

#include "ZrXmlLib16/XmlTypeCollection.h"
#include "core/CollectionIndex.h"
#include "metadata/RecordAccess.h"

#include <string>
#include <utility>
#include <vector>

namespace ZrXmlLib16 {

/// The operations of a collection of T, written once. The public classes hold the items and forward.
///
/// Traits say what is particular to an item type: `Parse(text, rule)` may use up the text, `Text(value, format,
/// scratch)` returns the lexical form, which may be in the scratch, and `CheckFacets(name, value, facets)` throws.
///
/// Listeners may change the collection, so nothing is taken as known across an announcement.
template <class T, class Traits> class TypedCol {
public:
    using Items = std::vector<T>;

    static int Count(const Items& items) { return static_cast<int>(items.size()); }

    static T Parse(const CXmlTypeCollection& collection, std::wstring& text)
    {
        return static_cast<T>(Traits::Parse(text, collection.m_whitespaceRule));
    }

    /// Announces a new value, then decides on it.
    static void Admit(CXmlTypeCollection& collection, int index, T& value)
    {
        // kept: required behaviour. Listeners hear of a value that is then refused.
        collection.FireOnCollectionAdd(&value);
        const int count = collection.GetCount();
        CheckIndex(index, count, count);
        if (collection.m_hasFacets) {
            Traits::CheckFacets(collection.ElementName().c_str(), value, collection.m_facets);
        }
    }

    static void Insert(CXmlTypeCollection& collection, Items& items, int index, T value)
    {
        CheckIndex(index, Count(items), Count(items));
        const auto added = items.insert(items.begin() + index, std::move(value));
        collection.FireOnCollectionAddComplete(&*added);
        collection.FireOnCollectionChange();
    }

    static void AddAt(CXmlTypeCollection& collection, Items& items, int index, T value)
    {
        Admit(collection, index, value);
        Insert(collection, items, index, std::move(value));
    }

    static void AddText(CXmlTypeCollection& collection, Items& items, std::wstring& text)
    {
        AddAt(collection, items, Count(items), Parse(collection, text));
    }

    static const T& Item(const Items& items, int index)
    {
        CheckIndex(index, Count(items), Count(items) - 1);
        return items[static_cast<std::size_t>(index)];
    }

    static void Remove(CXmlTypeCollection& collection, Items& items, int index)
    {
        CheckIndex(index, Count(items), Count(items) - 1);
        collection.FireOnCollectionRemove(index);
        CheckIndex(index, Count(items), Count(items) - 1);
        items.erase(items.begin() + index);
        collection.FireOnCollectionRemoveComplete(index);
        collection.FireOnCollectionChange();
    }

    static void Clear(CXmlTypeCollection& collection, Items& items)
    {
        if (items.empty()) {
            return;
        }
        collection.FireOnCollectionRemove(-1);
        Items().swap(items);
        collection.FireOnCollectionRemoveComplete(-1);
        collection.FireOnCollectionChange();
    }

    static void Write(const CXmlTypeCollection& collection, const Items& items, CXmlWriter& writer)
    {
        std::wstring& scratch = ZrXmlLib16Data::CRecordAccess::Scratch(writer);
        for (const T& item : items) {
            const std::wstring& text = Traits::Text(item, collection.m_format.c_str(), scratch);
            writer.WriteStartElement(collection.ElementName(), collection.Namespace());
            writer.WriteString(text, collection.m_itemType, false);
            writer.WriteEndElement();
        }
    }
};

} // namespace ZrXmlLib16

#endif
