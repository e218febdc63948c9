#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/Connection.h"
#include "sample/Random.h"

namespace velmar::sample {

/// The banks and branches of the sample, and the one who opens accounts with them.
class BankDirectory {
 public:
  /// Fills Bancos and Sucursales and keeps Cuentas open for new accounts, so the directory lives inside the
  /// transaction of the generator.
  explicit BankDirectory(ADODB::Connection& main);

  /// A branch of the bank (from 0).
  std::size_t BranchOfBank(std::size_t bank) const;

  /// A branch in the province (from 0).
  static std::size_t BranchOfProvince(std::size_t province, Random& random);

  /// Writes a new account with right control digits, its number in stored form; gives its IDCuenta.
  long OpenAccount(std::size_t branch, bool deleted, Random& random);

 private:
  struct Branch {
    std::size_t bank;
    std::string code;
  };

  std::vector<Branch> branches_;
  ADODB::BulkInsert accounts_;
  long accountCount_ = 0;
};

}  // namespace velmar::sample
