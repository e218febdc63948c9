#include "export/StagingStatement.h"

#include <array>
#include <utility>

#include "export/WorkFiles.h"
#include "platform/text/Case.h"
#include "platform/text/Search.h"

namespace velmar::exporting {
namespace {

using text::LCase;
using text::Replace;

/// From receipts to pending receipts, in this order.
constexpr std::array<std::pair<std::string_view, std::string_view>, 5> kPendingNames{{
    {"recibos.", "recibospendientes."},
    {"recibos ", " recibospendientes "},
    {"idrecibo", "idrecibopendiente"},
    {"cobros", "cobrospendientes"},
    {"idcobro", "idcobropendiente"},
}};

std::string WithPendingNames(std::string clause) {
  clause = LCase(clause);
  for (const auto& [name, pending] : kPendingNames) clause = Replace(clause, name, pending);
  return clause;
}

}  // namespace

StagingStatement::StagingStatement(std::string select, std::string workPath, std::string fromWhereOrder)
    : select_(std::move(select)), workPath_(std::move(workPath)), rest_(std::move(fromWhereOrder)) {}

std::string StagingStatement::Target() const {
  return "[" + workPath_ + "]." + kTable;
}

std::string StagingStatement::Text() const {
  return select_ + " INTO " + Target() + " " + rest_;
}

bool StagingStatement::Holds(std::string_view piece) const {
  return text::Contains(LCase(Text()), piece);
}

std::string StagingStatement::PendingText() const {
  // Cut where the INTO clause stood, so that the path, whatever it holds, is not rewritten. The blank in
  // front of INTO belongs to the first half: a name at its end is followed by it.
  const std::string pending = WithPendingNames(select_ + " ") + WithPendingNames(rest_);
  return Replace(pending, "select", "insert into " + Target() + " select");
}

}  // namespace velmar::exporting
