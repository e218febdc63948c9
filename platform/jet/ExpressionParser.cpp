#include "platform/jet/ExpressionParser.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace velmar::jet {
namespace {

// What the engine accepts, less what the emitted forms add.
constexpr int kMostHeight = 300;

struct BinaryOperator {
  std::string_view word;
  Operator symbol;
  int strength;
  bool flat;  // a chain of them is one operation
};

constexpr int kNotStrength = 6;
constexpr int kTestStrength = 7;
constexpr int kConcatenateStrength = 8;
constexpr int kSignStrength = 13;
constexpr int kPowerStrength = 14;

constexpr auto kOperators = std::to_array<BinaryOperator>({
    {"IMP", Operator::kImp, 1, false},
    {"EQV", Operator::kEqv, 2, false},
    {"XOR", Operator::kXor, 3, false},
    {"OR", Operator::kOr, 4, true},
    {"AND", Operator::kAnd, 5, true},
    {"&", Operator::kConcatenate, kConcatenateStrength, true},
    {"+", Operator::kPlus, 9, true},
    {"-", Operator::kMinus, 9, false},
    {"MOD", Operator::kModulo, 10, false},
    {"\\", Operator::kIntegerDivide, 11, false},
    {"*", Operator::kTimes, 12, false},
    {"/", Operator::kDivide, 12, false},
    {"^", Operator::kPower, kPowerStrength, false},
});

const BinaryOperator* OperatorAt(const TokenReader& reader) {
  const auto found =
      std::find_if(kOperators.begin(), kOperators.end(),
                   [&reader](const BinaryOperator& candidate) { return reader.Is(candidate.word); });
  return found == kOperators.end() ? nullptr : &*found;
}

int HeightOf(const std::vector<Expression>& operands) {
  int height = 0;
  for (const Expression& operand : operands) height = std::max(height, operand.height);
  return height;
}

template <typename Node>
Expression Wrap(Node node) {
  Expression expression;
  expression.node = std::move(node);
  return expression;
}

template <typename... Operands>
std::vector<Expression> List(Operands&&... operands) {
  std::vector<Expression> list;
  list.reserve(sizeof...(operands));
  (list.push_back(std::forward<Operands>(operands)), ...);
  return list;
}

}  // namespace

Expression ExpressionParser::Parse() {
  const TokenReader::Nesting nesting(reader_);
  return Binary(1);
}

Expression ExpressionParser::Finish(Expression expression, std::size_t start, int heightBelow) {
  expression.span = reader_.SpanFrom(start);
  expression.height = heightBelow + 1;
  tallest_ = std::max(tallest_, expression.height);
  if (expression.height > kMostHeight) {
    reader_.Fail("La expresión encadena demasiadas operaciones; el máximo es " + std::to_string(kMostHeight),
                 expression.span);
  }
  return expression;
}

Expression ExpressionParser::Binary(int weakest) {
  const std::size_t start = reader_.Offset();
  Expression left = Prefix(weakest);
  for (;;) {
    if (weakest <= kTestStrength && ReadTest(left, start)) continue;
    const BinaryOperator* found = OperatorAt(reader_);
    if (found == nullptr || found->strength < weakest) return left;
    reader_.Take();
    // The operand of ^ may carry a sign: 2 ^ -1.
    Expression right = found->symbol == Operator::kPower && reader_.IsAny({"-", "+"})
                           ? Prefix(kSignStrength)
                           : Binary(found->strength + 1);
    auto* chain = std::get_if<Operation>(&left.node);
    if (found->flat && chain != nullptr && chain->symbol == found->symbol) {
      const int below = std::max(left.height - 1, right.height);
      chain->operands.push_back(std::move(right));
      left = Finish(std::move(left), start, below);
    } else {
      const int below = std::max(left.height, right.height);
      left = Finish(Wrap(Operation{found->symbol, List(std::move(left), std::move(right))}), start, below);
    }
  }
}

Expression ExpressionParser::Prefix(int weakest) {
  const TokenReader::Nesting nesting(reader_);
  const std::size_t start = reader_.Offset();
  if (weakest <= kNotStrength && reader_.Accept("NOT")) {
    Expression operand = Binary(kNotStrength);
    const int below = operand.height;
    return Finish(Wrap(Operation{Operator::kNot, List(std::move(operand))}), start, below);
  }
  if (reader_.Accept("-")) {
    Expression operand = Binary(kSignStrength);
    const int below = operand.height;
    return Finish(Wrap(Operation{Operator::kNegate, List(std::move(operand))}), start, below);
  }
  if (reader_.Accept("+")) return Binary(kSignStrength);
  return Primary();
}

bool ExpressionParser::ReadTest(Expression& left, std::size_t start) {
  if (ReadComparison(left, start)) return true;
  if (reader_.Accept("IS")) {
    const bool negated = reader_.Accept("NOT");
    reader_.Expect("NULL");
    const int below = left.height;
    left = Finish(Wrap(NullTest{negated, List(std::move(left))}), start, below);
    return true;
  }
  const bool negated = reader_.Is("NOT") && reader_.IsAny({"LIKE", "BETWEEN", "IN"}, 1);
  if (negated) reader_.Take();
  if (reader_.Accept("LIKE")) {
    Expression pattern = Binary(kConcatenateStrength);
    const int below = std::max(left.height, pattern.height);
    left = Finish(Wrap(LikeTest{negated, List(std::move(left), std::move(pattern))}), start, below);
    return true;
  }
  if (reader_.Accept("BETWEEN")) {
    Expression low = Binary(kConcatenateStrength);
    reader_.Expect("AND");
    Expression high = Binary(kConcatenateStrength);
    auto operands = List(std::move(left), std::move(low), std::move(high));
    const int below = HeightOf(operands);
    left = Finish(Wrap(BetweenTest{negated, std::move(operands)}), start, below);
    return true;
  }
  // Behind a FROM list, IN names a database; there it is followed by a text and not by a parenthesis.
  if (reader_.Is("IN") && (negated || reader_.Is("(", 1))) {
    reader_.Take();
    ReadIn(left, start, negated);
    return true;
  }
  return false;
}

