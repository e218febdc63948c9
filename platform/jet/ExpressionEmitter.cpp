#include "platform/jet/ExpressionEmitter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "platform/error/ErrorNumber.h"
#include "platform/jet/SyntaxFailure.h"
#include "platform/jet/TypeOf.h"

namespace velmar::jet {
namespace {

constexpr std::string_view kCollate = " COLLATE JET";
// The engine takes at most 127 arguments and 1000 levels.
constexpr std::size_t kMostArguments = 100;
constexpr std::size_t kLongestChain = 100;

bool MayBeText(const Expression& expression) {
  const ValueType type = TypeOf(expression);
  return type == ValueType::kText || type == ValueType::kUnknown;
}

bool AllText(const std::vector<Expression>& operands) {
  return std::all_of(operands.begin(), operands.end(),
                     [](const Expression& operand) { return TypeOf(operand) == ValueType::kText; });
}

std::string_view FunctionOf(Operator symbol) {
  switch (symbol) {
    case Operator::kMinus:
      return "jet_minus";
    case Operator::kTimes:
      return "jet_times";
    case Operator::kDivide:
      return "jet_divide";
    case Operator::kIntegerDivide:
      return "jet_intdivide";
    case Operator::kModulo:
      return "jet_mod";
    case Operator::kPower:
      return "jet_power";
    case Operator::kNegate:
      return "jet_negate";
    default:
      return "";
  }
}

std::string NumberText(double number) {
  std::array<char, 40> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
  return std::string(buffer.data(), result.ptr);
}

}  // namespace

void ExpressionEmitter::Value(const Expression& expression) {
  if (IsCondition(expression)) {
    writer_.Raw("-(");
    Condition(expression);
    writer_.Raw(")");
    return;
  }
  std::visit([&](const auto& node) { Emit(node, expression); }, expression.node);
}

void ExpressionEmitter::Condition(const Expression& expression) {
  std::visit([&](const auto& node) { Test(node, expression); }, expression.node);
}

void ExpressionEmitter::Collated(const Expression& expression) {
  Value(expression);
  if (!IsBareColumn(expression) && MayBeText(expression)) writer_.Raw(kCollate);
}

template <typename Node>
void ExpressionEmitter::Emit(const Node&, const Expression& expression) {
  Condition(expression);
}

void ExpressionEmitter::Emit(const NullLiteral&, const Expression&) {
  writer_.Raw("NULL");
}

void ExpressionEmitter::Emit(const NumberLiteral& number, const Expression&) {
  writer_.Raw(number.digits);
}

void ExpressionEmitter::Emit(const TextLiteral& literal, const Expression&) {
  writer_.Text(literal.value);
}

void ExpressionEmitter::Emit(const DateLiteral& literal, const Expression&) {
  writer_.Raw(NumberText(literal.date));
}

void ExpressionEmitter::Emit(const BooleanLiteral& literal, const Expression&) {
  writer_.Raw(literal.value ? "-1" : "0");
}

void ExpressionEmitter::Emit(const ColumnName& name, const Expression& expression) {
  writer_.From(expression.span);
  if (!name.table.empty()) writer_.Name(name.table).Raw(".");
  writer_.Name(name.column);
}

void ExpressionEmitter::Emit(const RowPlace& place, const Expression&) {
  if (!place.table.empty()) writer_.Name(place.table).Raw(".");
  writer_.Raw("_rowid_");
}

void ExpressionEmitter::Emit(const Subquery& subquery, const Expression&) {
  writer_.Raw("(");
  writeQuery_(*subquery.query);
  writer_.Raw(")");
}

void ExpressionEmitter::Emit(const Call& call, const Expression& expression) {
  const Function* function = FindFunction(call.function);
  if (function == nullptr) {
    throw FailureAt(jetText_, expression.span, "La función " + call.function + " no existe",
                    kUnknownFunction);
  }
  CheckArguments(*function, call, expression);
  writer_.From(expression.span);
  switch (function->form) {
    case FunctionForm::kScalar:
      EngineCall(function->engineName, call.arguments);
      return;
    case FunctionForm::kToText:
      AsText(call.arguments[0]);
      return;
    case FunctionForm::kAggregate:
    case FunctionForm::kExtreme:
    case FunctionForm::kPosition:
      Aggregate(*function, call, expression);
      return;
    case FunctionForm::kNz:
      writer_.Raw("coalesce(");
      Value(call.arguments[0]);
      writer_.Raw(", ");
      if (call.arguments.size() == 2) {
        Value(call.arguments[1]);
      } else {
        writer_.Raw("''");
      }
      writer_.Raw(")");
      return;
    case FunctionForm::kIif:
    case FunctionForm::kSwitch:
    case FunctionForm::kIsNull:
      Choice(call, expression);
      return;
  }
}

void ExpressionEmitter::CheckArguments(const Function& function, const Call& call,
                                       const Expression& expression) {
  if (call.star && (function.name != "Count")) {
    throw FailureAt(jetText_, expression.span, "Solo Count admite un asterisco");
  }
  std::size_t count = call.star ? 1 : call.arguments.size();
  if (function.form == FunctionForm::kPosition && count == 2) count = 1;  // the rows' place
  if (count >= function.least && count <= function.most) return;
  std::string wanted = std::to_string(function.least);
  if (function.most > kMostArguments) {
    wanted += " o más";
  } else if (function.most > function.least) {
    wanted = "de " + wanted + " a " + std::to_string(function.most);
  }
  throw FailureAt(
      jetText_, expression.span,
      "Número de argumentos incorrecto: la función " + std::string(function.name) + " lleva " + wanted);
}

void ExpressionEmitter::EngineCall(std::string_view name, const std::vector<Expression>& arguments) {
  writer_.Raw(name).Raw("(");
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (i > 0) writer_.Raw(", ");
    Value(arguments[i]);
  }
  writer_.Raw(")");
}

