// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLOBJECTBASE_H
#define ZRXMLLIB16_XMLOBJECTBASE_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/CompressionType.h"
#include "ZrXmlLib16/EOLType.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/FInfoDecl.h"
#include "ZrXmlLib16/IEventSink.h"
#include "ZrXmlLib16/NameText.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlEncoding.h"
#include "ZrXmlLib16/ZRCriticalSection.h"

#include <string>

namespace ZrXmlLib16Data {
class CAttributeInfo;
class CElementInfo;
}

namespace ZrXmlLib16 {

class CElement;
class CTextStream;
class CXmlCollectionBase;
class CXmlElement;
class CXmlWriter;
struct WideText;

/// Whether the file entry points write uncompressed text straight into the file instead of building the whole output
/// first. Process-wide, false at start; set once by the application.
ZRXML_API void AsyncToXmlFile(bool on);

/// Root of every generated object: an element name, an intrusive reference count, and the entry points that turn the
/// object into a document and fill it from one.
///
/// The count starts at 0 and CSmartPtr keeps it, so an object that a CSmartPtr touches must be on the heap: children
/// and collections always are. The object whose entry point is called may be anywhere, because no entry point takes a
/// reference to it. The count may be changed from several threads; everything else belongs to one thread at a time.
///
/// Every entry point first checks the registered generator version and throws CZrException when it is not the
/// library's. All failures are exceptions of the CZrException family. A read that fails leaves the object partly
/// filled.
class ZRXML_API CXmlObjectBase : public IEventSink {
public:
    /// Does nothing; generated classes that listen to their collections override it.
    void OnEvent(CXmlObjectBase* sender, IEventSink::MsgType type, void* data) override;
    /// The object itself; never null.
    virtual CXmlObjectBase* GetBase() = 0;

    /// Writes the object into a file.
    /// @param compression Compression_ZLib is refused: it is for ToXmlStream only.
    virtual void ToXmlFile(const wchar_t* fileName, bool includeHeader = true, bool formatted = true,
        XmlEncoding encoding = Encoding_UTF8, EOLType eol = EOL_LF,
        const CSerializationContext& context = CSerializationContext::m_defaultContext,
        CompressionType compression = Compression_None) const;
    /// Writes the object into a file as a Fast Infoset document (ITU-T X.891), with the context's settings of it.
    /// @param compression as for ToXmlFile.
    virtual void ToFastInfosetFile(const wchar_t* fileName, FInfoDecl declaration = FInfoDecl_None,
        const CSerializationContext& context = CSerializationContext::m_defaultContext,
        CompressionType compression = Compression_None) const;
    /// Writes the object into a file as JSON, in the context's JSON mode. Values and names that hold quotation marks or
    /// backslashes are not escaped: such a document cannot be read again.
    /// @param compression as for ToXmlFile.
    virtual void ToJsonFile(const wchar_t* fileName, bool formatted = true, XmlEncoding encoding = Encoding_UTF8,
        EOLType eol = EOL_LF, const CSerializationContext& context = CSerializationContext::m_defaultContext,
        CompressionType compression = Compression_None) const;
    /// The object as XML text. The XML declaration, when wanted, names no encoding.
    virtual std::wstring ToXml(bool includeHeader = true, bool formatted = true, EOLType eol = EOL_LF,
        const CSerializationContext& context = CSerializationContext::m_defaultContext) const;
    /// The object as JSON text, as ToJsonFile writes it.
    virtual std::wstring ToJson(bool formatted = true, EOLType eol = EOL_LF,
        const CSerializationContext& context = CSerializationContext::m_defaultContext) const;
    /// The object as the bytes of an XML document, compressed when asked for.
    virtual CBinaryData ToXmlStream(bool includeHeader = true, bool formatted = true,
        XmlEncoding encoding = Encoding_UTF8, EOLType eol = EOL_LF,
        const CSerializationContext& context = CSerializationContext::m_defaultContext,
        CompressionType compression = Compression_None) const;
    /// The object as a Fast Infoset document, compressed when asked for.
    virtual CBinaryData ToFastInfosetStream(FInfoDecl declaration = FInfoDecl_None,
        const CSerializationContext& context = CSerializationContext::m_defaultContext,
        CompressionType compression = Compression_None) const;
    /// The object as the bytes of a JSON document, compressed when asked for.
    virtual CBinaryData ToJsonStream(bool formatted = true, XmlEncoding encoding = Encoding_UTF8, EOLType eol = EOL_LF,
        const CSerializationContext& context = CSerializationContext::m_defaultContext,
        CompressionType compression = Compression_None) const;

