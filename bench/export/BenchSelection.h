#pragma once

#include <string>

#include "catalogue/Collection.h"
#include "catalogue/cCampos.h"
#include "query/Selection.h"

namespace velmar::bench {

/// The selection that is measured: twelve columns with an account and two dates over collaborators, receipts,
/// payments, donations, provinces and the account's three tables.
struct BenchSelection {
  /// Of the collaborators up to this number.
  explicit BenchSelection(long lastCollaborator);

  Collection<cCampos> catalogue;
  Selection selection;
};

/// The statement as the run builds it, without its INTO clause: the part in front of it, and the rest.
struct Clauses {
  std::string select;
  std::string rest;
};
Clauses ClausesOf(const BenchSelection& chosen);

}  // namespace velmar::bench