void ExpressionEmitter::AsText(const Expression& operand) {
  const ValueType type = TypeOf(operand);
  if (type == ValueType::kText) {
    Value(operand);
    return;
  }
  writer_.Raw(type == ValueType::kDate ? "jet_datetext(" : "jet_cstr(");
  Value(operand);
  writer_.Raw(")");
}

void ExpressionEmitter::Aggregate(const Function& function, const Call& call, const Expression& expression) {
  if (!aggregatesAllowed_) {
    throw FailureAt(
        jetText_, expression.span,
        "La función " + std::string(function.name) + " calcula sobre grupos de filas y no puede estar aquí");
  }
  const bool before = AllowAggregates(false);
  writer_.Raw(function.engineName).Raw("(");
  if (call.star) {
    writer_.Raw("*");
  } else if (function.form == FunctionForm::kExtreme) {
    Collated(call.arguments[0]);
  } else {
    Value(call.arguments[0]);
    if (call.arguments.size() == 2) {
      writer_.Raw(", ");
      Value(call.arguments[1]);
    }
  }
  writer_.Raw(")");
  AllowAggregates(before);
}

void ExpressionEmitter::Choice(const Call& call, const Expression& expression) {
  const auto& arguments = call.arguments;
  if (arguments.size() == 1) {
    Condition(expression);
    return;
  }
  const bool iif = arguments.size() == 3 && FindFunction(call.function)->form == FunctionForm::kIif;
  if (!iif && arguments.size() % 2 != 0) {
    throw FailureAt(jetText_, expression.span, "La función Switch lleva pares de condición y valor");
  }
  writer_.Raw("CASE");
  for (std::size_t i = 0; i + 1 < arguments.size(); i += 2) {
    writer_.Raw(" WHEN ");
    Condition(arguments[i]);
    writer_.Raw(" THEN ");
    Value(arguments[i + 1]);
  }
  if (iif) {
    writer_.Raw(" ELSE ");
    Value(arguments[2]);
  }
  writer_.Raw(" END");
}

