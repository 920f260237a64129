// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_ORDERS_ENUMERATIONS_H
#define EXAMPLES_SHARED_ORDERS_ENUMERATIONS_H

namespace Orders {

enum class OrderStatus : int { Open, Packed, Shipped, Cancelled };
enum class Country : int { AT, CH, DE, FR, GB, US };
enum class Currency : int { EUR, GBP, USD };

/// The lexical forms, in the order of the values.
inline constexpr const wchar_t* ORDER_STATUS_TEXTS[] = {L"open", L"packed", L"shipped", L"cancelled"};
inline constexpr const wchar_t* COUNTRY_TEXTS[] = {L"AT", L"CH", L"DE", L"FR", L"GB", L"US"};
inline constexpr const wchar_t* CURRENCY_TEXTS[] = {L"EUR", L"GBP", L"USD"};

} // namespace Orders

#endif
