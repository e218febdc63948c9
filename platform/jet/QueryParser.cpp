#include "platform/jet/QueryParser.h"

#include <memory>
#include <string>
#include <utility>

namespace velmar::jet {
namespace {

constexpr int kMostJoins = 255;

void SetDatabase(TableSource& source, const std::string& database, TextSpan span) {
  if (auto* named = std::get_if<NamedTable>(&source.node)) {
    if (!named->name.database) {
      named->name.database = database;
      named->name.databaseSpan = span;
    }
  } else if (auto* join = std::get_if<Join>(&source.node)) {
    for (TableSource& operand : join->operands) SetDatabase(operand, database, span);
  }
}

}  // namespace

QueryParser::QueryParser(TokenReader& reader)
    : reader_(reader), expressions_(reader, [this] { return std::make_unique<Query>(ParseQuery()); }) {}

Query QueryParser::ParseQuery(std::optional<TableName>* into) {
  const std::size_t start = reader_.Offset();
  Query query;
  ParseMembers(query, into);
  if (reader_.Accept("ORDER")) {
    reader_.Expect("BY");
    do {
      OrderItem item;
      item.expression = ParseExpression();
      if (!reader_.Accept("ASC")) item.descending = reader_.Accept("DESC");
      query.orderBy.push_back(std::move(item));
    } while (reader_.Accept(","));
  }
  query.span = reader_.SpanFrom(start);
  return query;
}

void QueryParser::ParseMembers(Query& query, std::optional<TableName>* into) {
  for (;;) {
    query.members.push_back(ParseSelect(query.members.empty() ? into : nullptr));
    if (!reader_.Accept("UNION")) return;
    query.unionAll.push_back(reader_.Accept("ALL"));
  }
}

Select QueryParser::ParseSelect(std::optional<TableName>* into) {
  const std::size_t start = reader_.Offset();
  reader_.Expect("SELECT");
  Select select;
  ParsePredicate(select);
  do {
    select.items.push_back(ParseItem());
  } while (reader_.Accept(","));
  if (reader_.Is("INTO")) {
    if (into == nullptr)
      reader_.Fail("INTO solo se admite en la primera consulta de la sentencia", reader_.Peek().span);
    reader_.Take();
    *into = ParseTableName();
    ParseInDatabase(**into);
  }
  if (reader_.Accept("FROM")) {
    select.from = ParseFrom();
  } else {
    RefuseStars(select);
  }
  select.where = ParseWhere();
  if (reader_.Accept("GROUP")) {
    reader_.Expect("BY");
    do {
      select.groupBy.push_back(ParseExpression());
    } while (reader_.Accept(","));
  }
  if (reader_.Accept("HAVING")) select.having = ParseExpression();
  select.span = reader_.SpanFrom(start);
  return select;
}

void QueryParser::RefuseStars(const Select& select) {
  for (const SelectItem& item : select.items) {
    if (item.star) reader_.Fail("Falta FROM: un asterisco muestra los campos de una tabla", item.span);
  }
}

void QueryParser::ParsePredicate(Select& select) {
  if (reader_.Accept("DISTINCT")) {
    select.distinct = true;
  } else if (reader_.Accept("DISTINCTROW")) {
    select.distinctRow = true;
  } else {
    reader_.Accept("ALL");
  }
  const std::size_t start = reader_.Offset();
  if (!reader_.Accept("TOP")) return;
  Top top;
  top.count = reader_.ExpectCount("el número de filas de TOP");
  top.percent = reader_.Accept("PERCENT");
  top.span = reader_.SpanFrom(start);
  if (top.percent && std::stol(top.count) > 100)
    reader_.Fail("TOP no admite más del 100 por ciento", top.span);
  select.top = std::move(top);
}

SelectItem QueryParser::ParseItem() {
  const std::size_t start = reader_.Offset();
  SelectItem item;
  if (reader_.Accept("*")) {
    item.star = true;
  } else if (reader_.IsName() && reader_.Is(".", 1) && reader_.Is("*", 2)) {
    item.starTable = reader_.Take().text;
    reader_.Take();
    reader_.Take();
    item.star = true;
  } else {
    item.expression = ParseExpression();
    if (reader_.Accept("AS")) item.alias = reader_.ExpectName("un nombre detrás de AS");
  }
  item.span = reader_.SpanFrom(start);
  return item;
}

std::optional<Expression> QueryParser::ParseWhere() {
  if (!reader_.Accept("WHERE")) return std::nullopt;
  return ParseExpression();
}

std::vector<TableSource> QueryParser::ParseFrom() {
  std::vector<TableSource> sources;
  do {
    sources.push_back(ParseSource());
  } while (reader_.Accept(","));
  if (const auto database = AcceptInDatabase()) {
    for (TableSource& source : sources) SetDatabase(source, database->first, database->second);
  }
  return sources;
}

TableSource QueryParser::ParseSource() {
  const std::size_t start = reader_.Offset();
  return ParseJoined(ParseOperand(), start);
}

TableSource QueryParser::ParseJoined(TableSource left, std::size_t start) {
  const TokenReader::Nesting nesting(reader_);
  while (const auto kind = AcceptJoin()) {
    if (++joins_ > kMostJoins) reader_.FailExpected("una consulta con menos uniones de tablas");
    const std::size_t rightStart = reader_.Offset();
    TableSource right = ParseOperand();
    // A join without parentheses on the right side brings its own ON first.
    if (!reader_.Is("ON")) right = ParseJoined(std::move(right), rightStart);
    Join join;
    join.kind = *kind;
    reader_.Expect("ON");
    join.on = ParseExpression();
    join.operands.push_back(std::move(left));
    join.operands.push_back(std::move(right));
    left = TableSource{reader_.SpanFrom(start), std::move(join)};
    if (reader_.Is("ON")) return left;
  }
  return left;
}

std::optional<JoinKind> QueryParser::AcceptJoin() {
  if (reader_.Accept("JOIN")) return JoinKind::kInner;
  JoinKind kind = JoinKind::kInner;
  if (reader_.Is("LEFT")) {
    kind = JoinKind::kLeft;
  } else if (reader_.Is("RIGHT")) {
    kind = JoinKind::kRight;
  } else if (!reader_.Is("INNER")) {
    return std::nullopt;
  }
  reader_.Take();
  if (kind != JoinKind::kInner) reader_.Accept("OUTER");
  reader_.Expect("JOIN");
  return kind;
}

TableSource QueryParser::ParseOperand() {
  const std::size_t start = reader_.Offset();
  if (reader_.Is("(")) return ParseParenthesised();
  NamedTable named;
  named.name = ParseTableName();
  named.alias = ParseAlias();
  return TableSource{reader_.SpanFrom(start), std::move(named)};
}

TableSource QueryParser::ParseParenthesised() {
  const TokenReader::Nesting nesting(reader_);
  const std::size_t start = reader_.Offset();
  reader_.Expect("(");
  if (!reader_.Is("SELECT")) {
    TableSource inner = ParseSource();
    reader_.Expect(")");
    return inner;
  }
  DerivedTable derived;
  derived.query = std::make_unique<Query>(ParseQuery());
  reader_.Expect(")");
  derived.alias = ParseAlias();
  return TableSource{reader_.SpanFrom(start), std::move(derived)};
}

std::string QueryParser::ParseAlias() {
  if (reader_.Accept("AS")) return reader_.ExpectName("un nombre detrás de AS");
  // A join of a kind that does not exist would pass for another name and an inner join.
  for (const char* word : {"FULL", "CROSS", "NATURAL"}) {
    if (reader_.Is(word)) reader_.FailExpected("INNER JOIN, LEFT JOIN o RIGHT JOIN");
  }
  return reader_.IsName() ? reader_.Take().text : std::string();
}

TableName QueryParser::ParseTableName() {
  TableName name;
  name.span = reader_.Peek().span;
  name.table = reader_.ExpectName("el nombre de una tabla");
  if (reader_.Accept(".")) {
    name.database = std::move(name.table);
    name.databaseSpan = name.span;
    name.span = reader_.Peek().span;
    name.table = reader_.ExpectMember("el nombre de una tabla");
  }
  return name;
}

void QueryParser::ParseInDatabase(TableName& name) {
  if (name.database) return;
  if (auto database = AcceptInDatabase()) {
    name.database = std::move(database->first);
    name.databaseSpan = database->second;
  }
}

std::optional<std::pair<std::string, TextSpan>> QueryParser::AcceptInDatabase() {
  if (!reader_.Is("IN")) return std::nullopt;
  const std::size_t start = reader_.Peek(1).span.offset;
  reader_.Take();
  if (reader_.Peek().kind != TokenKind::kText)
    reader_.FailExpected("la ruta de una base de datos entre comillas");
  std::string database = reader_.Take().text;
  const TokenKind kind = reader_.Peek().kind;
  if (kind == TokenKind::kBracketed || kind == TokenKind::kText) {
    const std::string connect = reader_.Take().text;
    if (connect.starts_with(';')) {
      database += connect;
    } else {
      database = database.empty() ? connect : connect + ";DATABASE=" + database;
    }
  }
  return std::pair{std::move(database), reader_.SpanFrom(start)};
}

}  // namespace velmar::jet
