#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ADODB {

inline constexpr std::string_view kDataSourceKey = "Data Source";
inline constexpr std::string_view kDataSourceNameKey = "Data Source Name";
inline constexpr std::string_view kPasswordKey = "Jet OLEDB:Database Password";
/// "True" on creation marks the file as scratch for its whole life: see docs/databases.md.
inline constexpr std::string_view kScratchKey = "Jet OLEDB:Scratch";

/// A connection string of the OLE DB form, "Provider=…;Data Source=…;Jet OLEDB:Database Password=…".
///
/// Names are matched regardless of case. A value may stand in apostrophes or double quotes, with the quote
/// doubled inside; quotes are needed around values that hold a semicolon or begin with a blank or a quote.
/// Keys that mean nothing here are kept. If a key comes twice, the last one counts.
class ConnectionText {
 public:
  ConnectionText() = default;
  /// RuntimeError (kInvalidProcedureCall) with the place for a key without "=" or an open quote.
  explicit ConnectionText(std::string_view text);

  std::optional<std::string> Find(std::string_view key) const;
  /// Find, or the empty text.
  std::string Value(std::string_view key) const;
  /// True for "True", "Yes", "Verdadero", "Sí", "-1" and "1", regardless of case.
  bool Flag(std::string_view key) const;
  /// The data source; RuntimeError (kInvalidProcedureCall) if there is none.
  std::string DataSource() const;

  ConnectionText& Set(std::string_view key, std::string_view value);
  /// The whole in one text, quoted where needed; parsing it gives the same keys and values.
  std::string Text() const;

 private:
  std::vector<std::pair<std::string, std::string>> entries_;
};

}  // namespace ADODB
