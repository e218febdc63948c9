#pragma once

namespace velmar {

/// Keeps a flag true as long as it lives: a routine of a window raises one while it works, since it gives the
/// message loop turns in which the user can act again. The flag is borrowed and is false before.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
  ~Raised() { flag_ = false; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
};

}  // namespace velmar
