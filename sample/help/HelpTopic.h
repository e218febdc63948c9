#pragma once

#include <optional>
#include <string_view>

namespace velmar::sample {

/// The topic under which the wizard asks for its help.
inline constexpr long kAssistantTopic = 138;

/// The page of a help topic, HTML in UTF-8; nothing if there is no such topic.
std::optional<std::string_view> HelpTopic(long topic);

}  // namespace velmar::sample
