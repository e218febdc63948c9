#include "platform/jet/Parser.h"

#include <memory>
#include <utility>

#include "platform/jet/DefinitionParser.h"
#include "platform/jet/Lexer.h"

namespace velmar::jet {

Parser::Parser(std::string_view text) : reader_(text, Lexer(text).Tokens()), queries_(reader_) {}

Statement Parser::Parse() {
  if (reader_.Peek().kind == TokenKind::kEnd) reader_.Fail("La consulta está vacía", reader_.Peek().span);
  Statement statement = ParseStatement();
  reader_.Accept(";");
  if (reader_.Peek().kind != TokenKind::kEnd) reader_.FailExpected("el final de la consulta");
  return statement;
}

Statement Parser::ParseStatement() {
  DefinitionParser definitions(reader_, queries_);
  if (reader_.Is("SELECT")) return ParseSelect();
  if (reader_.Is("INSERT")) return ParseInsert();
  if (reader_.Is("UPDATE")) return ParseUpdate();
  if (reader_.Is("DELETE")) return ParseDelete();
  if (reader_.Is("CREATE")) return definitions.ParseCreate();
  if (reader_.Is("ALTER")) return definitions.ParseAlter();
  if (reader_.Is("DROP")) return definitions.ParseDrop();
  reader_.FailExpected("SELECT, INSERT, UPDATE, DELETE, CREATE, ALTER o DROP");
}

SelectStatement Parser::ParseSelect() {
  SelectStatement statement;
  statement.query = queries_.ParseQuery(&statement.into);
  return statement;
}

InsertStatement Parser::ParseInsert() {
  reader_.Expect("INSERT");
  reader_.Expect("INTO");
  InsertStatement statement;
  statement.target = queries_.ParseTableName();
  queries_.ParseInDatabase(statement.target);
  if (reader_.Accept("(")) {
    do {
      const std::size_t start = reader_.Offset();
      std::string name = reader_.ExpectName("el nombre de un campo");
      if (reader_.Accept(".")) name = reader_.ExpectMember("el nombre de un campo");
      statement.columns.push_back({std::move(name), reader_.SpanFrom(start)});
    } while (reader_.Accept(","));
    reader_.Expect(")");
    queries_.ParseInDatabase(statement.target);
  }
  if (reader_.Is("SELECT")) {
    statement.query = std::make_unique<Query>(queries_.ParseQuery());
    return statement;
  }
  if (!reader_.Is("VALUES")) reader_.FailExpected("SELECT o VALUES");
  reader_.Take();
  const std::size_t start = reader_.Offset();
  reader_.Expect("(");
  do {
    statement.values.push_back(queries_.ParseExpression());
  } while (reader_.Accept(","));
  reader_.Expect(")");
  if (!statement.columns.empty() && statement.columns.size() != statement.values.size()) {
    reader_.Fail("Hay " + std::to_string(statement.columns.size()) + " campos y " +
                     std::to_string(statement.values.size()) + " valores; tiene que haber los mismos",
                 reader_.SpanFrom(start));
  }
  return statement;
}

UpdateStatement Parser::ParseUpdate() {
  reader_.Expect("UPDATE");
  UpdateStatement statement;
  statement.source = queries_.ParseSource();
  reader_.Expect("SET");
  do {
    Assignment assignment;
    const std::size_t start = reader_.Offset();
    assignment.column.column = reader_.ExpectName("el nombre de un campo");
    if (reader_.Accept(".")) {
      assignment.column.table = std::move(assignment.column.column);
      assignment.column.column = reader_.ExpectMember("el nombre de un campo");
    }
    assignment.span = reader_.SpanFrom(start);
    reader_.Expect("=");
    assignment.value = queries_.ParseExpression();
    statement.assignments.push_back(std::move(assignment));
  } while (reader_.Accept(","));
  statement.where = queries_.ParseWhere();
  return statement;
}

DeleteStatement Parser::ParseDelete() {
  reader_.Expect("DELETE");
  DeleteStatement statement;
  if (!reader_.Accept("*") && !reader_.Is("FROM")) {
    statement.targetSpan = reader_.Peek().span;
    statement.target = reader_.ExpectName("FROM, * o el nombre de una tabla");
    if (reader_.Accept(".")) reader_.Expect("*");
  }
  reader_.Expect("FROM");
  auto sources = queries_.ParseFrom();
  if (sources.size() > 1) {
    reader_.Fail("DELETE solo admite varias tablas si se unen con JOIN", sources[1].span);
  }
  statement.source = std::move(sources.front());
  statement.where = queries_.ParseWhere();
  return statement;
}

}  // namespace velmar::jet
