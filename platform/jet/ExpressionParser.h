#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/jet/TokenReader.h"
#include "platform/jet/Tree.h"

namespace velmar::jet {

/// Reads expressions by precedence, weakest first: Imp, Eqv, Xor, Or, And, Not; comparisons, Like, In,
/// Between, Is; &; + and -; Mod; \; * and /; the sign; ^.
class ExpressionParser {
 public:
  using QueryReader = std::function<std::unique_ptr<Query>()>;

  /// `readQuery` reads a SELECT up to its closing parenthesis. The reader must outlive the parser.
  ExpressionParser(TokenReader& reader, QueryReader readQuery)
      : reader_(reader), readQuery_(std::move(readQuery)) {}

  /// Reads one expression and leaves what stands behind it.
  Expression Parse();

 private:
  Expression Binary(int weakest);
  Expression Prefix(int weakest);
  Expression Primary();
  Expression Parenthesised();
  Expression Name();
  Expression Function();
  bool ReadTest(Expression& left, std::size_t start);
  bool ReadComparison(Expression& left, std::size_t start);
  void ReadIn(Expression& left, std::size_t start, bool negated);
  std::unique_ptr<Query> ReadSubquery();
  Expression Finish(Expression expression, std::size_t start, int heightBelow);

  TokenReader& reader_;
  QueryReader readQuery_;
  int tallest_ = 0;  // of the expressions read since the current subquery began
};

}  // namespace velmar::jet
