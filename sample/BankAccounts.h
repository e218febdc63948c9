#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace velmar::sample {

struct Bank {
  std::string_view number;  ///< four digits, as the bank register gives them
  std::string_view name;
};

inline constexpr std::size_t kBankCount = 12;

/// The banks of the sample, by their place in the table Bancos.
const std::array<Bank, kBankCount>& Banks();

/// The two control digits of a Spanish account (Código Cuenta Cliente, Consejo Superior Bancario): the first
/// guards bank and branch (four digits each), the second the account number of ten digits.
std::string AccountControl(std::string_view bank, std::string_view branch, std::string_view number);

}  // namespace velmar::sample