void ExpressionEmitter::Emit(const Operation& operation, const Expression& expression) {
  const auto& operands = operation.operands;
  if (operation.symbol == Operator::kNegate) {
    if (const auto* number = std::get_if<NumberLiteral>(&operands[0].node);
        number != nullptr && number->digits.front() != '-') {
      writer_.Raw("-").Raw(number->digits);
      return;
    }
  }
  writer_.From(expression.span);
  if (operation.symbol == Operator::kPlus && !AllText(operands)) {
    Joined("jet_plus", operands, 0, operands.size());
  } else if (operation.symbol == Operator::kConcatenate) {
    Joined("jet_concat", operands, 0, operands.size());
  } else if (operation.symbol == Operator::kPlus) {
    writer_.Raw("(");
    for (std::size_t i = 0; i < operands.size(); ++i) {
      if (i > 0) writer_.Raw(" || ");
      Value(operands[i]);
    }
    writer_.Raw(")");
  } else {
    EngineCall(FunctionOf(operation.symbol), operands);
  }
}

// A chain of any length, the first part as an operand of the rest where it is too long for one call.
void ExpressionEmitter::Joined(std::string_view function, const std::vector<Expression>& operands,
                               std::size_t first, std::size_t last) {
  writer_.Raw(function).Raw("(");
  std::size_t next = first;
  if (last - first > kMostArguments) {
    next = last - kMostArguments + 1;
    Joined(function, operands, first, next);
    writer_.Raw(", ");
  }
  for (std::size_t i = next; i < last; ++i) {
    if (i > next) writer_.Raw(", ");
    if (TypeOf(operands[i]) == ValueType::kDate && function == "jet_concat") {
      AsText(operands[i]);
    } else {
      Value(operands[i]);
    }
  }
  writer_.Raw(")");
}

template <typename Node>
void ExpressionEmitter::Test(const Node&, const Expression& expression) {
  std::visit([&](const auto& node) { Emit(node, expression); }, expression.node);
}

void ExpressionEmitter::Test(const Call& call, const Expression& expression) {
  const Function* function = FindFunction(call.function);
  if (function == nullptr || function->form != FunctionForm::kIsNull) {
    Emit(call, expression);
    return;
  }
  CheckArguments(*function, call, expression);
  Value(call.arguments[0]);
  writer_.Raw(" IS NULL");
}

void ExpressionEmitter::Test(const Operation& operation, const Expression& expression) {
  const auto& operands = operation.operands;
  switch (operation.symbol) {
    case Operator::kAnd:
      Chain(" AND ", operands, 0, operands.size());
      return;
    case Operator::kOr:
      Chain(" OR ", operands, 0, operands.size());
      return;
    case Operator::kNot:
      writer_.Raw("NOT ");
      NotOperand(operands[0]);
      return;
    case Operator::kXor:
    case Operator::kEqv:
      writer_.Raw("(NOT ");
      NotOperand(operands[0]);
      writer_.Raw(operation.symbol == Operator::kXor ? ") <> (NOT " : ") = (NOT ");
      NotOperand(operands[1]);
      writer_.Raw(")");
      return;
    case Operator::kImp:
      writer_.Raw("NOT ");
      NotOperand(operands[0]);
      writer_.Raw(" OR ");
      Parenthesised(operands[1]);
      return;
    default:
      Emit(operation, expression);
  }
}

// AND and OR may be regrouped freely; halving a long chain keeps the engine's tree low.
void ExpressionEmitter::Chain(std::string_view word, const std::vector<Expression>& operands,
                              std::size_t first, std::size_t last) {
  if (last - first > kLongestChain) {
    const std::size_t middle = first + (last - first) / 2;
    writer_.Raw("(");
    Chain(word, operands, first, middle);
    writer_.Raw(")").Raw(word).Raw("(");
    Chain(word, operands, middle, last);
    writer_.Raw(")");
    return;
  }
  for (std::size_t i = first; i < last; ++i) {
    if (i > first) writer_.Raw(word);
    Parenthesised(operands[i]);
  }
}

// Logical operations within another one go into parentheses; tests need none.
void ExpressionEmitter::Parenthesised(const Expression& condition) {
  const bool nested = std::holds_alternative<Operation>(condition.node) && IsCondition(condition);
  if (nested) writer_.Raw("(");
  Condition(condition);
  if (nested) writer_.Raw(")");
}