bool ExpressionParser::ReadComparison(Expression& left, std::size_t start) {
  if (!reader_.IsAny({"=", "<>", "<", "<=", ">", ">="})) return false;
  Comparison comparison;
  comparison.symbol = reader_.Take().text;
  int below = left.height;
  comparison.operands.push_back(std::move(left));
  if (reader_.IsAny({"ALL", "ANY", "SOME"}) && reader_.Is("(", 1)) {
    comparison.quantifier = reader_.Is("ALL") ? Quantifier::kAll : Quantifier::kAny;
    reader_.Take();
    const int outside = std::exchange(tallest_, 0);
    comparison.query = ReadSubquery();
    below = std::max(below, tallest_);
    tallest_ = std::max(tallest_, outside);
  } else {
    comparison.operands.push_back(Binary(kConcatenateStrength));
    below = std::max(below, comparison.operands.back().height);
  }
  left = Finish(Wrap(std::move(comparison)), start, below);
  return true;
}

void ExpressionParser::ReadIn(Expression& left, std::size_t start, bool negated) {
  InTest test;
  test.negated = negated;
  int below = left.height;
  test.operands.push_back(std::move(left));
  if (reader_.Is("(") && reader_.Is("SELECT", 1)) {
    const int outside = std::exchange(tallest_, 0);
    test.query = ReadSubquery();
    below = std::max(below, tallest_);
    tallest_ = std::max(tallest_, outside);
  } else {
    reader_.Expect("(");
    do {
      test.operands.push_back(Parse());
    } while (reader_.Accept(","));
    reader_.Expect(")");
    below = HeightOf(test.operands);
  }
  left = Finish(Wrap(std::move(test)), start, below);
}

std::unique_ptr<Query> ExpressionParser::ReadSubquery() {
  const TokenReader::Nesting nesting(reader_);
  reader_.Expect("(");
  auto query = readQuery_();
  reader_.Expect(")");
  return query;
}

Expression ExpressionParser::Primary() {
  const std::size_t start = reader_.Offset();
  const Token& token = reader_.Peek();
  switch (token.kind) {
    case TokenKind::kNumber:
      return Finish(Wrap(NumberLiteral{reader_.Take().text}), start, 0);
    case TokenKind::kText:
      return Finish(Wrap(TextLiteral{reader_.Take().text}), start, 0);
    case TokenKind::kDate:
      return Finish(Wrap(DateLiteral{reader_.Take().date}), start, 0);
    case TokenKind::kBracketed:
      return Name();
    case TokenKind::kSymbol:
      if (reader_.Is("(")) return Parenthesised();
      reader_.FailExpected("un valor");
    case TokenKind::kEnd:
      reader_.FailExpected("un valor");
    case TokenKind::kName:
      break;
  }
  if (reader_.Is("EXISTS") && reader_.Is("(", 1)) {
    reader_.Take();
    const int outside = std::exchange(tallest_, 0);
    auto query = ReadSubquery();
    const int below = std::exchange(tallest_, std::max(tallest_, outside));
    return Finish(Wrap(ExistsTest{std::move(query)}), start, below);
  }
  if (reader_.Is("(", 1) && (reader_.IsName() || reader_.IsAny({"LEFT", "RIGHT", "ASC"}))) return Function();
  if (reader_.Accept("NULL")) return Finish(Wrap(NullLiteral{}), start, 0);
  if (reader_.Accept("TRUE")) return Finish(Wrap(BooleanLiteral{true}), start, 0);
  if (reader_.Accept("FALSE")) return Finish(Wrap(BooleanLiteral{false}), start, 0);
  return Name();
}

Expression ExpressionParser::Parenthesised() {
  const std::size_t start = reader_.Offset();
  if (reader_.Is("SELECT", 1)) {
    const int outside = std::exchange(tallest_, 0);
    auto query = ReadSubquery();
    const int below = std::exchange(tallest_, std::max(tallest_, outside));
    return Finish(Wrap(Subquery{std::move(query)}), start, below);
  }
  reader_.Expect("(");
  Expression inner = Parse();
  reader_.Expect(")");
  inner.span = reader_.SpanFrom(start);
  return inner;
}

Expression ExpressionParser::Name() {
  const std::size_t start = reader_.Offset();
  ColumnName name;
  name.column = reader_.ExpectName("un valor");
  if (reader_.Accept(".")) {
    name.table = std::move(name.column);
    name.column = reader_.ExpectMember("el nombre de un campo");
    if (reader_.Is(".")) reader_.FailExpected("un campo con el nombre de su tabla, sin nada delante de esta");
  }
  return Finish(Wrap(std::move(name)), start, 0);
}

Expression ExpressionParser::Function() {
  const std::size_t start = reader_.Offset();
  Call call;
  call.function = reader_.Take().text;
  reader_.Expect("(");
  if (reader_.Is("*") && reader_.Is(")", 1)) {
    reader_.Take();
    call.star = true;
  } else if (!reader_.Is(")")) {
    do {
      call.arguments.push_back(Parse());
    } while (reader_.Accept(","));
  }
  reader_.Expect(")");
  const int below = HeightOf(call.arguments);
  return Finish(Wrap(std::move(call)), start, below);
}

}  // namespace velmar::jet
