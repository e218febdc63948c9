#pragma once

#include <QWidget>
#include <algorithm>
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

#include "platform/controls/Control.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Toolkit.h"
#include "qt/toolkit/FormWindow.h"
#include "qt/views/UserEvents.h"

namespace velmar::qt {

/// Makes the views of a window: each is bound to its control, and what the user does there runs as an event
/// of the form's message loop. The window is borrowed.
class ViewMaker {
 public:
  explicit ViewMaker(FormWindow& window)
      : window_(window),
        events_([&loop = window.Shown().Surroundings().Loop()](const std::function<void()>& action) {
          loop.Dispatch(action);
        }) {}

  /// A view of the control in `parent`, nullptr for the window itself; Qt's parent owns it. `more` are
  /// further arguments of the view.
  template <typename View, typename Control, typename... More>
  View* Make(Control& control, QWidget* parent = nullptr, More&&... more) {
    auto* view =
        new View(control, events_, parent != nullptr ? parent : &window_, std::forward<More>(more)...);
    window_.Bind(control, *view);
    if (control.TakesFocus()) stops_.emplace_back(control.TabIndex(), view);
    return view;
  }

  /// To be called behind the last view: the window's own order of focus becomes the controls' tab order, and
  /// it opens with the focus where the form has it, or else on the first that can have it. Left to itself, a
  /// dialog would prefer its default button.
  void OrderByTab() {
    std::stable_sort(stops_.begin(), stops_.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (std::size_t i = 1; i < stops_.size(); ++i)
      QWidget::setTabOrder(stops_[i - 1].second, stops_[i].second);
    const auto first = std::find_if(stops_.begin(), stops_.end(), [](const auto& stop) {
      return stop.second->isEnabled() && !stop.second->isHidden();
    });
    if (window_.Shown().Scope().ActiveControl() != nullptr) {
      window_.FollowFocus();
    } else if (first != stops_.end()) {
      first->second->setFocus();
    }
  }

 private:
  FormWindow& window_;
  UserEvents events_;
  std::vector<std::pair<int, QWidget*>> stops_;
};

}  // namespace velmar::qt
