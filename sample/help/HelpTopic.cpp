#include "sample/help/HelpTopic.h"

#include "sample/help/AsistentePage.h"

namespace velmar::sample {

std::optional<std::string_view> HelpTopic(long topic) {
  if (topic != kAssistantTopic && topic != kFirstTopic) return std::nullopt;
  return kAsistentePage;
}

}  // namespace velmar::sample
