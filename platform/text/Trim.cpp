#include "platform/text/Trim.h"

#include <algorithm>

namespace velmar::text {
namespace {

std::string_view WithoutLeading(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string_view WithoutTrailing(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

}  // namespace

std::string LTrim(std::string_view text) {
  return std::string(WithoutLeading(text));
}

std::string RTrim(std::string_view text) {
  return std::string(WithoutTrailing(text));
}

std::string Trim(std::string_view text) {
  return std::string(WithoutTrailing(WithoutLeading(text)));
}

}  // namespace velmar::text
