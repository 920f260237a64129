// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ELEMENT_H
#define ZRXMLLIB16_ELEMENT_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/XmlObjectBase.h"

#include <memory>
#include <string>

namespace ZrXmlLib16Data {
class CRecordAccess;
}

namespace ZrXmlLib16 {

class CAttributeCol;
class CElementCol;
struct NamespaceRule;

/// An element whose content no schema describes, as a tree of its own: name, namespace, text, attributes and child
/// elements.
///
/// It is what a wildcard (xs:any) captures, and it carries the constraint of that wildcard on its namespace; attributes
/// and children are free. All text of an element is one text, which is written behind the children. Trees may be of any
/// depth: copying, cloning and destroying one does not recurse; reading and writing one is limited by
/// CSerializationContext::GetMaxDepth. Children are shared by reference count like all objects; an element must not be
/// put into its own tree. Null texts are empty. A tree belongs to one thread at a time, also for reading, because the
/// two collections are created when they are first asked for.
class ZRXML_API CElement : public CXmlObjectBase {
public:
    /// Without a name, for any namespace; to be filled by Init, CopyXmlElement or a read.
    CElement();
    /// For any namespace.
    /// @throws CZrInvalidParamException for an empty name, as do the next two.
    explicit CElement(const wchar_t* name);
    /// @param namespaceKeyword "##any", "##other", "##local" or "##targetNamespace"
    /// @throws CZrInvalidParamException for any other text.
    CElement(const wchar_t* name, const wchar_t* namespaceKeyword);
    /// As Init.
    CElement(const wchar_t* name, const wchar_t* namespaceUri, const wchar_t* namespaceSpecification,
        const wchar_t* targetNamespace);
    /// The document that the object writes with the default context. Every namespace is accepted; the target namespace
    /// is the object's.
    /// @param object not null
    /// @param defaultNamespace for writing this element as the root of a document: the namespace of unprefixed names.
    /// No element of the tree may then be without a namespace, because none would be undeclared.
    CElement(CXmlObjectBase* object, const wchar_t* defaultNamespace);
    ~CElement() override;
    CXmlObjectBase* GetBase() override;
    std::wstring GetNamespace() const override;
    std::wstring GetTargetNamespace() const override;
    /// Sets name, namespace and constraint; the content stays. The namespace is not held against the constraint.
    /// @param namespaceSpecification a wildcard keyword, or a list of URIs, "##local" and "##targetNamespace"
    /// @throws CZrInvalidParamException for an empty name, wildcard or target namespace; nothing changes.
    void Init(const wchar_t* name, const wchar_t* namespaceUri, const wchar_t* namespaceSpecification,
        const wchar_t* targetNamespace);
    /// Becomes a copy of an element of a document and of everything below it, whatever the constraint. Namespace
    /// declarations are not copied as attributes; that of a default namespace holds when this element is written as a
    /// root.
    /// @throws CZrInvalidParamException for null.
    void CopyXmlElement(CXmlElement* element);
    /// @throws CZrInvalidNamespaceException when the element's namespace does not fulfil the new constraint; nothing
    /// changes.
    void SetNamespaceRestrictions(const wchar_t* namespaceSpecification, const wchar_t* targetNamespace);
    using CXmlObjectBase::FromXml;
    /// Replaces name, namespace and content. Like every reading entry point:
    /// @throws CZrInvalidNamespaceException when the constraint refuses the root element; nothing changes.
    void FromXml(
        const wchar_t* text, const CSerializationContext& context = CSerializationContext::m_defaultContext) override;
    /// A copy of the whole tree, which shares nothing with this one. Listeners are not copied.
    CSmartPtr<CElement> Clone() const;

    /// The text of the element, without that of its children.
    std::wstring GetText() const;
    /// Replaces the text. @param text null is empty
    void SetText(const wchar_t* text);
    /// @throws CZrInvalidNamespaceException when the namespace does not fulfil the constraint; nothing changes.
    void SetNamespace(const wchar_t* namespaceUri);
    /// The attributes, never null: the same collection on every call.
    CSmartPtr<CAttributeCol> GetAttributes() const;
    /// The child elements, never null: the same collection on every call. It accepts every namespace.
    CSmartPtr<CElementCol> GetElements() const;

protected:
    /// The namespace argument is not used: an untyped element knows its own. A root is preceded by the processing
    /// instructions, the prefixes and the default namespace of the context; a default namespace of the element itself
    /// goes before the context's.
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri, const CSerializationContext& context,
        bool isOptional) const override;
    /// @return the next sibling of the element, or the element itself when its namespace does not fulfil the
    /// constraint.
    CXmlElement* FromXml_Int(
        CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context, bool isOptional) override;

    CElement(const CElement&) = delete;
    CElement& operator=(const CElement&) = delete;

private:
    friend class CElementCol;
    friend class CXmlObjectBase;
    friend class ZrXmlLib16Data::CRecordAccess;

    /// Without a name, under a constraint that nobody has to check.
    explicit CElement(const std::shared_ptr<const NamespaceRule>& rule);
    void SetNamespaceRule(std::shared_ptr<const NamespaceRule> rule);
    std::shared_ptr<const NamespaceRule> ChildRule() const;
    [[noreturn]] void ThrowNamespaceInvalid(const std::wstring& namespaceUri) const;
    CAttributeCol& Attributes() const;
    CElementCol& Elements() const;
    void Clear();
    void TakeAttributes(const CXmlElement& element);
    void TakeNameAndText(const CXmlElement& element);
    void CopyOwnValues(const CElement& element);
    bool HasSameName(const CElement& other) const;

    std::wstring m_text;
    std::wstring m_namespace;
    std::shared_ptr<const NamespaceRule> m_rule;
    mutable CSmartPtr<CAttributeCol> m_attributes; // null until asked for
    mutable CSmartPtr<CElementCol> m_elements;     // null until asked for
    std::wstring m_defaultNamespace;
};

} // namespace ZrXmlLib16

#endif
