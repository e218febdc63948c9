#pragma once

#include <functional>
#include <string>
#include <vector>

namespace velmar::reliability {

/// Work in a process of its own, since limits, mounts and locks would stay in this one.
///
/// `work` gives what is wrong; this gives the same, or a complaint that the process was ended.
std::vector<std::string> InChild(const std::function<std::vector<std::string>()>& work);

/// The same at the side of what this process does meanwhile.
class Child {
 public:
  explicit Child(const std::function<std::vector<std::string>(Child& self)>& work);
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;
  ~Child();

  /// In the child: tells the parent that it has come here, and waits until it may go on.
  void Pause();
  /// In the child: a line for `Finish`, which is kept even if the child is ended before it gives its result.
  void Report(std::string line);
  /// In the parent: waits until the child pauses. False if it has ended instead.
  bool WaitForPause();
  void GoOn();
  void Kill();
  /// Waits for its end and gives what it has reported, what it has found wrong and, last, that it was ended.
  std::vector<std::string> Finish();

 private:
  int pid_ = 0;
  int fromChild_[2] = {-1, -1};
  int toChild_[2] = {-1, -1};
  int result_[2] = {-1, -1};
};

/// The calling process gets a name space in which it may mount. False if the system does not allow it.
bool EnterOwnNamespace();

}  // namespace velmar::reliability