void ExpressionEmitter::NotOperand(const Expression& condition) {
  const bool nested = IsCondition(condition);
  if (nested) writer_.Raw("(");
  Condition(condition);
  if (nested) writer_.Raw(")");
}

void ExpressionEmitter::CheckTypes(const Expression& left, const Expression& right) {
  const ValueType leftType = TypeOf(left);
  const ValueType rightType = TypeOf(right);
  const bool mismatch = (leftType == ValueType::kText && IsNumeric(rightType)) ||
                        (rightType == ValueType::kText && IsNumeric(leftType));
  if (mismatch) {
    throw FailureAt(jetText_, right.span,
                    "No coinciden los tipos: se compara un texto con un número o una fecha", kTypeMismatch);
  }
}

// The left side of a comparison. A column brings its own collation, on whichever side it stands.
void ExpressionEmitter::Left(const Expression& left, bool otherIsColumn) {
  if (otherIsColumn) {
    Value(left);
  } else {
    Collated(left);
  }
}

void ExpressionEmitter::Test(const Comparison& comparison, const Expression&) {
  if (comparison.quantifier != Quantifier::kNone) {
    Quantified(comparison);
    return;
  }
  const Expression& left = comparison.operands[0];
  const Expression& right = comparison.operands[1];
  CheckTypes(left, right);
  Left(left, IsBareColumn(right) || !MayBeText(right));
  writer_.Raw(" ").Raw(comparison.symbol).Raw(" ");
  Value(right);
}

// Three-valued: ANY is true if one comparison is, ALL is false if one is, and both are unknown if it then
// depends on a NULL.
void ExpressionEmitter::Quantified(const Comparison& comparison) {
  const bool any = comparison.quantifier == Quantifier::kAny;
  writer_.Raw("(SELECT CASE WHEN ").Raw(any ? "max(\"[t]\") = 1 THEN 1" : "min(\"[t]\") = 0 THEN 0");
  writer_.Raw(" WHEN count(*) = count(\"[t]\") THEN ").Raw(any ? "0" : "1").Raw(" END FROM (SELECT ");
  Collated(comparison.operands[0]);
  writer_.Raw(" ")
      .Raw(comparison.symbol)
      .Raw(" \"[v]\" AS \"[t]\" FROM (SELECT NULL AS \"[v]\" WHERE 0 UNION ALL SELECT * FROM (");
  writeQuery_(*comparison.query);
  writer_.Raw("))))");
}

void ExpressionEmitter::Test(const LikeTest& test, const Expression&) {
  writer_.Raw(test.negated ? "NOT jet_like(" : "jet_like(");
  Value(test.operands[1]);
  writer_.Raw(", ");
  Value(test.operands[0]);
  writer_.Raw(")");
}

void ExpressionEmitter::Test(const BetweenTest& test, const Expression&) {
  CheckTypes(test.operands[0], test.operands[1]);
  CheckTypes(test.operands[0], test.operands[2]);
  Left(test.operands[0], !MayBeText(test.operands[1]) && !MayBeText(test.operands[2]));
  writer_.Raw(test.negated ? " NOT BETWEEN " : " BETWEEN ");
  Value(test.operands[1]);
  writer_.Raw(" AND ");
  Value(test.operands[2]);
}

void ExpressionEmitter::Test(const InTest& test, const Expression&) {
  Collated(test.operands[0]);
  writer_.Raw(test.negated ? " NOT IN (" : " IN (");
  if (test.query) {
    writeQuery_(*test.query);
  } else {
    for (std::size_t i = 1; i < test.operands.size(); ++i) {
      CheckTypes(test.operands[0], test.operands[i]);
      if (i > 1) writer_.Raw(", ");
      Value(test.operands[i]);
    }
  }
  writer_.Raw(")");
}

void ExpressionEmitter::Test(const NullTest& test, const Expression&) {
  Value(test.operands[0]);
  writer_.Raw(test.negated ? " IS NOT NULL" : " IS NULL");
}

void ExpressionEmitter::Test(const ExistsTest& test, const Expression&) {
  writer_.Raw("EXISTS (");
  writeQuery_(*test.query);
  writer_.Raw(")");
}

}  // namespace velmar::jet
