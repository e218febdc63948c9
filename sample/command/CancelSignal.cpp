#include "sample/command/CancelSignal.h"

#include <cstddef>
#include <utility>

namespace velmar::sample {
namespace {

constexpr std::array<int, 2> kSignals = {SIGINT, SIGTERM};

volatile sig_atomic_t raised = 0;

extern "C" void Note(int /*signal*/) {
  raised = 1;
}

}  // namespace

CancelSignal::CancelSignal() {
  raised = 0;
  struct sigaction note {};
  note.sa_handler = Note;
  // Reads and writes in progress go on; the second signal finds the usual action.
  note.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  sigemptyset(&note.sa_mask);
  for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &note, &before_[i]);
}

CancelSignal::~CancelSignal() {
  for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &before_[i], nullptr);
}

bool CancelSignal::Raised() const noexcept {
  return raised != 0;
}

bool CancelSignal::Process() {
  if (!Raised() || !action_) return false;
  const auto action = std::exchange(action_, {});
  action();
  return true;
}

}  // namespace velmar::sample
