#include "sample/MoneyGenerator.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "sample/DonationKinds.h"
#include "sample/RowWriter.h"
#include "sample/SpanishPlaces.h"

namespace velmar::sample {
namespace {

constexpr int kNever = 1'000'000;

int MonthOf(const CalendarDate& date) {
  return static_cast<int>(date.year()) * 12 + static_cast<int>(static_cast<unsigned>(date.month())) - 1;
}

CalendarDate FirstOf(int month) {
  return std::chrono::year(month / 12) / std::chrono::month(static_cast<unsigned>(month % 12 + 1)) /
         std::chrono::day(1);
}

double Euros(long cents) {
  return static_cast<double>(cents) / 100;
}

std::string ReceiptText(const Donation& donation, int month) {
  constexpr std::array<std::string_view, 12> kMonths = {"enero",      "febrero", "marzo",     "abril",
                                                        "mayo",       "junio",   "julio",     "agosto",
                                                        "septiembre", "octubre", "noviembre", "diciembre"};
  std::string text(DonationTypes()[static_cast<std::size_t>(donation.type - 1)].name);
  text += ", ";
  text += kMonths[static_cast<std::size_t>(month % 12)];
  return text + " de " + std::to_string(month / 12);
}

long Amount(const Collaborator& person, bool once, Random& random) {
  // Some amounts still show the pesetas that they once were: 1000 pesetas are 6.01 euros.
  constexpr std::array<long, 16> kCents = {300,  500,  601,  1000, 1000, 1200, 1500, 1803,
                                           2000, 2000, 2500, 3000, 3005, 5000, 6000, 10000};
  long cents = random.Pick(kCents);
  if (once) cents *= random.Between(1, 5);
  if (person.legalPerson) cents *= 10;
  return cents;
}

}  // namespace

MoneyGenerator::ReceiptTables::ReceiptTables(ADODB::Connection& main, const std::string& suffix,
                                             const std::string& keySuffix)
    : receipts(main, "Recibos" + suffix,
               {"IDRecibo" + keySuffix, "CodColaborador", "CodRemesa", "CodCuenta", "CodEmisor_Cuenta",
                "FechaEmision", "FechaCobro", "Mes", "Importe", "Devolucion", "Eliminado"}),
      payments(main, "Cobros" + suffix,
               {"IDCobro" + keySuffix, "CodRecibo", "CodDonativo", "Importe", "TextoRecibo", "Eliminado"}) {}

MoneyGenerator::MoneyGenerator(ADODB::Connection& main, BankDirectory& banks, const GeneratorOptions& options)
    : banks_(banks),
      owners_(main, "Colaboradores_Cuentas",
              {"IDColaborador_Cuenta", "CodColaborador", "CodCuenta", "Eliminado"}),
      donations_(main, "Donativos",
                 {"IDDonativo", "CodColaborador", "CodTipoDonativo", "CodTipoPeriodo", "CodTipoPago",
                  "CodColaborador_Cuenta", "Importe", "FechaAlta", "FechaPrimerPago", "Eliminado"}),
      issued_(main, "", ""),
      pending_(main, "Pendientes", "Pendiente"),
      seed_(options.seed),
      date_(options.date),
      firstMonth_((static_cast<int>(options.date.year()) - 1) * 12),
      lastMonth_(MonthOf(options.date) + 1) {
  remittances_.resize(static_cast<std::size_t>(lastMonth_ - firstMonth_ + 1) * kIssuerCount);
}

void MoneyGenerator::Write(const Collaborator& person) {
  constexpr std::array<std::uint32_t, 4> kDonationCounts = {80, 760, 130, 30};
  Random random = Random::ForRow(seed_, static_cast<std::uint64_t>(person.id) * 2 + 1);
  const std::optional<long> account = OpenAccounts(person, random);
  std::size_t count = random.PickWeighted(kDonationCounts, 1000);
  if (person.exemplary) count = std::max<std::size_t>(count, 1);

  std::vector<Donation> donations;
  for (std::size_t i = 0; i < count; ++i) {
    donations.push_back(MakeDonation(person, account, i == 0, random));
    WriteDonation(person, donations.back(), random);
  }
  zeroReceiptDue_ = person.zeroReceipt;
  std::vector<Donation> due;
  for (int month = firstMonth_; month <= lastMonth_; ++month) {
    due.clear();
    std::copy_if(donations.begin(), donations.end(), std::back_inserter(due),
                 [month](const Donation& donation) { return donation.IsDueIn(month); });
    if (!due.empty()) WriteMonth(person, due, month, random);
  }
}

std::optional<long> MoneyGenerator::OpenAccounts(const Collaborator& person, Random& random) {
  if (random.Chance(180)) return std::nullopt;
  // Those without a province bank anywhere.
  const std::size_t province =
      person.province.value_or(random.Below(static_cast<std::uint32_t>(kProvinceCount)));
  const int count = random.Chance(60) ? 2 : 1;
  std::optional<long> account;
  for (int i = 0; i < count; ++i) {
    const bool deleted = i > 0 && random.Chance(300);
    const long opened =
        banks_.OpenAccount(BankDirectory::BranchOfProvince(province, random), deleted, random);
    WriteRow(owners_, ++ownerCount_, person.id, opened, deleted);
    if (!account) account = opened;
  }
  return account;
}

Donation MoneyGenerator::MakeDonation(const Collaborator& person, std::optional<long> account, bool first,
                                      Random& random) {
  constexpr std::array<std::uint32_t, kDonationTypeCount> kTypeWeights = {420, 150, 160, 40, 50, 70,
                                                                          5,   25,  40,  35, 5};
  constexpr std::array<std::uint32_t, kPeriodCount> kPeriodWeights = {260, 40, 270, 120, 270, 40};
  constexpr std::array<std::uint32_t, kMethodCount> kOtherMethods = {0, 500, 250, 150, 80, 20};

  Donation donation;
  donation.id = ++donationCount_;
  const bool lasting = first && person.exemplary;
  const std::size_t type = lasting ? 0 : random.PickWeighted(kTypeWeights, 1000);
  donation.type = static_cast<long>(type) + 1;
  const bool once = DonationTypes()[type].once;
  const std::size_t period =
      once ? kPeriodCount - 1 : (lasting ? random.Below(5) : random.PickWeighted(kPeriodWeights, 1000));
  donation.period = static_cast<long>(period) + 1;
  donation.everyMonths = PaymentPeriods()[period].months;
  if (account && random.Chance(920)) {
    donation.account = account;
    donation.payment = 1;
  } else {
    donation.payment = static_cast<long>(random.PickWeighted(kOtherMethods, 1000)) + 1;
  }
  donation.cents = Amount(person, donation.everyMonths == 0, random);
  SetMonths(donation, person, lasting, random);
  return donation;
}

void MoneyGenerator::SetMonths(Donation& donation, const Collaborator& person, bool lasting,
                               Random& random) const {
  const int joined = MonthOf(person.joined);
  const int latest = person.left ? MonthOf(*person.left) : lastMonth_;
  // What is paid once mostly falls into the time that has receipts.
  const int earliest = donation.everyMonths == 0 ? std::max(joined, firstMonth_ - 6) : joined;
  donation.firstMonth = lasting ? joined : random.Between(std::min(earliest, latest), latest);
  donation.lastMonth = person.left ? latest : kNever;
  donation.deleted = !lasting && random.Chance(25);
  if (donation.deleted) donation.lastMonth = std::min(donation.lastMonth, donation.firstMonth + 6);
}

void MoneyGenerator::WriteDonation(const Collaborator& person, const Donation& donation, Random& random) {
  const CalendarDate firstPayment = FirstOf(donation.firstMonth);
  const std::string start = StoredDate(AddDays(firstPayment, -random.Between(0, 20)));
  const std::string payment = random.Chance(30) ? std::string() : StoredDate(firstPayment);
  WriteRow(donations_, donation.id, person.id, donation.type, donation.period, donation.payment,
           donation.account, Euros(donation.cents), start, payment, donation.deleted);
}

void MoneyGenerator::WriteMonth(const Collaborator& person, const std::vector<Donation>& due, int month,
                                Random& random) {
  std::vector<Donation> collected;
  std::vector<Donation> paidIn;
  for (const Donation& donation : due) (donation.account ? collected : paidIn).push_back(donation);
  if (!collected.empty()) WriteReceipt(person, collected, month, random);
  if (!paidIn.empty()) WriteReceipt(person, paidIn, month, random);
}

void MoneyGenerator::WriteReceipt(const Collaborator& person, const std::vector<Donation>& due, int month,
                                  Random& random) {
  const CalendarDate issue = AddDays(FirstOf(month), random.Between(0, 4));
  const bool isPending = std::chrono::sys_days(issue) > std::chrono::sys_days(date_);
  ReceiptTables& tables = isPending ? pending_ : issued_;
  const std::optional<long> account = due.front().account;
  const bool forNothing = zeroReceiptDue_ && !isPending;
  const bool deleted = !forNothing && random.Chance(10);
  const long returns = account && !isPending && !forNothing && random.Chance(25) ? random.Between(1, 2) : 0;

  CalendarDate paid = AddDays(issue, random.Between(1, 12));
  // A receipt for nothing belongs to the year in which it was issued.
  if (forNothing) paid = issue;
  const bool isPaid =
      !isPending && returns == 0 && std::chrono::sys_days(paid) <= std::chrono::sys_days(date_);

  long total = 0;
  const long receipt = ++tables.receiptCount;
  for (const Donation& donation : due) {
    const long cents = forNothing ? 0 : donation.cents;
    total += cents;
    WriteRow(tables.payments, ++tables.paymentCount, receipt, donation.id, Euros(cents),
             random.Chance(100) ? std::string() : ReceiptText(donation, month), deleted);
  }
  if (forNothing) zeroReceiptDue_ = false;

  const std::size_t issuer = Issuers::IssuerOf(person.id);
  std::optional<long> remittance;
  std::optional<long> issuerAccount;
  if (account) issuerAccount = Issuers::AccountFor(issuer, month);
  if (account && !isPending) {
    remittance = RemittanceFor(issuer, month);
    Remittance& sum = remittances_[static_cast<std::size_t>(*remittance - 1)];
    sum.used = true;
    sum.receipts += deleted ? 0 : 1;
    sum.cents += deleted ? 0 : total;
  }
  WriteRow(tables.receipts, receipt, person.id, remittance, account, issuerAccount, StoredDate(issue),
           isPaid ? StoredDate(paid) : std::string(), month % 12 + 1, Euros(total), returns, deleted);
}

long MoneyGenerator::RemittanceFor(std::size_t issuer, int month) const {
  return static_cast<long>(month - firstMonth_) * static_cast<long>(kIssuerCount) +
         static_cast<long>(issuer) + 1;
}

void MoneyGenerator::WriteRemittances(ADODB::Connection& main) {
  ADODB::BulkInsert rows(main, "Remesas",
                         {"IDRemesa", "CodEmisor", "Fecha", "RecibosBanco", "TotalBanco", "Eliminado"});
  for (std::size_t i = 0; i < remittances_.size(); ++i) {
    const Remittance& remittance = remittances_[i];
    if (!remittance.used) continue;
    const int month = firstMonth_ + static_cast<int>(i / kIssuerCount);
    WriteRow(rows, i + 1, i % kIssuerCount + 1, StoredDate(AddDays(FirstOf(month), 4)), remittance.receipts,
             Euros(remittance.cents), false);
  }
}

}  // namespace velmar::sample
