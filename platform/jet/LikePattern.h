#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmar::jet {

/// A pattern of LIKE, compiled: % any characters, _ one character, [a-z] one of a set, [!a-z] one that is not
/// in it; a bracket without its closing one stands for itself. Letters match without regard to case and with
/// regard to accents.
class LikePattern {
 public:
  explicit LikePattern(std::string_view pattern);

  bool Matches(std::string_view text) const;

 private:
  enum class Kind { kCharacter, kOne, kMany, kSet };

  struct Range {
    char32_t first = 0;
    char32_t last = 0;
  };

  struct Piece {
    Kind kind = Kind::kCharacter;
    char32_t character = 0;  // case-folded
    bool negated = false;
    std::vector<Range> ranges;
  };

  static bool Fits(const Piece& piece, char32_t folded);
  std::size_t ReadSet(std::string_view pattern, std::size_t open);
  template <typename Next>
  bool Run(std::string_view text, const Next& next) const;

  std::vector<Piece> pieces_;
};

}  // namespace velmar::jet
