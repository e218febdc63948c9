#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

namespace ADODB {

/// A value of a field: Null, a Boolean, a whole number, a fractional number or a text (UTF-8).
///
/// A conversion that the value does not allow is a RuntimeError: kInvalidUseOfNull (94) for Null,
/// kTypeMismatch (13) for a text that is no number, kOverflow (6) for a number out of range.
class Variant {
 public:
  /// Null.
  Variant() noexcept = default;
  Variant(std::nullptr_t) noexcept {}              // NOLINT: values convert silently, as in a host
  Variant(bool value) noexcept : value_(value) {}  // NOLINT
  Variant(int value) noexcept : value_(static_cast<long long>(value)) {}   // NOLINT
  Variant(long value) noexcept : value_(static_cast<long long>(value)) {}  // NOLINT
  Variant(long long value) noexcept : value_(value) {}                     // NOLINT
  Variant(double value) noexcept : value_(value) {}                        // NOLINT
  Variant(std::string value) noexcept : value_(std::move(value)) {}        // NOLINT
  Variant(std::string_view value) : value_(std::string(value)) {}          // NOLINT
  Variant(const char* value) : value_(std::string(value)) {}               // NOLINT

  bool IsNull() const noexcept { return std::holds_alternative<std::monostate>(value_); }
  bool IsBoolean() const noexcept { return std::holds_alternative<bool>(value_); }
  bool IsWhole() const noexcept { return std::holds_alternative<long long>(value_); }
  bool IsDouble() const noexcept { return std::holds_alternative<double>(value_); }
  bool IsText() const noexcept { return std::holds_alternative<std::string>(value_); }

  /// Numbers as the engine shows them ("10", "0.3"), Booleans as "-1" and "0". Null is an error.
  std::string AsText() const;
  /// The text itself, only if IsText.
  const std::string& Text() const { return std::get<std::string>(value_); }
  /// As AsText, with Null as the empty text.
  std::string TextOrEmpty() const;
  /// Fractions are rounded to the nearest whole number, halves to the even one; True is -1.
  long long AsLong() const;
  double AsDouble() const;
  /// Any number but 0 is true.
  bool AsBoolean() const;

  /// Equal kind and equal value; texts are compared byte by byte.
  bool operator==(const Variant&) const = default;

 private:
  std::variant<std::monostate, bool, long long, double, std::string> value_;
};

}  // namespace ADODB
