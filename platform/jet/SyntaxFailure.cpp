#include "platform/jet/SyntaxFailure.h"

#include <cstddef>

#include "platform/text/Characters.h"

namespace velmar::jet {

RuntimeError FailureAt(std::string_view jetText, TextSpan span, const std::string& message, long number) {
  constexpr std::size_t kShown = 40;
  std::string place;
  if (span.offset >= jetText.size()) {
    place = "al final del texto";
  } else {
    const auto before = jetText.substr(0, span.offset);
    auto piece = std::string(jetText.substr(span.offset, span.length));
    if (text::Len(piece) > kShown) piece = text::Left(piece, kShown) + "…";
    place = "carácter " + std::to_string(text::Len(before) + 1) + ", «" + piece + "»";
  }
  return RuntimeError(number, message + " (" + place + ").", "Jet SQL", span);
}

}  // namespace velmar::jet
