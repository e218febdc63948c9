#include "sample/Issuers.h"

#include <string_view>

#include "platform/ado/BulkInsert.h"
#include "sample/RowWriter.h"
#include "sample/SpanishIds.h"

namespace velmar::sample {
namespace {

struct Presenter {
  std::string_view name;
  std::size_t bank;  ///< from 0
};

struct Issuer {
  std::string_view name;
  std::size_t presenter;  ///< from 0
};

constexpr std::array<Presenter, 2> kPresenters = {{
    {"Fundación Manos Abiertas", 0},
    {"Manos Abiertas Servicios Comunes", 1},
}};

constexpr std::array<Issuer, kIssuerCount> kIssuers = {{
    {"Manos Abiertas Sede Central", 0},
    {"Manos Abiertas Catalunya", 0},
    {"Manos Abiertas Andalucía", 1},
    {"Manos Abiertas Emergencias", 1},
}};

constexpr long kAccountsPerIssuer = 2;

}  // namespace

Issuers::Issuers(ADODB::Connection& main, BankDirectory& banks, Random& random) {
  ADODB::BulkInsert presenters(main, "Presentadores",
                               {"IDPresentador", "CodBanco", "Nombre", "CIF", "Eliminado"});
  for (std::size_t i = 0; i < kPresenters.size(); ++i) {
    WriteRow(presenters, i + 1, kPresenters[i].bank + 1, kPresenters[i].name,
             MakeCif('G', random.Below(10'000'000)), false);
  }

  ADODB::BulkInsert issuers(main, "Emisores", {"IDEmisor", "CodPresentador", "Nombre", "CIF", "Eliminado"});
  ADODB::BulkInsert accounts(main, "Emisores_Cuentas",
                             {"IDEmisor_Cuenta", "CodEmisor", "CodCuenta", "Eliminado"});
  long account = 0;
  for (std::size_t i = 0; i < kIssuers.size(); ++i) {
    WriteRow(issuers, i + 1, kIssuers[i].presenter + 1, kIssuers[i].name,
             MakeCif('G', random.Below(10'000'000)), false);
    const std::size_t branch = banks.BranchOfBank(kPresenters[kIssuers[i].presenter].bank);
    for (long k = 0; k < kAccountsPerIssuer; ++k) {
      WriteRow(accounts, ++account, i + 1, banks.OpenAccount(branch, false, random), false);
    }
  }
}

std::size_t Issuers::IssuerOf(long collaborator) {
  constexpr std::array<std::size_t, 8> kTurns = {0, 0, 1, 0, 2, 0, 3, 1};
  return kTurns[static_cast<std::size_t>(collaborator) % kTurns.size()];
}

long Issuers::AccountFor(std::size_t issuer, int month) {
  return static_cast<long>(issuer) * kAccountsPerIssuer + month % kAccountsPerIssuer + 1;
}

}  // namespace velmar::sample
