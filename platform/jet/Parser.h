#pragma once

#include <string_view>

#include "platform/jet/QueryParser.h"
#include "platform/jet/TokenReader.h"
#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Reads one Jet statement into its tree, without knowledge of any schema. Every failure is a RuntimeError
/// kQuerySyntax with its Span.
class Parser {
 public:
  /// The text must outlive the parser.
  explicit Parser(std::string_view text);
  Parser(const Parser&) = delete;
  Parser& operator=(const Parser&) = delete;

  /// Reads the whole text: one statement, with or without a semicolon at its end.
  Statement Parse();

 private:
  Statement ParseStatement();
  SelectStatement ParseSelect();
  InsertStatement ParseInsert();
  UpdateStatement ParseUpdate();
  DeleteStatement ParseDelete();

  TokenReader reader_;
  QueryParser queries_;
};

}  // namespace velmar::jet
