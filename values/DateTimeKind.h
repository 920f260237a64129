// SPDX-License-Identifier: MIT
#ifndef VALUES_DATETIMEKIND_H
#define VALUES_DATETIMEKIND_H

#include "ZrXmlLib16/DateTime.h"

namespace ZrXmlLib16 {

/// What sets one kind of date and time value apart: the fields that it has, and how messages speak of it.
struct DateTimeKind {
    const wchar_t* name;
    const wchar_t* form;
    bool hasYear;
    bool hasMonth;
    bool hasDay;
    bool hasTime;

    bool HasDate() const { return hasYear || hasMonth || hasDay; }
};

/// @throws CZrInvalidParamException when the kind is none of the enumeration.
const DateTimeKind& KindOf(CDateTime::DateType kind);

} // namespace ZrXmlLib16

#endif
