// SPDX-License-Identifier: MIT
#ifndef JSON_JSONNAMES_H
#define JSON_JSONNAMES_H

#include "ZrXmlLib16/JsonRoundTrip.h"
#include "core/TextEquality.h"

#include <deque>
#include <map>
#include <string>
#include <string_view>

namespace ZrXmlLib16 {

/// What the name of a JSON member means in XML.
struct JsonName {
    enum class Kind : unsigned char {
        Element,
        Attribute,
        Text,   // of the element around it
        Ignored // a declaration, where namespaces are dropped
    };

    JsonName(std::wstring_view memberName, JsonRoundTrip mode);

    std::wstring member;
    std::wstring xmlName; // empty for text
    Kind kind;
    bool hasInstancePrefix; // the prefix "xsi"
};

/// The distinct member names of one document. A name lives as long as the table and never moves.
///
/// Documents repeat themselves: the names that followed the last times are tried before the search.
class JsonNames {
public:
    explicit JsonNames(JsonRoundTrip mode);
    JsonNames(const JsonNames&) = delete;
    JsonNames& operator=(const JsonNames&) = delete;

    const JsonName& Get(std::wstring_view member)
    {
        Entry* const follower = m_previous ? m_previous->follower : nullptr;
        if (!follower || !AreEqual(follower->name.member, member)) {
            return Search(member);
        }
        m_previous = follower;
        return follower->name;
    }
    /// Whether a name so far has the prefix "xsi".
    bool UsesInstancePrefix() const { return m_usesInstancePrefix; }

private:
    struct Entry {
        Entry(std::wstring_view member, JsonRoundTrip mode)
            : name(member, mode)
        {
        }

        const JsonName name;
        Entry* follower = nullptr; // the one that came after this one the last time
        Entry* earlierFollower = nullptr;
    };

    const JsonName& Search(std::wstring_view member);
    Entry& Find(std::wstring_view member);

    const JsonRoundTrip m_mode;
    std::deque<Entry> m_entries;
    std::map<std::wstring_view, Entry*> m_index;
    Entry* m_previous = nullptr;
    bool m_usesInstancePrefix = false;
};

} // namespace ZrXmlLib16

#endif
