#include "platform/excel/SheetName.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <algorithm>

#include "platform/excel/BiffString.h"

namespace velmar::excel {

std::string SheetName::Problem(std::string_view name) {
  BiffString text;
  text.Assign(name);
  const std::u16string& units = text.Units();
  if (name.empty()) return "está vacío";
  if (units.size() > kLongest) return "tiene más de 31 caracteres";
  if (name.find_first_of("[]:*?/\\") != std::string_view::npos)
    return "contiene alguno de los caracteres [ ] : * ? / \\";
  if (name.front() == '\'' || name.back() == '\'') return "empieza o termina con un apóstrofo";
  if (units.find(u'\uFFFD') != std::u16string::npos ||
      std::any_of(name.begin(), name.end(), [](char c) { return c >= '\0' && c < ' '; }))
    return "contiene caracteres que no se pueden escribir";
  return {};
}

bool SheetName::Same(std::string_view left, std::string_view right) {
  BiffString l;
  BiffString r;
  l.Assign(left);
  r.Assign(right);
  UErrorCode status = U_ZERO_ERROR;
  return u_strCaseCompare(l.Units().data(), static_cast<int32_t>(l.Length()), r.Units().data(),
                          static_cast<int32_t>(r.Length()), U_FOLD_CASE_DEFAULT, &status) == 0;
}

}  // namespace velmar::excel
