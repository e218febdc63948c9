#pragma once

#include <optional>
#include <string>

#include "catalogue/FieldLookup.h"
#include "platform/text/Characters.h"
#include "platform/text/Search.h"
#include "query/Selection.h"

namespace velmar::testing {

/// The translation of filters as plain substitutions on one text, each search from the start of its step,
/// without a thought for time. Nothing for a filter that cannot be translated. Account fields are left out.
class ReferenceWhere {
 public:
  static std::optional<std::string> Build(const Selection& selection, const Collection<cCampos>& catalogue) {
    std::string all;
    for (const Selection::Row& row : selection.rows) {
      if (row.filtro.empty()) continue;
      const cCampos& field = FindField(catalogue, row.idCampo);
      ReferenceWhere filter(row.filtro);
      if (!filter.Groups(field.LiteralCampoWHERE()) || !filter.MarksInOrder() || !filter.Tokens())
        return std::nullopt;
      if (field.NombreInternoCampo().find(".fecha") != std::string::npos) filter.Dates();
      filter.Substitute("`", field.CaracterValorCampo());
      filter.Substitute("´", field.CaracterValorCampo());
      all += filter.t_ + " AND ";
    }
    if (all.empty()) return all;
    ReferenceWhere whole(all);
    whole.Substitute("[Entre]", " BETWEEN ");
    whole.Substitute("[Igual a uno de]", " IN ");
    whole.Substitute("[Y]", " AND ");
    whole.Substitute("[O]", " OR ");
    return " WHERE " + whole.t_.substr(0, whole.t_.size() - 4);
  }

 private:
  explicit ReferenceWhere(std::string text) : t_(std::move(text)) {}

  void Substitute(const std::string& find, const std::string& with) {
    for (std::size_t at = t_.find(find); at != t_.npos; at = t_.find(find, at + with.size())) {
      t_.replace(at, find.size(), with);
    }
  }

  bool Groups(const std::string& literal) {
    std::size_t from = 0;
    for (;;) {
      const std::size_t open = t_.find('{', from);
      const std::size_t close = t_.find('}', from);
      if (close < open) return false;
      if (open == t_.npos) return true;
      if (close == t_.npos) return false;
      t_ = t_.substr(0, open) + literal + t_.substr(close + 1);
      from = open + literal.size();
    }
  }

  bool MarksInOrder() const {
    bool open = false;
    for (std::size_t at = 0; at < t_.size(); ++at) {
      if (t_.compare(at, 1, "`") == 0) open = true;
      if (t_.compare(at, 2, "´") == 0) {
        if (!open) return false;
        open = false;
      }
    }
    return true;
  }

  bool Tokens() {
    for (std::size_t i = t_.find('['); i != t_.npos; i = t_.find('[', i + 1)) {
      const std::size_t end = t_.find(']', i);
      if (end == t_.npos) return false;
      const std::string token = t_.substr(i, end - i + 1);
      if (token == "[Y]" || token == "[O]" || token == "[Entre]" || token == "[Igual a uno de]") continue;
      t_.replace(i, token.size(), " LIKE ");
      const std::size_t open = t_.find("`", i);
      const std::size_t close = t_.find("´", i);
      if (open == t_.npos || close == t_.npos || close < open) return false;
      const std::string inner = t_.substr(open + 1, close - open - 1);
      std::string value;
      if (token == "[Comience por]") {
        value = "`" + inner + "%´";
      } else if (token == "[Que contenga]") {
        value = "`%" + inner + "%´";
      } else if (token == "[Acabe en]") {
        value = "`%" + inner + "´";
      } else {
        return false;
      }
      t_.replace(open, close + 2 - open, value);
    }
    return true;
  }

  void Dates() {
    for (std::size_t p = text::InStr(1, t_, "`"); p != 0; p = text::InStr(p + 1, t_, "`")) {
      const std::string d = text::Mid(t_, p + 1, 10);
      t_ = text::Left(t_, p) + text::Right(d, 4) + text::Mid(d, 4, 2) + text::Left(d, 2) +
           text::Mid(t_, p + 1 + text::Len(d));
      if (++rounds_ > 1000) return;
    }
  }

  std::string t_;
  int rounds_ = 0;
};

}  // namespace velmar::testing
