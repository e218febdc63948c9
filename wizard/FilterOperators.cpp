#include "wizard/FilterOperators.h"

#include <algorithm>

namespace velmar::wizard {

namespace {

/// The text around an operator.
struct Form {
  std::string_view before;
  std::string_view behind;
};

constexpr Form kWord = {" [", "] `valor\u00B4 "};
constexpr Form kRange = {" [", "] `valor1\u00B4 [Y] `valor2\u00B4 "};
constexpr Form kList = {" [", "] (`valor1\u00B4, `valor2\u00B4, `valorN\u00B4) "};
constexpr Form kComparison = {" ", " `valor1\u00B4 "};
constexpr Form kConnector = {"[", "]"};
constexpr Form kPlain = {" ", " "};

struct Entry {
  std::string_view item;
  const Form& form;
};

constexpr std::array kEntries = {
    Entry{"Comience por", kWord}, Entry{"Que contenga", kWord},   Entry{"Acabe en", kWord},
    Entry{"Entre", kRange},       Entry{"Igual a uno de", kList}, Entry{"Y", kConnector},
    Entry{"O", kConnector},       Entry{"=", kComparison},        Entry{"<", kComparison},
    Entry{">", kComparison},      Entry{"<=", kComparison},       Entry{">=", kComparison},
    Entry{"<>", kComparison}};

}  // namespace

std::string OperatorText(std::string_view item) {
  const auto entry =
      std::find_if(kEntries.begin(), kEntries.end(), [&](const Entry& known) { return known.item == item; });
  const Form& form = entry == kEntries.end() ? kPlain : entry->form;
  return std::string(form.before).append(item).append(form.behind);
}

}  // namespace velmar::wizard
