#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ado/Variant.h"

struct sqlite3_stmt;

namespace velmar::jet {
struct Translation;
}

namespace ADODB {

class Database;

/// One prepared engine statement. Failures are RuntimeErrors in Spanish; those of a translated text carry the
/// place in the Jet text. The database, and the translation if there is one, must outlive it.
class Statement {
 public:
  Statement(Database& database, std::string_view sql, const velmar::jet::Translation* translation = nullptr);
  ~Statement();
  Statement(Statement&& other) noexcept;
  Statement& operator=(Statement&&) = delete;
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  /// True while there is a row.
  bool Step();
  /// Ready to run again; bound values stay.
  void Reset() noexcept;

  /// Parameters count from 1. Static texts must stay unchanged until the next Reset.
  void Bind(int parameter, std::int64_t value);
  void Bind(int parameter, double value);
  void Bind(int parameter, std::string_view text);
  void BindStatic(int parameter, std::string_view text);
  void BindNull(int parameter);
  void BindValue(int parameter, const Variant& value);

  enum class Kind { kNull, kWhole, kDouble, kText };

  /// Columns count from 0. Texts are valid until the next Step or Reset.
  int ColumnCount() const noexcept;
  std::string ColumnName(int column) const;
  /// The declared type of the column that this one comes from, empty for an expression.
  std::string DeclaredType(int column) const;
  /// Table and column that this one comes from unchanged, empty for an expression.
  std::string OriginTable(int column) const;
  std::string OriginColumn(int column) const;
  Kind KindOf(int column) const noexcept;
  /// True for a text, false for bytes of no kind too, which KindOf takes for one.
  bool IsText(int column) const noexcept;
  std::int64_t Long(int column) const noexcept;
  double Double(int column) const noexcept;
  std::string_view Text(int column) const noexcept;

 private:
  void Require(int code) const;

  Database* database_;
  const velmar::jet::Translation* translation_;
  sqlite3_stmt* handle_ = nullptr;
};

/// The value of a column of the current row: Null, whole number, double or text.
Variant ValueOf(const Statement& statement, int column);

}  // namespace ADODB
