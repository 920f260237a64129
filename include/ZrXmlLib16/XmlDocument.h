// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLDOCUMENT_H
#define ZRXMLLIB16_XMLDOCUMENT_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/SchemaType.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ZrXmlLib16 {

class CSerializationContext;
class CXmlElement;
class DocumentStorage;
struct WideText;

/// A document read into a small tree: element names and namespaces, attributes and the text of each element.
///
/// Comments, processing instructions and the document type leave no trace; prefixes are kept in one map for the whole
/// document, where a later declaration of a prefix replaces an earlier one. The document owns its elements; they live
/// until the next load, Cleanup or the destructor. After a failed load the document keeps what was built so far. A
/// document belongs to one thread at a time; two documents share nothing.
class ZRXML_API CXmlDocument {
public:
    /// Reads with the default context.
    CXmlDocument();
    /// @param context not owned; outlives the document.
    /// Reads with the settings of a context.
    explicit CXmlDocument(const CSerializationContext& context);
    /// @param elementEnd called for every element when its end has been read; when it returns true the element is taken
    /// out of the tree and destroyed. The root is kept in any case. Null is none. What the function throws leaves the
    /// load. The function must not load or clean up the document.
    /// Reads with a function that sees, and may drop, each element as soon as it is complete.
    explicit CXmlDocument(bool (*elementEnd)(CXmlElement*));
    CXmlDocument(bool (*elementEnd)(CXmlElement*), const CSerializationContext& context);
    virtual ~CXmlDocument();
    CXmlDocument(const CXmlDocument&) = delete;
    CXmlDocument& operator=(const CXmlDocument&) = delete;

    /// Destroys the tree and the prefixes.
    virtual void Cleanup();
    /// Destroys the tree and reads the schema type from the context.
    void Init();

    /// Reads XML text, which is not needed any more afterwards. Null is empty.
    /// @throws CZrException for empty text, and for text that is not well-formed: description and line.
    void LoadXml(const char* text);
    /// The same for wide text, of which the low 16 bits of every character are taken as UTF-16.
    void LoadXml(const wchar_t* text);
    /// Reads XML text or a Fast Infoset document, compressed (gzip, zlib) or not, which is not needed any more
    /// afterwards.
    void LoadXmlStream(const unsigned char* bytes, unsigned long length);
    /// Reads a file as LoadXmlStream does.
    /// @throws CZrException also when the file cannot be opened, has no length or cannot be read; an empty file cannot
    /// be read.
    void Load(const wchar_t* fileName);

    /// @{
    /// Convert JSON text into a document in UTF-8, for LoadXmlStream, in the JSON mode of the context. Narrow text is
    /// widened octet by octet; the stream and the file are UTF-8, compressed (gzip, zlib) or not. Nothing stays in
    /// this document. Null is empty.
    /// @throws CZrException for empty input, and as Load does.
    /// @throws CZrValidationException for text that is not JSON or no document: message and JSON path.
    CBinaryData LoadJson(const char* text);
    CBinaryData LoadJson(const wchar_t* text);
    CBinaryData LoadJsonStream(const unsigned char* bytes, unsigned long length);
    CBinaryData LoadJsonFile(const wchar_t* fileName);
    /// @}

    /// The root, null when there is none.
    CXmlElement* GetDocumentElement() const;

    /// @{
    /// The operations that build the tree. Elements are opened inside the innermost open one and closed by EndElement.
    /// @throws CZrInvalidStateException when no element is open, except AddDocElement, which replaces the tree.
    CXmlElement* AddDocElement(const std::wstring& namespaceUri, const std::wstring& name);
    CXmlElement* AddChildElement(const std::wstring& namespaceUri, const std::wstring& name);
    void AddElementAttribute(CXmlElement* element, const std::wstring& localName, const std::wstring& value,
        const std::wstring& namespaceUri);
    /// Appends up to the length or the first NUL, carriage returns left out.
    void AppendTextExcludingCR(CXmlElement* element, const wchar_t* text, unsigned long length);
    void AppendTextExcludingCR(CXmlElement* element, const std::wstring& text);
    void EndElement();
    void AddNamespaceDeclaration(const std::wstring& prefix, const std::wstring& uri);
    /// @}

    /// Empty when the prefix is unknown; the empty prefix stands for the default namespace.
    std::wstring LookupNamespaceFromAlias(const std::wstring& prefix) const;
    /// The first prefix, in the order of prefixes, that is bound to the URI; empty when there is none.
    std::wstring LookupAliasFromNamespace(const std::wstring& uri) const;
    /// All prefixes and the URIs they were last bound to; the empty prefix stands for the default namespace, which is
    /// empty where it was undeclared last. Borrowed.
    const std::map<std::wstring, std::wstring>& GetNamespaceDeclarations() const;

    /// The innermost open element, null when none is open.
    CXmlElement* GetCurrentElement() const;
    /// The bytes that are being read, decompressed; null outside of a load.
    const unsigned char* GetInputBuffer() const;
    /// Number of these bytes.
    unsigned long GetInputSize() const;
    /// How names are taken, as the context said at the last Init.
    SchemaType GetSchemaType() const;
    /// The context of the constructor.
    const CSerializationContext& GetSerializationContext() const;

private:
    friend class CXmlObjectBase;
    friend class TreeBuilder;

    struct StorageDeleter {
        void operator()(DocumentStorage* storage) const noexcept;
    };

    void Parse();
    void ParseText();
    WideText ConvertJson(const char* text);
    WideText ConvertJson(const wchar_t* text);
    WideText ConvertJsonStream(const unsigned char* bytes, unsigned long length);
    WideText ConvertJsonFile(const wchar_t* fileName);
    WideText ConvertJsonInput();
    class InputScope;
    void AllocateInput(unsigned long size);
    void CheckInputSize() const;
    void Decompress();
    void ReadFile(const wchar_t* fileName);
    void DestroyTree() noexcept;
    void DestroyInput() noexcept;
    DocumentStorage& GetStorage();
    CXmlElement& RequireOpenElement(CXmlElement* element);

    std::unique_ptr<CXmlElement> m_documentElement;
    std::vector<CXmlElement*> m_elementStack;
    std::map<std::wstring, std::wstring> m_prefixMap;       // prefix -> URI
    mutable std::map<std::wstring, std::wstring> m_aliases; // URI -> first prefix; empty until it is asked for
    std::unique_ptr<unsigned char[]> m_inputBuffer;         // null when the input is the caller's
    const unsigned char* m_input;
    unsigned long m_inputSize;
    unsigned long m_elementCount;    // begun since the last clean-up
    unsigned long m_maximumElements; // as the context said at the root
    unsigned long m_nameCharacters;  // of their names and those of their attributes, as far as these are long
    SchemaType m_schemaType;
    bool (*m_elementEnd)(CXmlElement*);
    const CSerializationContext* m_context;
    std::unique_ptr<DocumentStorage, StorageDeleter> m_storage;
};

} // namespace ZrXmlLib16

#endif
