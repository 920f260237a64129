// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ITEMTYPE_H
#define ZRXMLLIB16_ITEMTYPE_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// What a value is: the primitive types 1..26 have a text form, object and collection refer to generated classes.
/// The numbers stand in generated code and never change.
enum ItemType : int {
    ItemType_none = 0,
    ItemType_hexBinary = 1,
    ItemType_base64Binary = 2,
    ItemType_i1 = 3,
    ItemType_i2 = 4,
    ItemType_i4 = 5, ///< `long`, 64 bits wide
    ItemType_i8 = 6,
    ItemType_ui1 = 7,
    ItemType_ui2 = 8,
    ItemType_ui4 = 9, ///< `unsigned long`, 64 bits wide
    ItemType_ui8 = 10,
    ItemType_r4 = 11,
    ItemType_r8 = 12,
    ItemType_duration = 13,
    ItemType_yearMonth = 14, ///< gYearMonth
    ItemType_monthDay = 15,  ///< gMonthDay
    ItemType_year = 16,      ///< gYear, the number alone
    ItemType_month = 17,     ///< gMonth, the number alone
    ItemType_day = 18,       ///< gDay, the number alone
    ItemType_date = 19,
    ItemType_datetime = 20,
    ItemType_time = 21,
    ItemType_char = 22,
    ItemType_string = 23,
    ItemType_boolean = 24,
    ItemType_decimal = 25,
    ItemType_integer = 26, ///< unbounded
    ItemType_object = 27,
    ItemType_collection = 28
};

} // namespace ZrXmlLib16

#endif
