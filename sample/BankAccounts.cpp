#include "sample/BankAccounts.h"

namespace velmar::sample {
namespace {

constexpr std::array<Bank, kBankCount> kBanks = {{
    {"2100", "CaixaBank"},
    {"0049", "Banco Santander"},
    {"0182", "Banco Bilbao Vizcaya Argentaria"},
    {"0081", "Banco de Sabadell"},
    {"0128", "Bankinter"},
    {"2103", "Unicaja Banco"},
    {"2095", "Kutxabank"},
    {"2085", "Ibercaja Banco"},
    {"2080", "Abanca Corporación Bancaria"},
    {"3058", "Cajamar Caja Rural"},
    {"3025", "Caja de Ingenieros"},
    {"1491", "Triodos Bank"},
}};

/// Both control digits weigh ten digits by the powers of two modulo 11.
char Control(std::string_view tenDigits) {
  constexpr std::array<int, 10> kWeights = {1, 2, 4, 8, 5, 10, 9, 7, 3, 6};
  int sum = 0;
  for (std::size_t i = 0; i < kWeights.size(); ++i) sum += (tenDigits[i] - '0') * kWeights[i];
  const int control = 11 - sum % 11;
  if (control == 11) return '0';
  return control == 10 ? '1' : static_cast<char>('0' + control);
}

}  // namespace

const std::array<Bank, kBankCount>& Banks() {
  return kBanks;
}

std::string AccountControl(std::string_view bank, std::string_view branch, std::string_view number) {
  const std::string office = "00" + std::string(bank) + std::string(branch);
  return {Control(office), Control(number)};
}

}  // namespace velmar::sample
