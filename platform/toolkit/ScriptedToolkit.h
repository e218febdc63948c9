#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/toolkit/Record.h"
#include "platform/toolkit/SteadyClock.h"
#include "platform/toolkit/Toolkit.h"

namespace velmar::toolkit {

/// A toolkit without a screen, for tests and unattended runs. It answers boxes, dialogs and menus from a
/// script, plays the user in windows, and records all that was shown. A question that the script does not
/// answer, and a window that waits for a user the script does not have, raise kInternalError; nothing ever
/// waits for ever.
class ScriptedToolkit : public Toolkit {
 public:
  using Action = std::function<void(Form& form)>;

  explicit ScriptedToolkit(const Clock& clock = SteadyClock::Instance());

  /// Answers the next question whose text contains `containing` (all do if it is empty). Answers are used
  /// once, in the order given. Boxes with an OK button alone need none.
  void Answer(MsgBoxResult result, std::string containing = {});
  /// As Answer, for every such question that no single answer is left for.
  void AlwaysAnswer(MsgBoxResult result, std::string containing = {});
  /// The path that the next file dialog gives; nothing to cancel it.
  void AnswerFile(std::optional<std::string> path);
  /// The caption of the entry to choose from the next menu; without one a menu is dismissed.
  void AnswerMenu(std::string caption);
  /// What the user does in the window of this name once it shows, in the order given; each only while it
  /// shows.
  void WhenShown(std::string form, Action action);
  /// Every window of this name, whenever the actions given by WhenShown are used up.
  void WheneverShown(std::string form, Action action);

  const std::vector<Record>& Records() const noexcept { return records_; }
  /// Those of one kind, in order.
  std::vector<Record> Records(Record::Kind kind) const;
  void ClearRecords() { records_.clear(); }

  void Beep() override;
  void Refreshing(Form& form) override;
  void LostFailure(const std::string& form) noexcept override;
  std::optional<std::string> ChooseFileToSave(const controls::CommonDialog& dialog) override;

 protected:
  void RunModal(Form& form) override;
  MsgBoxResult ShowBox(const std::string& text, long style, const std::string& title) override;
  void PointerChanged(int shape) override;
  int ChooseFromMenu(const controls::Menu& menu) override;
  void OpenHelp(const std::string& file, long topic) override;

 private:
  struct BoxAnswer {
    MsgBoxResult result;
    std::string containing;
  };
  struct WindowAction {
    std::string form;
    Action action;
  };

  std::optional<MsgBoxResult> FindAnswer(const std::string& text);
  bool PlayUser(Form& form);

  std::deque<BoxAnswer> answers_;
  std::vector<BoxAnswer> standing_;
  std::deque<std::optional<std::string>> fileAnswers_;
  std::deque<std::string> menuAnswers_;
  std::deque<WindowAction> actions_;
  std::vector<WindowAction> standingActions_;
  std::vector<Record> records_;
};

}  // namespace velmar::toolkit
