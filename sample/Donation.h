#pragma once

#include <optional>

namespace velmar::sample {

/// One donation or subscription as the generator knows it. Months are counted from the year 0.
struct Donation {
  long id = 0;
  long type = 0;                ///< IDTipoDonativo
  long period = 0;              ///< IDTipoPeriodo
  int everyMonths = 0;          ///< 0: paid once
  long payment = 0;             ///< IDTipoPago
  std::optional<long> account;  ///< IDCuenta, if the bank collects it
  long cents = 0;
  int firstMonth = 0;
  int lastMonth = 0;
  bool deleted = false;

  bool IsDueIn(int month) const {
    if (month < firstMonth || month > lastMonth) return false;
    return everyMonths == 0 ? month == firstMonth : (month - firstMonth) % everyMonths == 0;
  }
};

}  // namespace velmar::sample
