#pragma once

#include <set>
#include <string>
#include <string_view>

#include "platform/jet/QueryEmitter.h"
#include "platform/jet/SqlWriter.h"
#include "platform/jet/TableLocator.h"
#include "platform/jet/Translation.h"
#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Writes a rewritten statement as SQLite text and says what the caller has to know of it.
class StatementEmitter {
 public:
  /// All must outlive the emitter; `names` may be null.
  StatementEmitter(std::string_view jetText, const NameMap* names, const AliasLookup& aliases);
  StatementEmitter(const StatementEmitter&) = delete;
  StatementEmitter& operator=(const StatementEmitter&) = delete;

  Translation Emit(const Statement& statement);

 private:
  void Write(const SelectStatement& statement);
  void Write(const InsertStatement& statement);
  void Write(const UpdateStatement& statement);
  void Write(const DeleteStatement& statement);
  void Write(const CreateTableStatement& statement);
  void Write(const CreateIndexStatement& statement);
  void Write(const AlterTableStatement& statement);
  void Write(const DropStatement& statement);
  void WriteJoinedUpdate(const UpdateStatement& statement);
  void WriteColumn(const ColumnDefinition& column, bool rowKey, bool inKey);
  void WriteValues(const std::vector<Expression>& values);
  void RefuseRepeatedOutput(const Select& select) const;
  void RefuseRepeated(const ColumnDefinition& column, std::set<std::string>& names) const;
  void RefuseRepeated(const std::string& column, TextSpan span, std::set<std::string>& written) const;
  void NoteDistinctTable(const Query& query);
  void SetTarget(StatementKind kind, const TableName& name, bool sheetAllowed = false, bool isNew = false);
  const NamedTable& UpdatedTable(const UpdateStatement& statement) const;

  std::string_view jetText_;
  SqlWriter writer_;
  TableLocator locator_;
  QueryEmitter queries_;
  Translation translation_;
};

}  // namespace velmar::jet
