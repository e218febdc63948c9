#include "query/ListClauses.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "catalogue/FieldLookup.h"
#include "platform/text/Trim.h"
#include "query/DistinctList.h"

namespace velmar {

namespace {

using FieldText = const std::string& (cCampos::*)() const noexcept;

std::string JoinFieldTexts(const std::string& keyword, const std::vector<long>& fields, FieldText fieldText,
                           const Collection<cCampos>& mcolCampos) {
  std::string list;
  for (const long idCampo : fields) list.append((FindField(mcolCampos, idCampo).*fieldText)()).append(", ");
  return keyword + text::Trim(WithoutLastSeparator(list));
}

}  // namespace

std::string GenerarSQLSELECT(const Selection& selection, const Collection<cCampos>& mcolCampos,
                             const FailureReport& report) {
  std::string clause;
  RunReporting(report, "GenerarSQLSELECT ()", [&] {
    std::vector<long> fields;
    std::transform(selection.rows.begin(), selection.rows.end(), std::back_inserter(fields),
                   [](const Selection::Row& row) { return row.idCampo; });
    clause = JoinFieldTexts("SELECT DISTINCT ", fields, &cCampos::LiteralCampoSELECT, mcolCampos);
  });
  return clause;
}

std::string GenerarSQLORDERBY(const Selection& selection, const Collection<cCampos>& mcolCampos,
                              const FailureReport& report) {
  if (selection.order.empty()) return {};
  std::string clause;
  RunReporting(report, "GenerarSQLORDERBY ()", [&] {
    clause = JoinFieldTexts(" ORDER BY ", selection.order, &cCampos::LiteralCampoORDERBY, mcolCampos);
  });
  return clause;
}

}  // namespace velmar
