// SPDX-License-Identifier: MIT
#ifndef METADATA_RECORDKINDS_H
#define METADATA_RECORDKINDS_H

#include "ZrXmlLib16Data/ElementInfo.h"
#include "core/ErrorPosition.h"
#include "metadata/RecordAccess.h"

namespace ZrXmlLib16Data {

enum class Occurrence { Mandatory, Optional };

/// The arguments of one ElementToXml call.
struct WriteCall {
    const ZrXmlLib16::CSerializationContext& context;
    const ZrXmlLib16::CXmlGeneratedClass* object;
    ZrXmlLib16::CXmlWriter* writer;
};

/// The arguments of one ElementFromXml call.
struct ReadCall {
    const ZrXmlLib16::CSerializationContext& context;
    ZrXmlLib16::CXmlGeneratedClass* object;
    ZrXmlLib16::CXmlElement* parent;
    ZrXmlLib16::CXmlElement** current;
    XmlElementType elementType;
};

/// Records without fields of their own.
struct NoData { };

// Each kind of content says how it is written, how the element that *current stands on is read (false: it is not for
// this record after all), which text reports its absence, and for a content-only child, where the object to read comes
// from.

struct PrimKind {
    typedef NoData Data;
    static const wchar_t* const MISSING;
    static bool Write(const CElementInfo& record, const WriteCall& call);
    /// In line, and what ReadingAt does written out, because compilers leave that a call: most elements are read here.
    [[gnu::always_inline]] static bool Read(CElementInfo& record, const Data&, const ReadCall& call, Occurrence)
    {
        const ZrXmlLib16::CXmlElement& element = **call.current;
        try {
            CRecordAccess::ReadPrim(record, call.context, call.object, call.current);
        } catch (ZrXmlLib16::CZrException& exception) {
            ZrXmlLib16::ErrorPosition::Attach(exception, element);
            throw;
        }
        return true;
    }
};

struct EnumKind {
    typedef NoData Data;
    static const wchar_t* const MISSING;
    static bool Write(const CElementInfo& record, const WriteCall& call);
    static bool Read(CElementInfo& record, const Data& data, const ReadCall& call, Occurrence occurrence);
};

struct ClsKind {
    typedef CClassRecordData Data;
    static const wchar_t* const MISSING;
    static bool Write(const CElementInfo& record, const WriteCall& call);
    static bool Read(CElementInfo& record, const Data& data, const ReadCall& call, Occurrence occurrence);
    static ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> InlineChild(
        const CElementInfo& record, const Data& data, const ReadCall& call);
};

struct AbsClsKind {
    typedef CAbstractClassRecordData Data;
    static const wchar_t* const MISSING;
    static bool Write(const CElementInfo& record, const WriteCall& call);
    static bool Read(CElementInfo& record, const Data& data, const ReadCall& call, Occurrence occurrence);
    static ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> InlineChild(
        const CElementInfo& record, const Data& data, const ReadCall& call);
};

struct UntpdKind {
    typedef NoData Data;
    static bool Write(const CElementInfo& record, const WriteCall& call);
    static bool Read(CElementInfo& record, const Data& data, const ReadCall& call, Occurrence occurrence);
};

/// Whether the record's child has no element of its own.
inline bool IsInline(const NoData&)
{
    return false;
}
inline bool IsInline(const CClassRecordData& data)
{
    return data.childType != XmlElementType_Element;
}
inline bool IsInline(const CAbstractClassRecordData& data)
{
    return data.childType != XmlElementType_Element;
}

} // namespace ZrXmlLib16Data

#endif
