#include "platform/jet/DefinitionParser.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/jet/Keywords.h"

namespace velmar::jet {
namespace {

struct TypeName {
  std::string_view name;
  std::string_view declared;
};

// Names of the types in Jet SQL, and what the engine's table declares. DECIMAL is not among them, since its
// scale decides.
constexpr auto kTypes = std::to_array<TypeName>({
    {"TEXT", "TEXT"},
    {"CHAR", "TEXT"},
    {"CHARACTER", "TEXT"},
    {"VARCHAR", "TEXT"},
    {"NVARCHAR", "TEXT"},
    {"NCHAR", "TEXT"},
    {"STRING", "TEXT"},
    {"ALPHANUMERIC", "TEXT"},
    {"MEMO", "LONGTEXT"},
    {"LONGTEXT", "LONGTEXT"},
    {"LONGCHAR", "LONGTEXT"},
    {"NOTE", "LONGTEXT"},
    {"NTEXT", "LONGTEXT"},
    {"BYTE", "BYTE"},
    {"TINYINT", "BYTE"},
    {"INTEGER1", "BYTE"},
    {"SMALLINT", "SMALLINT"},
    {"SHORT", "SMALLINT"},
    {"INTEGER2", "SMALLINT"},
    {"INTEGER", "INTEGER"},
    {"INT", "INTEGER"},
    {"LONG", "INTEGER"},
    {"INTEGER4", "INTEGER"},
    {"COUNTER", "COUNTER"},
    {"AUTOINCREMENT", "COUNTER"},
    {"IDENTITY", "COUNTER"},
    {"SINGLE", "SINGLE"},
    {"REAL", "SINGLE"},
    {"FLOAT4", "SINGLE"},
    {"IEEESINGLE", "SINGLE"},
    {"DOUBLE", "DOUBLE"},
    {"FLOAT", "DOUBLE"},
    {"FLOAT8", "DOUBLE"},
    {"NUMBER", "DOUBLE"},
    {"IEEEDOUBLE", "DOUBLE"},
    {"CURRENCY", "CURRENCY"},
    {"MONEY", "CURRENCY"},
    {"BIT", "BIT"},
    {"YESNO", "BIT"},
    {"LOGICAL", "BIT"},
    {"LOGICAL1", "BIT"},
    {"BOOLEAN", "BIT"},
    {"DATETIME", "DATETIME"},
    {"DATE", "DATETIME"},
    {"TIME", "DATETIME"},
    {"TIMESTAMP", "DATETIME"},
    {"BINARY", "BLOB"},
    {"VARBINARY", "BLOB"},
    {"LONGBINARY", "BLOB"},
    {"OLEOBJECT", "BLOB"},
    {"IMAGE", "BLOB"},
    {"GENERAL", "BLOB"},
    {"GUID", "TEXT(38)"},
    {"UNIQUEIDENTIFIER", "TEXT(38)"},
});

constexpr long kMostCharacters = 255;
constexpr long kCurrencyScale = 4;

bool IsDecimal(std::string_view word) {
  return EqualWord(word, "DECIMAL") || EqualWord(word, "NUMERIC") || EqualWord(word, "DEC");
}

}  // namespace

Statement DefinitionParser::ParseCreate() {
  reader_.Expect("CREATE");
  if (reader_.Accept("TABLE")) return ParseCreateTable();
  const bool unique = reader_.Accept("UNIQUE");
  if (!reader_.Is("INDEX")) reader_.FailExpected("TABLE, INDEX o UNIQUE INDEX");
  return ParseCreateIndex(unique);
}

CreateTableStatement DefinitionParser::ParseCreateTable() {
  CreateTableStatement statement;
  statement.target = queries_.ParseTableName();
  reader_.Expect("(");
  do {
    if (reader_.IsAny({"CONSTRAINT", "PRIMARY", "UNIQUE"})) {
      statement.constraints.push_back(ParseConstraint());
    } else {
      statement.columns.push_back(ParseColumn());
    }
  } while (reader_.Accept(","));
  reader_.Expect(")");
  if (statement.columns.empty()) reader_.Fail("La tabla no tiene ningún campo", statement.target.span);
  return statement;
}

ColumnDefinition DefinitionParser::ParseColumn() {
  ColumnDefinition column;
  column.span = reader_.Peek().span;
  column.name = reader_.ExpectName("el nombre de un campo");
  ParseType(column);
  for (;;) {
    if (reader_.Accept("NOT")) {
      reader_.Expect("NULL");
      column.notNull = true;
    } else if (reader_.Accept("CONSTRAINT")) {
      reader_.ExpectName("el nombre de la restricción");
      if (!reader_.IsAny({"PRIMARY", "UNIQUE"})) reader_.FailExpected("PRIMARY KEY o UNIQUE");
    } else if (reader_.Accept("PRIMARY")) {
      reader_.Expect("KEY");
      column.primaryKey = true;
    } else if (reader_.Accept("UNIQUE")) {
      column.unique = true;
    } else if (!reader_.Accept("NULL")) {
      return column;
    }
  }
}

void DefinitionParser::ParseType(ColumnDefinition& column) {
  const Token& token = reader_.Peek();
  const auto found = std::find_if(kTypes.begin(), kTypes.end(), [&token](const TypeName& type) {
    return token.kind == TokenKind::kName && EqualWord(token.text, type.name);
  });
  const bool decimal = token.kind == TokenKind::kName && IsDecimal(token.text);
  if (found == kTypes.end() && !decimal) reader_.FailExpected("el tipo del campo");
  reader_.Take();
  if (!decimal && found->name == "DOUBLE") reader_.Accept("PRECISION");

  long size = 0;
  long scale = 0;
  TextSpan sizeSpan = reader_.Peek().span;
  if (reader_.Accept("(")) {
    sizeSpan = reader_.Peek().span;
    size = std::stol(reader_.ExpectCount("el tamaño del campo"));
    if (reader_.Accept(",")) scale = std::stol(reader_.ExpectCount("los decimales del campo"));
    reader_.Expect(")");
  }
  column.type = decimal ? (scale <= kCurrencyScale ? "CURRENCY" : "DOUBLE") : std::string(found->declared);
  if (column.type == "TEXT" && size > 0) {
    if (size > kMostCharacters) {
      reader_.Fail("Un campo de texto admite hasta 255 caracteres; para más, use MEMO", sizeSpan);
    }
    column.type += "(" + std::to_string(size) + ")";
  }
  if (column.type == "COUNTER") {
    column.type = "INTEGER";
    column.counter = true;
  }
}

TableConstraint DefinitionParser::ParseConstraint() {
  TableConstraint constraint;
  if (reader_.Accept("CONSTRAINT")) reader_.ExpectName("el nombre de la restricción");
  if (reader_.Accept("PRIMARY")) {
    reader_.Expect("KEY");
    constraint.primaryKey = true;
  } else if (!reader_.Accept("UNIQUE")) {
    reader_.FailExpected("PRIMARY KEY o UNIQUE");
  }
  reader_.Expect("(");
  do {
    constraint.columns.push_back(reader_.ExpectName("el nombre de un campo"));
  } while (reader_.Accept(","));
  reader_.Expect(")");
  return constraint;
}

CreateIndexStatement DefinitionParser::ParseCreateIndex(bool unique) {
  reader_.Expect("INDEX");
  CreateIndexStatement statement;
  statement.unique = unique;
  statement.index = reader_.ExpectName("el nombre del índice");
  reader_.Expect("ON");
  statement.target = queries_.ParseTableName();
  reader_.Expect("(");
  do {
    KeyColumn column;
    column.name = reader_.ExpectName("el nombre de un campo");
    if (!reader_.Accept("ASC")) column.descending = reader_.Accept("DESC");
    statement.columns.push_back(std::move(column));
  } while (reader_.Accept(","));
  reader_.Expect(")");
  if (reader_.Accept("WITH")) {
    if (reader_.Accept("PRIMARY")) {
      statement.unique = true;
    } else if (reader_.Accept("IGNORE")) {
      reader_.Expect("NULL");  // An index of the engine may hold Nulls, which changes no result.
    } else {
      reader_.FailExpected("PRIMARY o IGNORE NULL");
    }
  }
  return statement;
}

Statement DefinitionParser::ParseAlter() {
  reader_.Expect("ALTER");
  reader_.Expect("TABLE");
  AlterTableStatement statement;
  statement.target = queries_.ParseTableName();
  if (reader_.Accept("DROP")) {
    reader_.Accept("COLUMN");
    statement.dropped = reader_.ExpectName("el nombre de un campo");
    return statement;
  }
  if (!reader_.Accept("ADD")) reader_.FailExpected("ADD o DROP");
  reader_.Accept("COLUMN");
  statement.added = ParseColumn();
  return statement;
}

Statement DefinitionParser::ParseDrop() {
  reader_.Expect("DROP");
  DropStatement statement;
  if (reader_.Accept("INDEX")) {
    statement.index = true;
    statement.indexName = reader_.ExpectName("el nombre del índice");
    reader_.Expect("ON");
  } else if (!reader_.Accept("TABLE")) {
    reader_.FailExpected("TABLE o INDEX");
  }
  statement.target = queries_.ParseTableName();
  return statement;
}

}  // namespace velmar::jet
