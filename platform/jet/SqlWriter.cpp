#include "platform/jet/SqlWriter.h"

#include <algorithm>

namespace velmar::jet {
namespace {

void AppendQuoted(std::string& sql, std::string_view value, char quote) {
  sql += quote;
  for (const char c : value) {
    sql += c;
    if (c == quote) sql += c;
  }
  sql += quote;
}

}  // namespace

std::string QuoteIdentifier(std::string_view name) {
  std::string quoted;
  AppendQuoted(quoted, name, '"');
  return quoted;
}

std::string QualifiedName(std::string_view alias, std::string_view table) {
  const bool plain = std::all_of(alias.begin(), alias.end(),
                                 [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); });
  std::string name;
  if (plain) {
    name = alias;
  } else {
    AppendQuoted(name, alias, '"');
  }
  name += '.';
  AppendQuoted(name, table, '"');
  return name;
}

SqlWriter& SqlWriter::Raw(std::string_view sql) {
  sql_ += sql;
  return *this;
}

SqlWriter& SqlWriter::Name(std::string_view name) {
  return NewName(Spelling(name));
}

SqlWriter& SqlWriter::NewName(std::string_view name) {
  AppendQuoted(sql_, name, '"');
  return *this;
}

SqlWriter& SqlWriter::Text(std::string_view value) {
  AppendQuoted(sql_, value, '\'');
  return *this;
}

SqlWriter& SqlWriter::Table(std::string_view alias, std::string_view table) {
  sql_ += QualifiedName(alias, table);
  return *this;
}

SqlWriter& SqlWriter::From(TextSpan span) {
  if (!spots_.empty() && spots_.back().sqlOffset == sql_.size()) spots_.pop_back();
  spots_.push_back({sql_.size(), span});
  return *this;
}

std::string SqlWriter::Spelling(std::string_view name) const {
  return names_ == nullptr ? std::string(name) : names_->Spelling(name);
}

}  // namespace velmar::jet
