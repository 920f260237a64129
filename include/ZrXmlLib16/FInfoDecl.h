// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_FINFODECL_H
#define ZRXMLLIB16_FINFODECL_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// The XML declaration in front of a Fast Infoset document (ITU-T X.891, 12.3): none, or one with encoding='finf' and
/// version ("10", "11" in the name) and standalone ("Yes", "No") as named.
enum FInfoDecl : int {
    FInfoDecl_None = 0,
    FInfoDecl_Enc = 1,
    FInfoDecl_EncYes = 2,
    FInfoDecl_EncNo = 3,
    FInfoDecl_10Enc = 4,
    FInfoDecl_10EncYes = 5,
    FInfoDecl_10EncNo = 6,
    FInfoDecl_11Enc = 7,
    FInfoDecl_11EncYes = 8,
    FInfoDecl_11EncNo = 9
};

/// The declarations, UTF-8, by value of FInfoDecl minus 1.
ZRXML_API extern const char* const FI_DECLARATION_LIST[9];

} // namespace ZrXmlLib16

#endif
