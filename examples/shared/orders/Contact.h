// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_CONTACT_H
#define EXAMPLES_SHARED_ORDERS_CONTACT_H

#include "ZrXmlLib16/stringCol.h"
#include "shared/orders/OrderObject.h"

namespace Orders {

/// How the buyer can be reached: a choice of two repeated elements, one of which there must be. Adding to one of the
/// collections clears the other.
class CContact : public COrderObject {
public:
    explicit CContact(const wchar_t* elementName = L"contact");

    /// One to three of them.
    ZrXmlLib16::CstringCol& GetPhone();
    /// One to three of them.
    ZrXmlLib16::CstringCol& GetEmail();

    /// Hears of new items.
    void OnEvent(ZrXmlLib16::CXmlObjectBase* sender, MsgType type, void* data) override;

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override;

private:
    enum Property { Property_Phone, Property_Email };
    struct Tables;
    static Tables& GetTables();

    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlCollectionBase> m_phone;
    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlCollectionBase> m_email;
};

} // namespace Orders

#endif
