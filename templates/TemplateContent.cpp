#include "templates/TemplateContent.h"

#include "platform/text/Characters.h"

namespace velmar::templates {

std::string SortText(std::string_view tabla, std::string_view campo) {
  constexpr std::size_t kPrefixLength = 5;
  return text::Left(tabla, kPrefixLength).append(" ").append(campo);
}

}  // namespace velmar::templates
