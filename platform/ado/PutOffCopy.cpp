#include "platform/ado/PutOffCopy.h"

#include <utility>

#include "platform/ado/Database.h"
#include "platform/ado/RowCopy.h"
#include "platform/ado/Savepoint.h"
#include "platform/ado/TableNames.h"

namespace ADODB {

using velmar::jet::QuoteIdentifier;
using velmar::jet::StatementKind;
using velmar::jet::Translation;

std::optional<PutOffCopy> PutOffCopy::Of(Database& database, const Translation& translation,
                                         const DistinctMemory& memory) {
  if (translation.kind != StatementKind::kSelectInto || !translation.distinctTable) return std::nullopt;
  const auto& [alias, name] = *translation.distinctTable;
  if (alias != "main" || translation.target->alias != "main" || translation.target->excel)
    return std::nullopt;
  const auto source = FindTable(database, alias, name);
  if (!source || !IsPlainTable(database, *source)) return std::nullopt;
  RefuseExistingTable(database, *translation.target);
  auto repeated = RepeatedRows::Of(database, translation, memory);
  if (!repeated) return std::nullopt;
  return PutOffCopy(database, translation, *source, std::move(*repeated));
}

PutOffCopy::PutOffCopy(Database& database, Translation translation, std::string source, RepeatedRows repeated)
    : database_(&database),
      translation_(std::move(translation)),
      source_(std::move(source)),
      repeated_(std::move(repeated)) {}

std::int64_t PutOffCopy::RowCount() const {
  return database_->Number("SELECT count(*) FROM main." + QuoteIdentifier(source_)) - repeated_.Count();
}

void PutOffCopy::TakeSource() const {
  const Database::EngineAccess access(*database_);
  Savepoint savepoint(*database_);
  repeated_.Remove();
  database_->Run("ALTER TABLE main." + QuoteIdentifier(source_) + " RENAME TO " + QuoteIdentifier(Target()));
  savepoint.Release();
}

}  // namespace ADODB
