#include "platform/jet/TypeOf.h"

#include <algorithm>

#include "platform/jet/FunctionTable.h"

namespace velmar::jet {
namespace {

// The one type that all of them have; a NULL fits every type.
ValueType Common(ValueType a, ValueType b) {
  if (a == b || b == ValueType::kNull) return a;
  if (a == ValueType::kNull) return b;
  return ValueType::kUnknown;
}

bool IsPlainNumber(ValueType type) {
  return IsNumeric(type) && type != ValueType::kDate;
}

ValueType SumOf(ValueType a, ValueType b) {
  if (a == ValueType::kText && b == ValueType::kText) return a;
  if (a == ValueType::kDate && IsPlainNumber(b)) return a;
  if (b == ValueType::kDate && IsPlainNumber(a)) return b;
  if (!IsPlainNumber(a) || !IsPlainNumber(b)) return ValueType::kUnknown;
  if (a == ValueType::kBit && b == ValueType::kBit) return ValueType::kInteger;
  if (a == ValueType::kBit || b == ValueType::kBit) return std::min(a, b);
  return std::max(a, b);
}

// Each operand is looked at once: its own type may cost a walk through all that stands below it.
ValueType TypeOfChain(const std::vector<Expression>& operands) {
  ValueType type = TypeOf(operands.front());
  for (std::size_t i = 1; i < operands.size(); ++i) type = SumOf(type, TypeOf(operands[i]));
  return type;
}

ValueType TypeOfOperation(const Operation& operation) {
  switch (operation.symbol) {
    case Operator::kNot:
    case Operator::kAnd:
    case Operator::kOr:
    case Operator::kXor:
    case Operator::kEqv:
    case Operator::kImp:
      return ValueType::kBit;
    case Operator::kConcatenate:
      return ValueType::kText;
    case Operator::kPlus:
      return TypeOfChain(operation.operands);
    case Operator::kMinus: {
      const ValueType left = TypeOf(operation.operands[0]);
      const ValueType right = TypeOf(operation.operands[1]);
      if (left == ValueType::kDate && right == ValueType::kDate) return ValueType::kDouble;
      const ValueType type = SumOf(left, right);
      return type == ValueType::kText ? ValueType::kUnknown : type;
    }
    case Operator::kNegate: {
      const ValueType type = TypeOf(operation.operands[0]);
      return IsPlainNumber(type) ? type : ValueType::kUnknown;
    }
    case Operator::kTimes: {
      const ValueType type = TypeOfChain(operation.operands);
      return IsPlainNumber(type) ? type : ValueType::kUnknown;
    }
    case Operator::kIntegerDivide:
    case Operator::kModulo:
      return ValueType::kInteger;
    case Operator::kDivide:
    case Operator::kPower:
      return ValueType::kDouble;
  }
  return ValueType::kUnknown;
}

ValueType TypeOfCall(const Call& call) {
  const Function* function = FindFunction(call.function);
  if (function == nullptr) return ValueType::kUnknown;
  const auto& arguments = call.arguments;
  if (function->ofArgument && !arguments.empty()) {
    const ValueType type = TypeOf(arguments[0]);
    return type == ValueType::kBit && function->form == FunctionForm::kScalar ? ValueType::kInteger : type;
  }
  if (function->form == FunctionForm::kIif && arguments.size() == 3) {
    return Common(TypeOf(arguments[1]), TypeOf(arguments[2]));
  }
  if (function->form == FunctionForm::kNz && arguments.size() == 2) {
    return Common(TypeOf(arguments[0]), TypeOf(arguments[1]));
  }
  if (function->form == FunctionForm::kSwitch) {
    ValueType type = ValueType::kNull;
    for (std::size_t i = 1; i < arguments.size(); i += 2) {
      const ValueType next = TypeOf(arguments[i]);
      if (next == ValueType::kNull) continue;
      if (type != ValueType::kNull && type != next) return ValueType::kUnknown;
      type = next;
    }
    return type;
  }
  return function->type;
}

struct Typer {
  ValueType operator()(const NullLiteral&) const { return ValueType::kNull; }
  ValueType operator()(const NumberLiteral& number) const {
    return number.digits.find_first_of(".eE") == std::string::npos ? ValueType::kInteger : ValueType::kDouble;
  }
  ValueType operator()(const TextLiteral&) const { return ValueType::kText; }
  ValueType operator()(const DateLiteral&) const { return ValueType::kDate; }
  ValueType operator()(const BooleanLiteral&) const { return ValueType::kBit; }
  ValueType operator()(const ColumnName&) const { return ValueType::kUnknown; }
  ValueType operator()(const RowPlace&) const { return ValueType::kInteger; }
  ValueType operator()(const Subquery&) const { return ValueType::kUnknown; }
  ValueType operator()(const Call& call) const { return TypeOfCall(call); }
  ValueType operator()(const Operation& operation) const { return TypeOfOperation(operation); }
  template <typename Test>
  ValueType operator()(const Test&) const {
    return ValueType::kBit;
  }
};

struct Operands {
  template <typename Node>
  const std::vector<Expression>& operator()(const Node& node) const {
    static const std::vector<Expression> kNone;
    if constexpr (requires { node.operands; }) {
      return node.operands;
    } else if constexpr (requires { node.arguments; }) {
      return node.arguments;
    } else {
      return kNone;
    }
  }
};

}  // namespace

std::string DeclaredType(ValueType type) {
  switch (type) {
    case ValueType::kText:
      return "TEXT";
    case ValueType::kInteger:
      return "INTEGER";
    case ValueType::kDouble:
      return "DOUBLE";
    case ValueType::kCurrency:
      return "CURRENCY";
    case ValueType::kBit:
      return "BIT";
    case ValueType::kDate:
      return "DATETIME";
    case ValueType::kUnknown:
    case ValueType::kNull:
      break;
  }
  return {};
}

ValueType TypeOf(const Expression& expression) {
  return std::visit(Typer{}, expression.node);
}

bool IsBareColumn(const Expression& expression) {
  return std::holds_alternative<ColumnName>(expression.node);
}

bool IsCondition(const Expression& expression) {
  if (const auto* operation = std::get_if<Operation>(&expression.node)) {
    return TypeOfOperation(*operation) == ValueType::kBit;
  }
  if (const auto* call = std::get_if<Call>(&expression.node)) {
    const Function* function = FindFunction(call->function);
    return function != nullptr && function->form == FunctionForm::kIsNull;
  }
  return !std::holds_alternative<BooleanLiteral>(expression.node) && TypeOf(expression) == ValueType::kBit;
}

const std::vector<Expression>& OperandsOf(const Expression& expression) {
  return std::visit(Operands{}, expression.node);
}

bool HasAggregate(const Expression& expression) {
  if (const auto* call = std::get_if<Call>(&expression.node)) {
    const Function* function = FindFunction(call->function);
    if (function != nullptr && IsAggregate(*function)) return true;
  }
  const auto& operands = OperandsOf(expression);
  return std::any_of(operands.begin(), operands.end(), HasAggregate);
}

bool FormsGroups(const Select& select) {
  if (!select.groupBy.empty() || select.having) return true;
  return std::any_of(select.items.begin(), select.items.end(), [](const SelectItem& item) {
    return item.expression && HasAggregate(*item.expression);
  });
}

}  // namespace velmar::jet
