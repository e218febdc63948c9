#pragma once

#include <array>
#include <string_view>

#include "fuzz/ConnectionTarget.h"
#include "fuzz/FilterTarget.h"
#include "fuzz/Input.h"
#include "fuzz/SqlTarget.h"
#include "fuzz/TemplateTarget.h"
#include "fuzz/WorkbookTarget.h"

namespace velmar::fuzz {

/// One thing that is fuzzed. `run` returns for every input, or throws Violation; `name` is that of its folder
/// below corpus/ and of its dictionary.
struct Target {
  std::string_view name;
  void (*run)(Bytes input);
};

inline constexpr std::array kTargets = {
    Target{"filter", FuzzFilter},     Target{"sql", FuzzSql},           Target{"connection", FuzzConnection},
    Target{"workbook", FuzzWorkbook}, Target{"template", FuzzTemplate},
};

}  // namespace velmar::fuzz
