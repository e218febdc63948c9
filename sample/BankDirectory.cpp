#include "sample/BankDirectory.h"

#include <algorithm>

#include "sample/AccountCodec.h"
#include "sample/BankAccounts.h"
#include "sample/RowWriter.h"
#include "sample/SpanishPlaces.h"

namespace velmar::sample {
namespace {

constexpr std::size_t kBranchesPerProvince = 4;

/// The banks take turns from province to province, and no province has one bank twice.
std::size_t BankOfBranch(std::size_t branch) {
  return (branch / kBranchesPerProvince * 5 + branch % kBranchesPerProvince * 3) % kBankCount;
}

}  // namespace

BankDirectory::BankDirectory(ADODB::Connection& main)
    : accounts_(main, "Cuentas", {"IDCuenta", "CodSucursal", "DC", "Numero", "Eliminado"}) {
  ADODB::BulkInsert banks(main, "Bancos", {"IDBanco", "Numero", "Nombre", "Eliminado"});
  for (std::size_t i = 0; i < kBankCount; ++i)
    WriteRow(banks, i + 1, Banks()[i].number, Banks()[i].name, false);

  ADODB::BulkInsert branches(main, "Sucursales",
                             {"IDSucursal", "CodBanco", "Codigo", "Poblacion", "CP", "Eliminado"});
  for (std::size_t i = 0; i < kProvinceCount * kBranchesPerProvince; ++i) {
    const Town& town = Provinces()[i / kBranchesPerProvince].towns[i % 3];
    branches_.push_back({BankOfBranch(i), std::to_string(1000 + i * 37)});
    WriteRow(branches, i + 1, branches_[i].bank + 1, branches_[i].code, town.name, town.postcode, false);
  }
}

std::size_t BankDirectory::BranchOfBank(std::size_t bank) const {
  const auto found = std::find_if(branches_.begin(), branches_.end(),
                                  [bank](const Branch& branch) { return branch.bank == bank; });
  return static_cast<std::size_t>(found - branches_.begin());
}

std::size_t BankDirectory::BranchOfProvince(std::size_t province, Random& random) {
  return province * kBranchesPerProvince + random.Below(kBranchesPerProvince);
}

long BankDirectory::OpenAccount(std::size_t branch, bool deleted, Random& random) {
  std::string number(10, '0');
  for (char& digit : number) digit = static_cast<char>('0' + random.Below(10));
  const Branch& office = branches_[branch];
  WriteRow(accounts_, ++accountCount_, branch + 1,
           AccountControl(Banks()[office.bank].number, office.code, number), AccountCodec::Encode(number),
           deleted);
  return accountCount_;
}

}  // namespace velmar::sample
