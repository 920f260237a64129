// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_METADATATYPE_H
#define EXAMPLES_GPX_CLASSES_METADATATYPE_H

#include "ZrXmlLib16/DateTime.h"
#include "classes/BoundsType.h"
#include "classes/CopyrightType.h"
#include "classes/ExtensionsType.h"
#include "classes/GpxCollection.h"
#include "classes/GpxObject.h"
#include "classes/LinkType.h"
#include "classes/PersonType.h"

#include <optional>
#include <string>
#include <utility>

namespace Gpx {

/// About a document: its author, subject and extent (metadataType).
class CMetadataType : public CGpxObject {
public:
    explicit CMetadataType(const wchar_t* elementName = L"metadata");

    /// Name of the document.
    const std::optional<std::wstring>& GetName() const { return m_name; }
    void SetName(std::optional<std::wstring> value) { m_name = std::move(value); }
    /// Description for people.
    const std::optional<std::wstring>& GetDesc() const { return m_desc; }
    void SetDesc(std::optional<std::wstring> value) { m_desc = std::move(value); }
    /// May be null.
    CPersonType* GetAuthor() const { return m_author; }
    void SetAuthor(CPersonType* value);
    /// May be null.
    CCopyrightType* GetCopyright() const { return m_copyright; }
    void SetCopyright(CCopyrightType* value);
    /// More about it, elsewhere.
    CGpxCollection<CLinkType>& GetLink() const { return *m_link; }
    /// When the document was made.
    const std::optional<ZrXmlLib16::CDateTime>& GetTime() const { return m_time; }
    void SetTime(std::optional<ZrXmlLib16::CDateTime> value) { m_time = std::move(value); }
    /// For searching.
    const std::optional<std::wstring>& GetKeywords() const { return m_keywords; }
    void SetKeywords(std::optional<std::wstring> value) { m_keywords = std::move(value); }
    /// Extent of all points; may be null.
    CBoundsType* GetBounds() const { return m_bounds; }
    void SetBounds(CBoundsType* value);
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
    enum Property {
        Property_Name,
        Property_Desc,
        Property_Author,
        Property_Copyright,
        Property_Link,
        Property_Time,
        Property_Keywords,
        Property_Bounds,
        Property_Extensions,
        Property_Count
    };
    struct Tables;
    static Tables& GetTables();

    std::optional<std::wstring> m_name;
    std::optional<std::wstring> m_desc;
    ZrXmlLib16::CSmartPtr<CPersonType> m_author;
    ZrXmlLib16::CSmartPtr<CCopyrightType> m_copyright;
    ZrXmlLib16::CSmartPtr<CGpxCollection<CLinkType>> m_link;
    std::optional<ZrXmlLib16::CDateTime> m_time;
    std::optional<std::wstring> m_keywords;
    ZrXmlLib16::CSmartPtr<CBoundsType> m_bounds;
    ZrXmlLib16::CSmartPtr<CExtensionsType> m_extensions;
};

} // namespace Gpx

#endif
