#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "export/RunContext.h"
#include "export/RunLoop.h"

namespace velmar::exporting {

/// The data of Modelo 182, the annual declaration of donations (Ley 49/2002, article 24.2): the payments of
/// the previous calendar year, one row for each declarable collaborator and kind of donation, in the table
/// Modelo182Hacienda of the main database.
///
/// Left out are collaborators without name or first surname, with a NIF of more than nine characters, with a
/// receipt over 0 euros, and those whose NIF the host does not find valid. A NIF that is missing (NULL) or
/// begins with X is not tested.
class Modelo182 {
 public:
  Modelo182(const RunContext& context, RunLoop& loop) : context_(context), loop_(loop) {}

  /// Empties the table and fills it. A failure ends it where it stands.
  void GenerarModelo182();
  /// Empties the table.
  void Vaciar();

 private:
  using RowVisitor = std::function<void(ADODB::Recordset& row)>;

  void ForEachRow(const std::string& statement, const RowVisitor& visit);
  std::string FindMissingData(const std::string& restriction);
  std::string FindInvalidNifs(HostApi& api, const std::string& restriction, const std::string& exclusion);
  void Insert(const std::string& restriction, const std::string& exclusion);
  void MarkKinds();
  std::string Restriction() const;
  std::string InYear() const;

  const RunContext& context_;
  RunLoop& loop_;
};

}  // namespace velmar::exporting
