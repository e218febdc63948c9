#pragma once

#include <cstddef>
#include <exception>
#include <optional>
#include <string>

namespace velmar {

/// Where in a text a failure lies. Both are counted in bytes of the UTF-8 text, from 0.
struct TextSpan {
  std::size_t offset = 0;
  std::size_t length = 0;
};

/// The one failure type of the system: a run-time error with a number, a description for people and the name
/// of the part that raised it. Failures of a statement's text also carry their place in it.
///
/// Numbers follow the platform's tradition: 53 file not found, 91 object not set, 3001 to 3999 the database
/// engine; see ErrorNumber.h for those that are raised here.
class RuntimeError : public std::exception {
 public:
  RuntimeError(long number, std::string description, std::string source = {},
               std::optional<TextSpan> span = std::nullopt);

  long Number() const noexcept { return number_; }
  const std::string& Description() const noexcept { return description_; }
  const std::string& Source() const noexcept { return source_; }
  /// The place in the text that was given, where the failure has one.
  const std::optional<TextSpan>& Span() const noexcept { return span_; }

  /// The description, for those who know only std::exception. Valid as long as this object.
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  long number_;
  std::string description_;
  std::string source_;
  std::optional<TextSpan> span_;
};

}  // namespace velmar
