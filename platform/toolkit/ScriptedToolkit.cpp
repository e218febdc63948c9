#include "platform/toolkit/ScriptedToolkit.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "platform/controls/CommonDialog.h"
#include "platform/controls/Menu.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Search.h"
#include "platform/toolkit/Form.h"

namespace velmar::toolkit {
namespace {

using Kind = Record::Kind;

[[noreturn]] void Unanswered(const std::string& what) {
  throw RuntimeError(kInternalError, what + " y el guion no tiene respuesta. Añádala al guion.", "guion");
}

}  // namespace

ScriptedToolkit::ScriptedToolkit(const Clock& clock) : Toolkit(clock) {}

void ScriptedToolkit::Answer(MsgBoxResult result, std::string containing) {
  answers_.push_back({result, std::move(containing)});
}

void ScriptedToolkit::AlwaysAnswer(MsgBoxResult result, std::string containing) {
  standing_.push_back({result, std::move(containing)});
}

void ScriptedToolkit::AnswerFile(std::optional<std::string> path) {
  fileAnswers_.push_back(std::move(path));
}

void ScriptedToolkit::AnswerMenu(std::string caption) {
  menuAnswers_.push_back(std::move(caption));
}

void ScriptedToolkit::WhenShown(std::string form, Action action) {
  actions_.push_back({std::move(form), std::move(action)});
}

void ScriptedToolkit::WheneverShown(std::string form, Action action) {
  standingActions_.push_back({std::move(form), std::move(action)});
}

std::vector<Record> ScriptedToolkit::Records(Record::Kind kind) const {
  std::vector<Record> found;
  std::copy_if(records_.begin(), records_.end(), std::back_inserter(found),
               [kind](const Record& record) { return record.kind == kind; });
  return found;
}

void ScriptedToolkit::Beep() {
  records_.push_back({Kind::kBeep, {}, {}});
}

void ScriptedToolkit::Refreshing(Form& form) {
  records_.push_back({Kind::kRefresh, form.Name(), form.Caption()});
}

void ScriptedToolkit::LostFailure(const std::string& form) noexcept {
  records_.push_back({Kind::kLostFailure, form, {}});
}

std::optional<std::string> ScriptedToolkit::ChooseFileToSave(const controls::CommonDialog& dialog) {
  Record record{Kind::kFileDialog, dialog.Name(), dialog.DialogTitle(), dialog.Flags(), kCancel};
  if (fileAnswers_.empty()) {
    records_.push_back(record);
    Unanswered("Se pregunta por un archivo (" + dialog.DialogTitle() + ")");
  }
  std::optional<std::string> answer = std::move(fileAnswers_.front());
  fileAnswers_.pop_front();
  if (answer) record.result = kOk;
  records_.push_back(std::move(record));
  return answer;
}

void ScriptedToolkit::RunModal(Form& form) {
  records_.push_back({Kind::kWindow, form.Name(), form.Caption()});
  Loop().Dispatch([&form] { form.Activate(); });
  // With no user left, timers and queued events can still close the window. None of it goes on without end.
  constexpr int kPatience = 100000;
  int turns = 0;
  while (form.Visible()) {
    const bool played = PlayUser(form);
    if (played) DoEvents();
    if ((!played && !Loop().RunNext()) || ++turns > kPatience) {
      Unanswered("La ventana \"" + form.Name() + "\" espera al usuario");
    }
  }
}

bool ScriptedToolkit::PlayUser(Form& form) {
  const auto isFor = [&form](const WindowAction& action) { return action.form == form.Name(); };
  Action action;
  if (const auto next = std::find_if(actions_.begin(), actions_.end(), isFor); next != actions_.end()) {
    action = std::move(next->action);
    actions_.erase(next);
  } else if (const auto always = std::find_if(standingActions_.begin(), standingActions_.end(), isFor);
             always != standingActions_.end()) {
    action = always->action;
  }
  if (!action) return false;
  Loop().Dispatch([&] { action(form); });
  return true;
}

MsgBoxResult ScriptedToolkit::ShowBox(const std::string& text, long style, const std::string& title) {
  const std::vector<MsgBoxResult> buttons = MsgBoxButtons(style);
  const auto answer = IsQuestion(style) ? FindAnswer(text) : std::optional(kOk);
  const bool offered = answer && std::find(buttons.begin(), buttons.end(), *answer) != buttons.end();
  records_.push_back({Kind::kBox, text, title, style, offered ? long{*answer} : 0L});
  if (!offered) Unanswered("Se pregunta \"" + text + "\"");
  return *answer;
}

std::optional<MsgBoxResult> ScriptedToolkit::FindAnswer(const std::string& text) {
  const auto fits = [&text](const BoxAnswer& answer) { return text::Contains(text, answer.containing); };
  if (const auto next = std::find_if(answers_.begin(), answers_.end(), fits); next != answers_.end()) {
    const MsgBoxResult result = next->result;
    answers_.erase(next);
    return result;
  }
  const auto always = std::find_if(standing_.begin(), standing_.end(), fits);
  return always == standing_.end() ? std::nullopt : std::optional(always->result);
}

void ScriptedToolkit::PointerChanged(int shape) {
  records_.push_back({Kind::kPointer, {}, {}, shape});
}

int ScriptedToolkit::ChooseFromMenu(const controls::Menu& menu) {
  int chosen = -1;
  if (!menuAnswers_.empty()) {
    const std::string caption = std::move(menuAnswers_.front());
    menuAnswers_.pop_front();
    const auto& items = menu.Items();
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&](const controls::MenuItem& item) { return item.caption == caption; });
    if (found == items.end()) Unanswered("El menú \"" + menu.Name() + "\" no tiene \"" + caption + "\"");
    chosen = static_cast<int>(found - items.begin());
  }
  records_.push_back({Kind::kMenu, menu.Name(), {}, 0, chosen});
  return chosen;
}

void ScriptedToolkit::OpenHelp(const std::string& file, long topic) {
  records_.push_back({Kind::kHelp, file, {}, topic});
}

}  // namespace velmar::toolkit
