// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_EXTENSIONSTYPE_H
#define EXAMPLES_GPX_CLASSES_EXTENSIONSTYPE_H

#include "ZrXmlLib16/ElementCol.h"
#include "classes/GpxObject.h"

namespace Gpx {

/// What others add to a document, in namespaces of their own (extensionsType).
class CExtensionsType : public CGpxObject {
public:
    explicit CExtensionsType(const wchar_t* elementName = L"extensions");

    /// The elements in order, any number of them. Each is in a namespace, and not in that of GPX.
    ZrXmlLib16::CElementCol& GetAnyElement() const { return *m_anyElement; }

    int GetPropertyCount() const override { return Property_Count; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_AnyElement, Property_Count };
    struct Tables;
    static Tables& GetTables();

    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CElementCol> m_anyElement;
};

} // namespace Gpx

#endif
