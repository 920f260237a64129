// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_SERIALIZATIONCONTEXT_H
#define ZRXMLLIB16_SERIALIZATIONCONTEXT_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/InputLimits.h"
#include "ZrXmlLib16/NamespaceAliasMap.h"
#include "ZrXmlLib16/SchemaType.h"
#include "ZrXmlLib16/SmartPtr.h"

#include <list>
#include <memory>
#include <string>

namespace ZrXmlLib16 {

class CAttributeCol;
class CFastInfosetContext;
class CJsonContext;

/// The settings of a read or write call. Passed as a constant reference to every entry point of CXmlObjectBase.
///
/// Copies share the additional root attributes and the settings of JSON and Fast Infoset that were asked for already;
/// everything else is copied. A context belongs to one thread at a time, or is fully set up before it is shared:
/// GetFIContext, GetJsonContext and GetAdditionalRootAttributes create what they return on first use, and reading JSON
/// in a mode other than JsonRoundTrip_Full changes GetIgnoreNamespaces for the time of the call.
class ZRXML_API CSerializationContext {
public:
    /// Settings of the calls that name none. Exists from load to unload.
    static CSerializationContext m_defaultContext;

    CSerializationContext();
    CSerializationContext(const CSerializationContext& other);
    ~CSerializationContext();
    CSerializationContext& operator=(const CSerializationContext& other);

    /// The settings of Fast Infoset: the same object on every call, created on the first one.
    CFastInfosetContext& GetFIContext() const;
    /// The settings of JSON: the same object on every call, created on the first one.
    CJsonContext& GetJsonContext() const;
    /// Namespace that unprefixed element names of a written document are in; empty for none, which is the default.
    std::wstring GetDefaultNamespaceURI() const;
    void SetDefaultNamespaceURI(const wchar_t* uri);
    /// Whether xsi:type is written where a class allows it and its name differs from the element name. Default true.
    bool GetWriteTypeAttribute() const;
    void SetWriteTypeAttribute(bool value);
    /// Prefixes to declare on the root element.
    CNamespaceAliasMap& GetNamespaceAliases();
    const CNamespaceAliasMap& GetNamespaceAliases() const;
    /// Attributes to write on the root element: the same collection on every call, created empty on the first one.
    CSmartPtr<CAttributeCol> GetAdditionalRootAttributes() const;
    /// Complete processing instructions, delimiters included, to write before the root element.
    std::list<std::wstring>& GetProcessingInstructions();
    const std::list<std::wstring>& GetProcessingInstructions() const;
    /// Text to write behind the attributes of the root element; empty for none.
    std::wstring GetInLineSchema() const;
    void SetInLineSchema(const wchar_t* schema);
    /// Whether collections may hold fewer or more items than their occurrence counts allow. Default false.
    bool GetIgnoreInvalidCollectionCounts() const;
    void SetIgnoreInvalidCollectionCounts(bool value);
    /// Whether a choice may be empty. Default false.
    bool GetIgnoreMissingChoice() const;
    void SetIgnoreMissingChoice(bool value);
    /// Whether missing mandatory elements are accepted on reading. Default false.
    /// @throws CZrInvalidStateException when switched on while unknown elements are ignored.
    bool GetIgnoreMissingMandatoryElements() const;
    void SetIgnoreMissingMandatoryElements(bool value);
    /// Whether elements that no record claims are skipped on reading. Default false.
    /// @throws CZrInvalidStateException when switched on while missing mandatory elements are ignored.
    bool GetIgnoreUnknownElements() const;
    void SetIgnoreUnknownElements(bool value);
    /// Whether attributes that no record claims are dropped on reading. Default false.
    bool GetIgnoreUnknownAttributes() const;
    void SetIgnoreUnknownAttributes(bool value);
    /// Whether names are compared without their namespaces on reading. Default false.
    bool GetIgnoreNamespaces() const;
    void SetIgnoreNamespaces(bool value);
    /// Default SchemaType_XSD.
    SchemaType GetSchemaType() const;
    void SetSchemaType(SchemaType value);
    /// Whether an optional attribute that equals its default is left out on writing. Default false.
    bool GetNoOptionalAttributeDefaultOutput() const;
    void SetNoOptionalAttributeDefaultOutput(bool value);
    /// Whether element values that equal their default are written. Default false.
    bool GetWriteDefaultElementValues() const;
    void SetWriteDefaultElementValues(bool value);
    /// Whether CDATA sections lose their delimiters on reading. Default true.
    bool GetStripCDATA() const;
    void SetStripCDATA(bool value);
    /// Written once per level when a document is formatted: tabs and spaces only. Default one tab.
    std::wstring GetIndentChars() const;
    /// @param text null is empty.
    /// @throws CZrInvalidParamException for any other character; the old value stays.
    void SetIndentChars(const wchar_t* text);
    /// Nested elements that the walks over objects accept, which bounds the machine stack they use. Default 1024, about
    /// 4 KiB each.
    int GetMaxDepth() const;
    /// @throws CZrInvalidParamException for a value below 1.
    void SetMaxDepth(int levels);
    /// How much a document that is read may grow to.
    const CInputLimits& GetInputLimits() const;
    void SetInputLimits(const CInputLimits& limits);

private:
    friend class CFormatSettings;
    friend class CXmlGeneratedClass;

    /// What was asked for before, else null. These create nothing.
    const CAttributeCol* FindAdditionalRootAttributes() const;
    const CFastInfosetContext* FindFIContext() const;
    const CJsonContext* FindJsonContext() const;

    mutable std::shared_ptr<CFastInfosetContext> m_fastInfosetContext;
    mutable std::shared_ptr<CJsonContext> m_jsonContext;
    std::wstring m_defaultNamespaceUri;
    bool m_writeTypeAttribute;
    CNamespaceAliasMap m_namespaceAliases;
    mutable CSmartPtr<CAttributeCol> m_additionalRootAttributes;
    std::list<std::wstring> m_processingInstructions;
    std::wstring m_inLineSchema;
    bool m_ignoreInvalidCollectionCounts;
    bool m_ignoreMissingChoice;
    bool m_ignoreMissingMandatoryElements;
    bool m_ignoreUnknownElements;
    bool m_ignoreUnknownAttributes;
    mutable bool m_ignoreNamespaces; // see CFormatSettings::IgnoringNamespaces
    SchemaType m_schemaType;
    bool m_noOptionalAttributeDefaultOutput;
    bool m_writeDefaultElementValues;
    bool m_stripCDATA;
    std::wstring m_indentChars;
    int m_maxDepth;
    CInputLimits m_inputLimits;
};

} // namespace ZrXmlLib16

#endif
