// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLWRITER_H
#define ZRXMLLIB16_XMLWRITER_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ItemType.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ZrXmlLib16Data {

class CRecordAccess;

}

namespace ZrXmlLib16 {

class CNillableMemory;

/// Receives a document as a sequence of events and writes it in some format.
///
/// Order of calls: Open; SetDefaultNamespace and AddNamespace for the root; one element tree (start, attributes, then
/// text or children, end); Close. This class keeps what every format needs: the open elements, the scopes of namespace
/// prefixes and the invention of prefixes. The destructor never calls Close. A writer belongs to one thread at a time.
class ZRXML_API CXmlWriter {
public:
    /// The namespace of the prefix "xml".
    static const std::wstring XML_NAMESPACE;
    typedef std::map<std::wstring, std::wstring> NamespaceMap; ///< URI to prefix

    /// Where the current element is inside a collection. Only formats with arrays look at it.
    enum ContextState : int {
        ContextState_None = 0,
        ContextState_CollectionStart = 1,
        ContextState_InArray = 2,
        ContextState_CollectionEnd = 3
    };

    /// An open element. It inherits default namespace and prefixes from its parent until it gets some of its own.
    class ZRXML_API CXmlWriterContext {
    public:
        virtual ~CXmlWriterContext();
        CXmlWriterContext(const CXmlWriterContext&) = delete;
        CXmlWriterContext& operator=(const CXmlWriterContext&) = delete;

        /// The default namespace in scope, empty for none.
        std::wstring GetDefaultNamespace() const;
        /// Ends the inheritance: the parent's prefixes stay in scope.
        void SetDefaultNamespace(const std::wstring& namespaceUri);
        /// The prefixes in scope, which may be an ancestor's.
        NamespaceMap& GetNamespaceMap();
        /// The prefix in scope. Enters an empty prefix for an unknown URI. Null is the empty URI.
        std::wstring GetNamespaceMapValue(const wchar_t* namespaceUri);
        std::wstring GetNamespaceMapValue(const std::wstring& namespaceUri);
        /// Ends the inheritance: the parent's prefixes stay in scope and its default namespace is copied.
        void SetNamespaceMapValue(const std::wstring& namespaceUri, const std::wstring& prefix);
        /// The prefix in scope, null when there is none or an empty one. Valid until the prefixes change.
        const std::wstring* FindPrefix(const std::wstring& namespaceUri) const;

    private:
        friend class CXmlWriter;
        friend class CXmlTextWriter;
        friend class CJsonTextWriter;
        friend class CFastInfosetWriter;

        CXmlWriterContext();
        void BeginRoot(unsigned long depth, const std::wstring& defaultNamespace, const NamespaceMap& namespaceMap);
        void BeginChild(CXmlWriterContext& parent);
        void BeginScope();
        void CompleteMap();
        const NamespaceMap::value_type* FindEntry(const std::wstring& namespaceUri) const;
        void EnterPrefix(const std::wstring& namespaceUri, const std::wstring& prefix);
        std::wstring InventPrefix();
        void CollectPrefixNumbers();
        /// The scope around this one; null when there is none or this one repeats what it holds.
        CXmlWriterContext* GetOuterScope() const { return m_isComplete ? nullptr : m_parent->m_scope; }

        int m_childCount;
        bool m_startTagOpen;
        unsigned long m_depth;
        std::size_t m_nameStart;     // where the writer of XML text keeps the name
        CXmlWriterContext* m_parent; // null for the root
        ContextState m_state;
        std::wstring m_defaultNamespace; // of this scope
        NamespaceMap m_namespaceMap;     // of this scope
        bool m_isComplete;               // whether the map repeats the prefixes of the outer scopes
        bool m_knowsPrefixNumbers;
        std::vector<bool> m_takenPrefixNumbers; // of this scope and the outer ones, when known
        std::size_t m_firstFreePrefixNumber;    // none below it is free
        bool m_inherits;
        CXmlWriterContext* m_scope;                          // the nearest context that does not inherit
        mutable const NamespaceMap::value_type* m_lastFound; // of this scope; saves most searches
    };

