// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_XMLELEMENTGROUPTYPE_H
#define ZRXMLLIB16DATA_XMLELEMENTGROUPTYPE_H

namespace ZrXmlLib16Data {

/// How the child elements of a class are grouped.
enum XmlElementGroupType : int {
    XmlElementGroup_Sequence = 0, ///< in the order of the records
    XmlElementGroup_Choice = 1,   ///< one of the records
    XmlElementGroup_All = 2       ///< each record at most once, in any order
};

} // namespace ZrXmlLib16Data

#endif
