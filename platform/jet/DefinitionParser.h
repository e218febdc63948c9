#pragma once

#include "platform/jet/QueryParser.h"
#include "platform/jet/TokenReader.h"
#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Reads CREATE, ALTER and DROP. Column types are those of Jet SQL with all their other names; each becomes
/// the declaration that a table of the engine carries.
class DefinitionParser {
 public:
  /// Both must outlive the parser.
  DefinitionParser(TokenReader& reader, QueryParser& queries) : reader_(reader), queries_(queries) {}

  Statement ParseCreate();
  Statement ParseAlter();
  Statement ParseDrop();

 private:
  CreateTableStatement ParseCreateTable();
  CreateIndexStatement ParseCreateIndex(bool unique);
  ColumnDefinition ParseColumn();
  void ParseType(ColumnDefinition& column);
  TableConstraint ParseConstraint();

  TokenReader& reader_;
  QueryParser& queries_;
};

}  // namespace velmar::jet