    /// Fills the object from a file: XML text in UTF-8 or UTF-16 or a Fast Infoset document, gzip or zlib compressed or
    /// not.
    virtual void FromXmlFile(
        const wchar_t* fileName, const CSerializationContext& context = CSerializationContext::m_defaultContext);
    /// Fills the object from a file of JSON in UTF-8, compressed or not. The FromJson operations read the mode of the
    /// context; in a mode other than JsonRoundTrip_Full they change the context's GetIgnoreNamespaces() during the
    /// call.
    /// @throws CZrValidationException with the JSON path for text that is not JSON.
    virtual void FromJsonFile(
        const wchar_t* fileName, const CSerializationContext& context = CSerializationContext::m_defaultContext);
    /// Fills the object from a zero-terminated document in the encoding that the document declares.
    virtual void FromXml(
        const char* text, const CSerializationContext& context = CSerializationContext::m_defaultContext);
    /// Fills the object from wide text. The low 16 bits of each character are taken as one UTF-16 unit.
    virtual void FromXml(
        const wchar_t* text, const CSerializationContext& context = CSerializationContext::m_defaultContext);
    /// Fills the object from zero-terminated JSON text, of which each octet is taken for one character.
    virtual void FromJson(
        const char* text, const CSerializationContext& context = CSerializationContext::m_defaultContext);
    /// Fills the object from JSON text.
    virtual void FromJson(
        const wchar_t* text, const CSerializationContext& context = CSerializationContext::m_defaultContext);
    /// Fills the object from the bytes of an XML or Fast Infoset document, compressed or not; the bytes stay the
    /// caller's.
    virtual void FromXmlStream(const unsigned char* bytes, unsigned long length,
        const CSerializationContext& context = CSerializationContext::m_defaultContext);
    virtual void FromXmlStream(
        const CBinaryData& bytes, const CSerializationContext& context = CSerializationContext::m_defaultContext);
    /// Fills the object from the bytes of JSON in UTF-8, compressed or not; the bytes stay the caller's.
    virtual void FromJsonStream(const unsigned char* bytes, unsigned long length,
        const CSerializationContext& context = CSerializationContext::m_defaultContext);
    virtual void FromJsonStream(
        const CBinaryData& bytes, const CSerializationContext& context = CSerializationContext::m_defaultContext);
    /// Fills the object from an element of a document that is already loaded; the tree is not changed.
    virtual void FromXmlElement(
        const CXmlElement* element, const CSerializationContext& context = CSerializationContext::m_defaultContext);
    /// Fills the object from an untyped element, which is written as text with the default context and read with the
    /// given one.
    virtual void FromXmlElement(
        const CElement* element, const CSerializationContext& context = CSerializationContext::m_defaultContext);

    virtual ~CXmlObjectBase();
    /// Namespace URI under which the object is written as the root of a document.
    virtual std::wstring GetNamespace() const = 0;
    /// Target namespace of the schema that the class comes from.
    virtual std::wstring GetTargetNamespace() const = 0;

    /// @return the new count.
    long AddRef();
    /// Destroys the object when the count becomes 0.
    /// @return the new count.
    long Release();
    /// Local name under which the object is written; null is empty.
    void SetElementName(const wchar_t* name);
    std::wstring GetElementName() const;
    /// @throws CZrInvalidParamException for a null value.
    static void Throw_IfPropertyIsNull(CXmlObjectBase* value, const wchar_t* propertyName);
    /// @throws CZrInvalidParamException when the value is not null and has another element name.
    static void Throw_IfElementNameDiffers(CXmlObjectBase* value, const wchar_t* requiredName);

protected:
    /// Writes the attributes of the object onto the element that the writer has open; the base writes none.
    virtual void AttributesToXml_Int(CXmlWriter* writer, const CSerializationContext& context) const;
    /// Writes the object.
    /// @param namespaceUri not null; empty for no namespace.
    virtual void ToXml_Int(CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri,
        const CSerializationContext& context, bool isOptional) const = 0;
    /// Fills the object.
    /// @param firstChild first child element to consider, may be null.
    /// @return the first child element that was not consumed, or null.
    virtual CXmlElement* FromXml_Int(
        CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context, bool isOptional) = 0;

    /// @{
    /// Call the virtual operation of the same name on another object.
    static void ToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri,
        const CSerializationContext& context, bool isOptional);
    static void AttributesToXml_Int(
        const CXmlObjectBase* object, CXmlWriter* writer, const CSerializationContext& context);
    static CXmlElement* FromXml_Int(
        CXmlObjectBase* object, CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context);
    /// @}

    /// Whether the element has the name, under the schema type and namespace settings of the context.
    static bool DoesElementNameMatch(const CSerializationContext& context, const CXmlElement* element,
        const std::wstring& name, const std::wstring& namespaceUri);

    /// @{
    /// Tell one listener of one change. An index of -1 stands for all items.
    static void FireOnCollectionChangeEvent(IEventSink* listener, CXmlCollectionBase* collection);
    static void FireOnCollectionAddEvent(IEventSink* listener, CXmlCollectionBase* collection, void* item);
    static void FireOnCollectionAddCompleteEvent(IEventSink* listener, CXmlCollectionBase* collection, void* item);
    static void FireOnCollectionRemoveEvent(IEventSink* listener, CXmlCollectionBase* collection, int index);
    static void FireOnCollectionRemoveCompleteEvent(IEventSink* listener, CXmlCollectionBase* collection, int index);
    /// @}

    /// Fills the object from what CXmlDocument::LoadJson returned.
    void FromJson_Int(const CBinaryData& bytes, const CSerializationContext& context);

    /// No name, no references.
    CXmlObjectBase();
    /// Copies the element name only; the copy counts no references.
    CXmlObjectBase(const CXmlObjectBase& other);
    CXmlObjectBase& operator=(const CXmlObjectBase& other);
    /// The element name, borrowed. The first call may make it.
    const std::wstring& ElementName() const;
    /// Whether that is the element name; never makes it.
    bool HasElementName(const std::wstring& name) const { return m_elementName.Is(name); }
    bool HasElementName(const NameText& name) const { return m_elementName.Is(name); }

    friend class ZrXmlLib16Data::CAttributeInfo;
    friend class ZrXmlLib16Data::CElementInfo;

private:
    friend class CXmlGeneratedClass;

    void WriteDocument(CTextStream& stream, bool includeHeader, bool formatted, EOLType eol,
        const CSerializationContext& context) const;
    void WriteJson(
        CTextStream& stream, bool formatted, EOLType eol, const CSerializationContext& context, bool isInMemory) const;
    void ReadConverted(const WideText& text, const CSerializationContext& context);
    void ReadElement(const CXmlElement* element, const CSerializationContext& context);

    mutable NameText m_elementName;
    CZRCriticalSection m_lock;
    long m_referenceCount;
};

} // namespace ZrXmlLib16

#endif
