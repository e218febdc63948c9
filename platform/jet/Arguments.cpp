#include "platform/jet/Arguments.h"

#include <sqlite3.h>

#include <cmath>
#include <exception>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Dates.h"
#include "platform/jet/Engine.h"
#include "platform/jet/Money.h"
#include "platform/jet/NumberText.h"
#include "platform/text/Characters.h"
#include "platform/text/Numbers.h"

namespace velmar::jet {
namespace {

std::string Shown(std::string_view value) {
  constexpr std::size_t kShown = 40;
  return text::Len(value) > kShown ? text::Left(value, kShown) + "…" : std::string(value);
}

std::string_view TextOf(sqlite3_value* value) {
  const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
  return bytes == nullptr ? std::string_view{}
                          : std::string_view(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

}  // namespace

sqlite3_value* Arguments::Raw(int index) const {
  return values_[index];
}

bool Arguments::IsNull(int index) const {
  return sqlite3_value_type(Raw(index)) == SQLITE_NULL;
}

bool Arguments::IsText(int index) const {
  const int type = sqlite3_value_type(Raw(index));
  return type == SQLITE_TEXT || type == SQLITE_BLOB;
}

bool Arguments::IsInteger(int index) const {
  return sqlite3_value_type(Raw(index)) == SQLITE_INTEGER;
}

bool Arguments::AnyNull() const {
  for (int i = 0; i < count_; ++i) {
    if (IsNull(i)) return true;
  }
  return false;
}

std::string_view Arguments::Text(int index, std::string& scratch) const {
  switch (sqlite3_value_type(Raw(index))) {
    case SQLITE_INTEGER:
      scratch = std::to_string(sqlite3_value_int64(Raw(index)));
      return scratch;
    case SQLITE_FLOAT:
      scratch = text::FromDouble(sqlite3_value_double(Raw(index)));
      return scratch;
    case SQLITE_NULL:
      return {};
    default:
      return TextOf(Raw(index));
  }
}

double Arguments::Number(int index) const {
  if (!IsText(index)) return sqlite3_value_double(Raw(index));
  const std::string_view value = TextOf(Raw(index));
  const auto number = ReadNumber(value);
  if (!number) {
    throw RuntimeError(kTypeMismatch, "No coinciden los tipos: «" + Shown(value) + "» no es un número.",
                       "Jet SQL");
  }
  return *number;
}

std::int64_t Arguments::Integer(int index) const {
  if (IsInteger(index)) return sqlite3_value_int64(Raw(index));
  constexpr double kMost = 9e18;
  return Whole(index, -kMost, kMost);
}

std::int64_t Arguments::Whole(int index, double least, double most) const {
  const double number = RoundTo(Number(index), 0, Half::kToEven);
  if (!(number >= least && number <= most)) {
    throw RuntimeError(
        kOverflow, "Desbordamiento: " + text::FromDouble(number) + " no cabe en el tipo pedido.", "Jet SQL");
  }
  return static_cast<std::int64_t>(number);
}

double Arguments::Date(int index) const {
  std::string scratch;
  const std::string_view value = Text(index, scratch);
  const auto date = IsText(index) ? ParseDate(value, DayOrder::kDayFirst) : Number(index);
  if (!date || !PartsOf(*date)) {
    throw RuntimeError(kTypeMismatch, "No coinciden los tipos: «" + Shown(value) + "» no es una fecha.",
                       "Jet SQL");
  }
  return *date;
}

void Arguments::ReturnNull() {
  sqlite3_result_null(context_);
}

void Arguments::Return(std::string_view text) {
  // A null pointer would be taken for NULL.
  const char* bytes = text.empty() ? "" : text.data();
  sqlite3_result_text64(context_, bytes, text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void Arguments::Return(std::int64_t number) {
  sqlite3_result_int64(context_, number);
}

void Arguments::Return(double number) {
  constexpr double kExact = 9e15;
  if (!std::isfinite(number)) throw RuntimeError(kOverflow, "Desbordamiento en un cálculo.", "Jet SQL");
  if (std::fabs(number) < kExact && std::trunc(number) == number) {
    sqlite3_result_int64(context_, static_cast<std::int64_t>(number));
  } else {
    sqlite3_result_double(context_, number);
  }
}

void RunFunction(FunctionBody body, NullRule rule, sqlite3_context* context, int count,
                 sqlite3_value** values) {
  Arguments arguments(context, count, values);
  try {
    if (rule == NullRule::kGivesNull && arguments.AnyNull()) {
      arguments.ReturnNull();
    } else {
      body(arguments);
    }
  } catch (const RuntimeError& error) {
    sqlite3_result_error(context, error.Description().c_str(), -1);
    sqlite3_result_error_code(context, error.Number() == kTypeMismatch ? SQLITE_MISMATCH : kFunctionFailure);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  } catch (const std::exception& error) {
    sqlite3_result_error(context, error.what(), -1);
  }
}

}  // namespace velmar::jet
