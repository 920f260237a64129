// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_TRKSEGTYPE_H
#define EXAMPLES_GPX_CLASSES_TRKSEGTYPE_H

#include "classes/ExtensionsType.h"
#include "classes/GpxCollection.h"
#include "classes/GpxObject.h"
#include "classes/WptType.h"

namespace Gpx {

/// Track points recorded without interruption (trksegType).
class CTrksegType : public CGpxObject {
public:
    explicit CTrksegType(const wchar_t* elementName = L"trkseg");

    /// The points in order.
    CGpxCollection<CWptType>& GetTrkpt() const { return *m_trkpt; }
    /// What others add; may be null.
    CExtensionsType* GetExtensions() const { return m_extensions; }
    void SetExtensions(CExtensionsType* value);

    int GetPropertyCount() const override { return Property_Count; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_Trkpt, Property_Extensions, Property_Count };
    struct Tables;
    static Tables& GetTables();

    ZrXmlLib16::CSmartPtr<CGpxCollection<CWptType>> m_trkpt;
    ZrXmlLib16::CSmartPtr<CExtensionsType> m_extensions;
};

} // namespace Gpx

#endif
