#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace velmar::sample {

/// The options of one command: "--name value" or "--name=value", and bare "--name" for a switch. An option
/// that the command does not know, comes twice or lacks its value is a UsageError, as is a word that is no
/// option.
class Arguments {
 public:
  struct Option {
    std::string_view name;  ///< with its two hyphens
    bool isSwitch = false;
  };

  Arguments(std::span<const std::string> words, std::span<const Option> known);

  bool Has(std::string_view name) const;
  std::optional<std::string> Find(std::string_view name) const;
  /// UsageError if the option was not given or is empty.
  std::string Require(std::string_view name) const;
  /// A whole number from low to high; UsageError for anything else.
  long long Number(std::string_view name, long long byDefault, long long low, long long high) const;

 private:
  std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace velmar::sample