    virtual ~CXmlWriter();
    /// Begins a document.
    virtual void Open();
    /// Ends the document. @throws CZrException while an element is open.
    virtual void Close();
    /// For the root before it starts, for the current element afterwards. Writes nothing by itself.
    virtual void SetDefaultNamespace(const std::wstring& namespaceUri);
    /// For the root before it starts, for the current element afterwards. Only the root's prefixes get declared; a
    /// prefix given to an open element has to be declared by the caller. Two URIs with the same prefix make the
    /// document invalid.
    virtual void AddNamespace(const std::wstring& prefix, const std::wstring& namespaceUri);
    /// Writes a comment. @param text without its delimiters
    virtual void WriteComment(const std::wstring& text) = 0;
    /// Writes a processing instruction. @param text the whole processing instruction, delimiters included.
    virtual void WritePI(const std::wstring& text) = 0;
    /// Writes the text of CSerializationContext::GetInLineSchema().
    virtual void WriteInlineSchema(const std::wstring& text) = 0;
    /// Opens an element. @param name local name @param namespaceUri empty for none
    virtual void WriteStartElement(const std::wstring& name, const std::wstring& namespaceUri) = 0;
    /// Writes text of the current element. @param type item type of the value, which is text already
    /// @param isDefault whether the value equals the default that the schema gives.
    virtual void WriteString(const std::wstring& value, ItemType type, bool isDefault) = 0;
    /// Closes the current element.
    virtual void WriteEndElement() = 0;
    /// Writes an attribute of the current element, which has no content yet. @param type item type of the value, which
    /// is text already
    virtual void WriteAttributeString(
        const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& value, ItemType type) = 0;
    /// Writes xsi:type with the qualified name of a type.
    virtual void WriteAttributeType(const std::wstring& typeName, const std::wstring& typeNamespace, ItemType type) = 0;
    /// Writes xsi:nil="true".
    virtual void WriteAttributeNil() = 0;

    /// @param className name of the derived class; not kept.
    explicit CXmlWriter(const wchar_t* className);
    CXmlWriter(const CXmlWriter&) = delete;
    CXmlWriter& operator=(const CXmlWriter&) = delete;

    /// Nothing happens when no element is open.
    void SetContextState(ContextState state);
    /// The first of AA, AB ... AZ, BA ... that is not a prefix of the map.
    std::wstring GetUniquePrefix(const NamespaceMap& map) const;
    /// Two characters, 'A' + number / 26 and 'A' + number % 26.
    static std::wstring NsIntToString(int number);

protected:
    /// Opens an element inside the current one, or the root with its own copy of the writer's default namespace and
    /// prefixes.
    CXmlWriterContext& OpenContext(unsigned long rootDepth);
    /// The parent becomes the current element. There must be an open one.
    void CloseContext() noexcept;
    /// Null when no element is open.
    CXmlWriterContext* GetCurrentContext() const { return m_currentContext; }
    /// Whether a name of that namespace is written with a prefix in the current element.
    bool IsPrefixed(const std::wstring& namespaceUri) const;
    /// The prefix in scope of the current element; invents one when there is none. Valid until the prefixes change.
    const std::wstring& ObtainPrefix(const std::wstring& namespaceUri, bool& isNew);
    /// What SetDefaultNamespace set before the root.
    const std::wstring& GetRootDefaultNamespace() const { return m_defaultNamespace; }
    /// What AddNamespace added before the root.
    const NamespaceMap& GetRootNamespaceMap() const { return m_namespaceMap; }

private:
    friend class ZrXmlLib16Data::CRecordAccess;
    friend class CXmlObjectBase;
    friend class JsonTapeWriter;

    /// Writes an element that is nothing but text, if that takes less than start, text and end; else nothing.
    /// @return whether it was written.
    virtual bool WriteTextElement(const std::wstring& name, const std::wstring& namespaceUri, const std::wstring& text,
        ItemType type, bool isDefault);

    std::wstring m_defaultNamespace;
    CXmlWriterContext* m_currentContext;
    NamespaceMap m_namespaceMap;
    std::vector<std::unique_ptr<CXmlWriterContext>> m_contexts; // by nesting; closed ones are kept for reuse
    std::size_t m_openContexts;
    std::wstring m_scratch;     // for the values that records format
    std::wstring m_nameScratch; // for the names of objects
    std::wstring m_namespaceScratch;
    std::unique_ptr<CNillableMemory> m_nillables;
    bool m_joinsCalls; // no class overrides the single calls, so WriteTextElement may stand for them
};

} // namespace ZrXmlLib16

#endif
