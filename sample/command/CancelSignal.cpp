#include "sample/command/CancelSignal.h"

#include <cerrno>
#include <cstddef>
#include <utility>

namespace velmar::sample {
namespace {

constexpr std::array<int, 2> kSignals = {SIGINT, SIGTERM};

volatile sig_atomic_t raised = 0;

extern "C" void Note(int /*signal*/) {
  const int before = errno;
  raised = 1;
  // Whichever comes next finds the usual action.
  for (const int kind : kSignals) {
    struct sigaction now {};
    if (sigaction(kind, nullptr, &now) == 0 && now.sa_handler == Note) signal(kind, SIG_DFL);
  }
  errno = before;
}

}  // namespace

CancelSignal::CancelSignal() {
  raised = 0;
  struct sigaction note {};
  note.sa_handler = Note;
  note.sa_flags = SA_RESTART;  // Reads and writes in progress go on.
  sigemptyset(&note.sa_mask);
  for (const int kind : kSignals) sigaddset(&note.sa_mask, kind);
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], nullptr, &before_[i]);
    // A program that is started in the background is not to hear the terminal's.
    if (before_[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &note, nullptr);
  }
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
