#pragma once

#include <array>
#include <cstddef>

#include "platform/ado/Connection.h"
#include "sample/BankDirectory.h"
#include "sample/Random.h"

namespace velmar::sample {

inline constexpr std::size_t kIssuerCount = 4;

/// The parts of the charity that issue receipts, the presenters that take their remittances to the bank, and
/// the issuers' accounts. An issuer's accounts are with its presenter's bank.
class Issuers {
 public:
  /// Fills Presentadores, Emisores and Emisores_Cuentas.
  Issuers(ADODB::Connection& main, BankDirectory& banks, Random& random);

  /// The issuer (from 0) that collects from a collaborator.
  static std::size_t IssuerOf(long collaborator);

  /// The IDEmisor_Cuenta that a remittance of the issuer goes to; months change between its two accounts.
  static long AccountFor(std::size_t issuer, int month);
};

}  // namespace velmar::sample
