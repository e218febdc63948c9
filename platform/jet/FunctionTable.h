#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "platform/jet/ValueType.h"

namespace velmar::jet {

/// How a call becomes SQLite text.
enum class FunctionForm {
  kScalar,     ///< a call of `engineName`
  kAggregate,  ///< a call of `engineName`, only where groups are formed
  kExtreme,    ///< an aggregate that compares: its argument carries the collation
  kPosition,   ///< an aggregate that depends on the order of the rows
  kIif,
  kSwitch,
  kIsNull,
  kNz,
  kToText
};

/// One function of the dialect.
struct Function {
  std::string_view name;
  std::size_t least = 0;  ///< number of arguments
  std::size_t most = 0;
  FunctionForm form = FunctionForm::kScalar;
  std::string_view engineName;
  ValueType type = ValueType::kUnknown;  ///< kUnknown: that of the first argument, if `ofArgument`
  bool ofArgument = false;
};

/// Finds a function by its name in any case, with or without the "$" of the forms that give text. Null if
/// there is none.
const Function* FindFunction(std::string_view name);

/// All of them, by family.
std::span<const Function> AllFunctions();

constexpr bool IsAggregate(const Function& function) {
  return function.form == FunctionForm::kAggregate || function.form == FunctionForm::kExtreme ||
         function.form == FunctionForm::kPosition;
}

}  // namespace velmar::jet
