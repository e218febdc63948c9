#include "platform/jet/NumberFunctions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Money.h"
#include "platform/jet/NumberText.h"
#include "platform/text/Collation.h"

namespace velmar::jet {
namespace {

constexpr long kDivisionByZero = 11;
constexpr double kMostInt16 = 32767;
constexpr double kMostInt32 = 2147483647;
constexpr double kMostCurrency = 922337203685477.0;

[[noreturn]] void FailDivision() {
  throw RuntimeError(kDivisionByZero, "División por cero en la consulta.", "Jet SQL");
}

using WholeOperation = bool (*)(std::int64_t, std::int64_t, std::int64_t*);
using RealOperation = double (*)(double, double);

bool AddWhole(std::int64_t a, std::int64_t b, std::int64_t* result) {
  return !__builtin_add_overflow(a, b, result);
}

bool SubtractWhole(std::int64_t a, std::int64_t b, std::int64_t* result) {
  return !__builtin_sub_overflow(a, b, result);
}

bool MultiplyWhole(std::int64_t a, std::int64_t b, std::int64_t* result) {
  return !__builtin_mul_overflow(a, b, result);
}

template <WholeOperation Whole, RealOperation Real>
void Arithmetic(Arguments& arguments) {
  std::int64_t whole = 0;
  if (arguments.IsInteger(0) && arguments.IsInteger(1) &&
      Whole(arguments.Integer(0), arguments.Integer(1), &whole)) {
    arguments.Return(whole);
  } else {
    arguments.Return(Real(arguments.Number(0), arguments.Number(1)));
  }
}

// One + after the other from the left: two texts are joined, all else is added up.
void Plus(Arguments& arguments) {
  std::string scratch;
  bool isText = arguments.IsText(0);
  std::string joined(isText ? arguments.Text(0, scratch) : std::string_view{});
  double sum = isText ? 0 : arguments.Number(0);
  bool isWhole = arguments.IsInteger(0);
  std::int64_t whole = isWhole ? arguments.Integer(0) : 0;
  for (int i = 1; i < arguments.Count(); ++i) {
    if (isText && arguments.IsText(i)) {
      joined += arguments.Text(i, scratch);
      continue;
    }
    if (isText) {
      const auto number = ReadNumber(joined);
      if (!number) {
        throw RuntimeError(
            kTypeMismatch,
            "No coinciden los tipos: + no puede sumar un número y «" + joined + "»; use & para unirlos.",
            "Jet SQL");
      }
      sum = *number;
      isText = isWhole = false;
    }
    if (isWhole && arguments.IsInteger(i) && AddWhole(whole, arguments.Integer(i), &whole)) {
      sum = static_cast<double>(whole);
      continue;
    }
    isWhole = false;
    sum = Add(sum, arguments.Number(i));
  }
  if (isText) {
    arguments.Return(joined);
  } else if (isWhole) {
    arguments.Return(whole);
  } else {
    arguments.Return(sum);
  }
}

void Divide(Arguments& arguments) {
  const double divisor = arguments.Number(1);
  if (divisor == 0) FailDivision();
  arguments.Return(arguments.Number(0) / divisor);
}

void DivideWhole(Arguments& arguments) {
  const std::int64_t divisor = arguments.Integer(1);
  if (divisor == 0) FailDivision();
  const std::int64_t dividend = arguments.Integer(0);
  if (divisor == -1) {
    arguments.Return(-static_cast<double>(dividend));
  } else {
    arguments.Return(dividend / divisor);
  }
}

void Modulo(Arguments& arguments) {
  const std::int64_t divisor = arguments.Integer(1);
  if (divisor == 0) FailDivision();
  arguments.Return(divisor == -1 ? std::int64_t{0} : arguments.Integer(0) % divisor);
}

void Power(Arguments& arguments) {
  const double result = std::pow(arguments.Number(0), arguments.Number(1));
  if (std::isnan(result)) {
    throw RuntimeError(kInvalidProcedureCall, "Argumento no válido: la potencia no existe.", "Jet SQL");
  }
  arguments.Return(result);
}

void Negate(Arguments& arguments) {
  arguments.Return(-arguments.Number(0));
}

void Abs(Arguments& arguments) {
  arguments.Return(std::fabs(arguments.Number(0)));
}

void Int(Arguments& arguments) {
  arguments.Return(std::floor(arguments.Number(0)));
}

void Fix(Arguments& arguments) {
  arguments.Return(std::trunc(arguments.Number(0)));
}

void Round(Arguments& arguments) {
  constexpr int kMostDecimals = 15;
  const std::int64_t decimals = arguments.Count() == 2 ? arguments.Integer(1) : 0;
  if (decimals < 0 || decimals > kMostDecimals) {
    throw RuntimeError(kInvalidProcedureCall, "Argumento no válido: Round admite de 0 a 15 decimales.",
                       "Jet SQL");
  }
  arguments.Return(RoundTo(arguments.Number(0), static_cast<int>(decimals), Half::kToEven));
}

void Sgn(Arguments& arguments) {
  const double number = arguments.Number(0);
  arguments.Return(number > 0 ? 1 : number < 0 ? -1 : 0);
}

void Sqr(Arguments& arguments) {
  const double number = arguments.Number(0);
  if (number < 0) {
    throw RuntimeError(kInvalidProcedureCall, "Argumento no válido: un número negativo no tiene raíz.",
                       "Jet SQL");
  }
  arguments.Return(std::sqrt(number));
}

void CLng(Arguments& arguments) {
  arguments.Return(arguments.Whole(0, -kMostInt32 - 1, kMostInt32));
}

void CInt(Arguments& arguments) {
  arguments.Return(arguments.Whole(0, -kMostInt16 - 1, kMostInt16));
}

void CByte(Arguments& arguments) {
  arguments.Return(arguments.Whole(0, 0, std::numeric_limits<unsigned char>::max()));
}

void CDbl(Arguments& arguments) {
  arguments.Return(arguments.Number(0));
}

void CSng(Arguments& arguments) {
  arguments.Return(static_cast<double>(static_cast<float>(arguments.Number(0))));
}

void CCur(Arguments& arguments) {
  const double number = arguments.Number(0);
  if (std::fabs(number) > kMostCurrency) {
    throw RuntimeError(kOverflow, "Desbordamiento: el importe no cabe en el tipo moneda.", "Jet SQL");
  }
  arguments.Return(RoundTo(number, 4, Half::kToEven));
}

void CBool(Arguments& arguments) {
  std::string scratch;
  const std::string_view shown = arguments.Text(0, scratch);
  const auto isOneOf = [shown](std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [shown](auto word) { return text::EqualText(word, shown); });
  };
  if (isOneOf({"True", "Verdadero", "Sí"})) {
    arguments.ReturnBoolean(true);
  } else if (isOneOf({"False", "Falso", "No"})) {
    arguments.ReturnBoolean(false);
  } else {
    arguments.ReturnBoolean(arguments.Number(0) != 0);
  }
}

void IsNumeric(Arguments& arguments) {
  std::string scratch;
  const bool numeric =
      arguments.IsText(0) ? ReadNumber(arguments.Text(0, scratch)).has_value() : !arguments.IsNull(0);
  arguments.ReturnBoolean(numeric);
}

constexpr auto kFunctions = std::to_array<EngineFunction>({
    {"jet_plus", -1, Callback<Plus>},
    {"jet_minus", 2, Callback<Arithmetic<SubtractWhole, Subtract>>},
    {"jet_times", 2, Callback<Arithmetic<MultiplyWhole, Multiply>>},
    {"jet_divide", 2, Callback<Divide>},
    {"jet_intdivide", 2, Callback<DivideWhole>},
    {"jet_mod", 2, Callback<Modulo>},
    {"jet_power", 2, Callback<Power>},
    {"jet_negate", 1, Callback<Negate>},
    {"jet_abs", 1, Callback<Abs>},
    {"jet_int", 1, Callback<Int>},
    {"jet_fix", 1, Callback<Fix>},
    {"jet_round", -1, Callback<Round>},
    {"jet_sgn", 1, Callback<Sgn>},
    {"jet_sqr", 1, Callback<Sqr>},
    {"jet_clng", 1, Callback<CLng>},
    {"jet_cint", 1, Callback<CInt>},
    {"jet_cbyte", 1, Callback<CByte>},
    {"jet_cdbl", 1, Callback<CDbl>},
    {"jet_csng", 1, Callback<CSng>},
    {"jet_ccur", 1, Callback<CCur>},
    {"jet_cbool", 1, Callback<CBool>},
    {"jet_isnumeric", 1, Callback<IsNumeric, NullRule::kIsTaken>},
});

}  // namespace

std::span<const EngineFunction> NumberFunctions() {
  return kFunctions;
}

}  // namespace velmar::jet
