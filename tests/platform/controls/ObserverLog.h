#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/controls/Control.h"

namespace velmar::controls {

/// Writes down what an observer hears, and follows the number of rows by the paired notices alone.
class ObserverLog : public ControlObserver {
 public:
  /// `rows` tells how many rows the control has.
  ObserverLog(Control& control, std::function<std::size_t()> rows)
      : control_(control), rows_(std::move(rows)) {
    known_ = rows_();
    control_.Observe(*this);
  }
  ObserverLog(const ObserverLog&) = delete;
  ObserverLog& operator=(const ObserverLog&) = delete;
  ~ObserverLog() override { control_.Unobserve(*this); }

  std::vector<std::string> notices;

  void Changed(Control& /*control*/, Property what) override {
    EXPECT_FALSE(open_);
    if (what == Property::kSelection) notices.push_back("selection");
  }
  void ScrollRequested(Control& /*control*/, std::size_t row) override {
    notices.push_back("scroll " + std::to_string(row));
  }
  void AboutToInsert(Control& /*control*/, std::size_t first, std::size_t count) override {
    EXPECT_LE(first, known_);
    Open(count, "insert " + std::to_string(first) + "+" + std::to_string(count));
  }
  void Inserted(Control& /*control*/) override { Close(known_ + pending_); }
  void AboutToRemove(Control& /*control*/, std::size_t first, std::size_t count) override {
    EXPECT_LE(first + count, known_);
    Open(count, "remove " + std::to_string(first) + "+" + std::to_string(count));
  }
  void Removed(Control& /*control*/) override { Close(known_ - pending_); }
  void AboutToReset(Control& /*control*/) override { Open(0, "reset"); }
  void WasReset(Control& /*control*/) override { Close(rows_()); }
  void RowChanged(Control& /*control*/, std::size_t row) override {
    EXPECT_FALSE(open_);
    notices.push_back("row " + std::to_string(row));
  }

 private:
  void Open(std::size_t count, std::string notice) {
    EXPECT_FALSE(open_) << notice;
    EXPECT_EQ(rows_(), known_) << "told too late: " << notice;
    open_ = true;
    pending_ = count;
    notices.push_back(std::move(notice));
  }
  void Close(std::size_t expected) {
    EXPECT_TRUE(open_);
    EXPECT_EQ(rows_(), expected);
    open_ = false;
    known_ = expected;
  }

  Control& control_;
  std::function<std::size_t()> rows_;
  std::size_t known_ = 0;
  std::size_t pending_ = 0;
  bool open_ = false;
};

}  // namespace velmar::controls
