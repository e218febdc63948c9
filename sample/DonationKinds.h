#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "platform/ado/Connection.h"

namespace velmar::sample {

struct DonationType {
  std::string_view name;
  bool priority;  ///< TipoA
  bool declared;  ///< Modelo182
  bool deleted;
  bool once;  ///< given at one time, not subscribed to
};

struct PaymentPeriod {
  std::string_view name;
  int months;  ///< 0: paid once
};

struct PaymentMethod {
  std::string_view name;
  bool collected;  ///< by the bank, from the collaborator's account
  bool deleted;
};

inline constexpr std::size_t kDonationTypeCount = 11;
inline constexpr std::size_t kPeriodCount = 6;
inline constexpr std::size_t kMethodCount = 6;

/// The rows of TipoDonativos, TipoPeriodos and TipoPagos by their keys, the first at place 0.
const std::array<DonationType, kDonationTypeCount>& DonationTypes();
const std::array<PaymentPeriod, kPeriodCount>& PaymentPeriods();
const std::array<PaymentMethod, kMethodCount>& PaymentMethods();

/// Fills the three tables.
void WriteDonationKinds(ADODB::Connection& main);

}  // namespace velmar::sample
