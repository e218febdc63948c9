#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/jet/NameMap.h"
#include "platform/jet/Translation.h"

namespace velmar::jet {

/// A table with its database's alias in front.
std::string QualifiedName(std::string_view alias, std::string_view table);

/// Collects SQLite text and notes which place of the Jet text each piece stands for. All quoting is here and
/// in QuoteIdentifier.
class SqlWriter {
 public:
  /// `names` may be null; it must outlive the writer.
  explicit SqlWriter(const NameMap* names) : names_(names) {}

  SqlWriter& Raw(std::string_view sql);
  /// A name that stands in the database already, in its stored spelling.
  SqlWriter& Name(std::string_view name);
  /// A name that is new or internal, as it is.
  SqlWriter& NewName(std::string_view name);
  SqlWriter& Text(std::string_view value);
  /// A table behind its database's alias, as it is.
  SqlWriter& Table(std::string_view alias, std::string_view table);
  /// What follows stands for this place of the Jet text.
  SqlWriter& From(TextSpan span);

  /// The stored spelling of a name.
  std::string Spelling(std::string_view name) const;

  std::string TakeText() { return std::move(sql_); }
  std::vector<SourceSpot> TakeSpots() { return std::move(spots_); }

 private:
  const NameMap* names_;
  std::string sql_;
  std::vector<SourceSpot> spots_;
};

}  // namespace velmar::jet
