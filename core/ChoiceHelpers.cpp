// SPDX-License-Identifier: MIT
// What the setters, readers and event handlers of a generated choice class call to keep at most one alternative set.
#include "ZrXmlLib16/XmlCollectionBase.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "ZrXmlLib16Data/ElementInfo.h"
#include "core/ChoiceCollections.h"

namespace ZrXmlLib16 {

using ZrXmlLib16Data::CElementInfo;

namespace {

/// Marks the object as busy with unsetting alternatives, for the length of a scope.
class CUnsettingScope {
public:
    explicit CUnsettingScope(bool& isUnsetting)
        : m_isUnsetting(isUnsetting)
    {
        m_isUnsetting = true;
    }
    ~CUnsettingScope() { m_isUnsetting = false; }
    CUnsettingScope(const CUnsettingScope&) = delete;
    CUnsettingScope& operator=(const CUnsettingScope&) = delete;

private:
    bool& m_isUnsetting;
};

} // namespace

void CXmlGeneratedClass::UnsetAlternative(const CElementInfo& record)
{
    ZrVariant value;
    if (record.IsCollection()) {
        AccessProperty(record.GetPropertyId(), true, value);
        if (CXmlCollectionBase* collection = value.BorrowXmlCollection()) {
            collection->Clear();
        }
    } else {
        AccessProperty(record.GetPropertyId(), false, value);
    }
}

// Unsetting comes back here: through the setters that it runs and through the events of the collections it clears.
void CXmlGeneratedClass::UnsetAlternatives(int propertyId, bool isProperty)
{
    if (m_isUnsetting) {
        return;
    }
    const CUnsettingScope scope(m_isUnsetting);
    for (CElementInfo** record = GetClassElementInfo(); record && *record; ++record) {
        if (((*record)->GetPropertyId() == propertyId) == isProperty) {
            UnsetAlternative(**record);
        }
    }
}

void CXmlGeneratedClass::Choice_SelectElement(int propertyId)
{
    UnsetAlternatives(propertyId, false);
}

void CXmlGeneratedClass::Choice_SetElementValid(int propertyId, bool valid)
{
    UnsetAlternatives(propertyId, !valid);
}

void CXmlGeneratedClass::Choice_CollectionChanged(const CXmlCollectionBase* collection, int propertyId)
{
    if (collection && collection->GetCount() > 0) {
        Choice_SelectElement(propertyId);
    }
}

void CXmlGeneratedClass::Choice_Read_Collection(CSmartPtr<CXmlCollectionBase>& collection, int propertyId)
{
    if (!m_choiceCollections) {
        m_choiceCollections = std::make_unique<CChoiceCollections>(*this);
    }
    m_choiceCollections->ListenTo(collection, propertyId);
}

} // namespace ZrXmlLib16
