#pragma once

namespace velmar::com {

/// Counts what keeps this library in memory: living objects and locks. Safe from any thread.
class Module {
 public:
  /// One thing more, for as long as this lives.
  class Use {
   public:
    Use() noexcept { Module::Enter(); }
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;
    ~Use() { Module::Leave(); }
  };

  static void Enter() noexcept;
  static void Leave() noexcept;
  /// True if nothing of it is in use.
  static bool CanUnload() noexcept;
};

}  // namespace velmar::com
