// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLCOLLECTIONBASE_H
#define ZRXMLLIB16_XMLCOLLECTIONBASE_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/XmlObjectBase.h"

#include <vector>

namespace ZrXmlLib16 {

/// What every collection of a repeated element shares: name and namespace of the items, occurrence counts, and
/// listeners.
///
/// Lives on the heap, held in a CSmartPtr. Listeners are not owned and not counted; they are told in the order of
/// adding, of a snapshot of the list, and one that is removed during the announcement is no longer called.
class ZRXML_API CXmlCollectionBase : public CXmlObjectBase {
public:
    /// @param elementName local name of the items
    /// @param maxOccurs -1 for no maximum
    CXmlCollectionBase(const wchar_t* elementName, const wchar_t* namespaceUri, int minOccurs, int maxOccurs);
    ~CXmlCollectionBase() override;
    CXmlObjectBase* GetBase() override;
    /// Namespace of the items.
    std::wstring GetNamespace() const override;
    std::wstring GetTargetNamespace() const override;
    /// Number of items.
    virtual int GetCount() const = 0;
    /// Removes all items; the base has none. Choices clear the collections of the alternatives that are not selected.
    virtual void Clear();
    /// Appends a listener, also one that is already there: it is then told twice. Null is ignored.
    void AddEventListener(IEventSink* listener);
    /// Removes every occurrence of a listener.
    void RemoveEventListener(IEventSink* listener);
    /// Whether the number of items is within the occurrence counts, or the context ignores them.
    bool IsValidCount(const CSerializationContext& context) const;
    /// @throws CZrValidationException when IsValidCount would answer false.
    void ValidateCount(const CSerializationContext& context) const;
    /// @{
    /// Announce a change to all listeners. An index of -1 stands for all items.
    void FireOnCollectionChange();
    void FireOnCollectionAdd(void* item);
    void FireOnCollectionAddComplete(void* item);
    void FireOnCollectionRemove(int index);
    void FireOnCollectionRemoveComplete(int index);
    /// @}
    /// Smallest number of items that a document may have.
    int GetMinOccurs() const;
    /// -1 for no maximum.
    /// Largest number of items that a document may have.
    int GetMaxOccurs() const;

    /// Copies names and counts; listeners are not copied.
    CXmlCollectionBase(const CXmlCollectionBase& other);
    /// Copies names and counts; listeners stay as they are.
    CXmlCollectionBase& operator=(const CXmlCollectionBase& other);

protected:
    /// The namespace of the items, borrowed.
    const std::wstring& Namespace() const;

private:
    template <class Tell> void TellListeners(Tell tell);
    template <class Tell> [[gnu::noinline]] void TellEach(Tell tell);

    std::wstring m_namespace;
    std::vector<IEventSink*> m_listeners;
    int m_minOccurs;
    int m_maxOccurs;
};

} // namespace ZrXmlLib16

#endif
