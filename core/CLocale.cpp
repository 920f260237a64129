// SPDX-License-Identifier: MIT
#include "core/CLocale.h"

namespace ZrXmlLib16 {

locale_t CLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

} // namespace ZrXmlLib16
