#pragma once

#include <optional>
#include <string_view>

namespace velmar::sample {

/// The topic under which the wizard asks for its help.
inline constexpr long kAssistantTopic = 138;
/// What a window without a topic of its own asks for: the page that the help opens with.
inline constexpr long kFirstTopic = 0;

/// The page of a help topic, HTML in UTF-8; nothing if there is no such topic.
std::optional<std::string_view> HelpTopic(long topic);

}  // namespace velmar::sample
