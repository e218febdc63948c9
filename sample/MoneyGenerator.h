#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/ado/BulkInsert.h"
#include "platform/ado/Connection.h"
#include "sample/BankDirectory.h"
#include "sample/Collaborator.h"
#include "sample/Donation.h"
#include "sample/GeneratorOptions.h"
#include "sample/Issuers.h"
#include "sample/Random.h"

namespace velmar::sample {

/// Makes what the collaborators give: accounts, donations, receipts from 1 January of the year before the
/// date on, their payments, the pending receipts that are to be issued up to the end of the next month, and
/// at last the remittances.
///
/// A receipt gathers what one collaborator owes in one month over one account; each donation in it is a
/// payment of its own, and the payments add up to the receipt.
class MoneyGenerator {
 public:
  MoneyGenerator(ADODB::Connection& main, BankDirectory& banks, const GeneratorOptions& options);

  void Write(const Collaborator& person);
  /// Once, behind the last collaborator: the remittances that the receipts stand in.
  void WriteRemittances(ADODB::Connection& main);

 private:
  /// Receipts and their payments, issued or pending: two pairs of tables of one shape.
  struct ReceiptTables {
    ReceiptTables(ADODB::Connection& main, const std::string& suffix, const std::string& keySuffix);
    ADODB::BulkInsert receipts;
    ADODB::BulkInsert payments;
    long receiptCount = 0;
    long paymentCount = 0;
  };

  struct Remittance {
    long receipts = 0;
    long cents = 0;
    bool used = false;
  };

  std::optional<long> OpenAccounts(const Collaborator& person, Random& random);
  Donation MakeDonation(const Collaborator& person, std::optional<long> account, bool first, Random& random);
  void SetMonths(Donation& donation, const Collaborator& person, bool lasting, Random& random) const;
  void WriteDonation(const Collaborator& person, const Donation& donation, Random& random);
  void WriteMonth(const Collaborator& person, const std::vector<Donation>& due, int month, Random& random);
  void WriteReceipt(const Collaborator& person, const std::vector<Donation>& due, int month, Random& random);
  long RemittanceFor(std::size_t issuer, int month) const;

  BankDirectory& banks_;
  ADODB::BulkInsert owners_;
  ADODB::BulkInsert donations_;
  ReceiptTables issued_;
  ReceiptTables pending_;
  std::vector<Remittance> remittances_;
  std::uint64_t seed_;
  CalendarDate date_;
  int firstMonth_;
  int lastMonth_;
  long ownerCount_ = 0;
  long donationCount_ = 0;
  bool zeroReceiptDue_ = false;
};

}  // namespace velmar::sample
