#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct sqlite3_context;
struct sqlite3_value;

namespace velmar::jet {

/// What the engine passes to one of this room's functions, and the way back for its result. Conversions
/// follow Jet; a value that cannot be converted is a RuntimeError, which becomes the statement's failure.
class Arguments {
 public:
  /// Lives for one call of the engine.
  Arguments(sqlite3_context* context, int count, sqlite3_value** values)
      : context_(context), count_(count), values_(values) {}

  int Count() const { return count_; }
  bool IsNull(int index) const;
  bool IsText(int index) const;
  bool IsInteger(int index) const;
  bool AnyNull() const;

  /// The value as text: numbers as Jet shows them, "10" and not "10.0". A number's text is kept in `scratch`.
  std::string_view Text(int index, std::string& scratch) const;
  double Number(int index) const;
  std::int64_t Integer(int index) const;
  /// A whole number, a half rounded to the even neighbour, within the limits; kOverflow beyond.
  std::int64_t Whole(int index, double least, double most) const;
  /// A date, from a number or from text with the day first.
  double Date(int index) const;

  void ReturnNull();
  void Return(std::string_view text);
  void Return(std::int64_t number);
  void Return(int number) { Return(static_cast<std::int64_t>(number)); }
  /// A number without a fraction goes back as a whole one, so that a text column shows it without decimals.
  void Return(double number);
  void Return(bool value) = delete;
  void ReturnBoolean(bool value) { Return(value ? -1 : 0); }

  sqlite3_context* Context() const { return context_; }
  sqlite3_value* Raw(int index) const;

 private:
  sqlite3_context* context_;
  int count_;
  sqlite3_value** values_;
};

enum class NullRule { kGivesNull, kIsTaken };

using FunctionBody = void (*)(Arguments&);

/// Runs a body for the engine and hands its failure over.
void RunFunction(FunctionBody body, NullRule rule, sqlite3_context* context, int count,
                 sqlite3_value** values);

using EngineCallback = void (*)(sqlite3_context*, int, sqlite3_value**);

/// The engine's callback for a body. With kGivesNull a NULL among the arguments gives NULL without a call.
template <FunctionBody Body, NullRule Rule = NullRule::kGivesNull>
void Callback(sqlite3_context* context, int count, sqlite3_value** values) {
  RunFunction(Body, Rule, context, count, values);
}

/// A function as the engine knows it.
struct EngineFunction {
  const char* name = nullptr;
  int count = 0;  ///< of arguments; -1 for any number
  EngineCallback callback = nullptr;
  bool constant = true;  ///< the same arguments always give the same result
};

}  // namespace velmar::jet
