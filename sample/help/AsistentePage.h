#pragma once

#include <string_view>

namespace velmar::sample {

/// The page asistente.html.
extern const std::string_view kAsistentePage;

}  // namespace velmar::sample
