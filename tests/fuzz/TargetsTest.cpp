#include "fuzz/Targets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <random>
#include <string>
#include <vector>

#include "fuzz/AllocationWatch.h"
#include "fuzz/Violation.h"

namespace velmar::fuzz {

// Where the test library looks for it: its own form would be that of bytes.
static void PrintTo(const Target& target, std::ostream* out) {
  *out << target.name;
}

namespace {

using Text = std::vector<std::uint8_t>;

Text ReadAll(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<Text> Corpus(const Target& target) {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path(FUZZ_CORPUS_DIR) / target.name))
    paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  std::vector<Text> inputs;
  for (const auto& path : paths) inputs.push_back(ReadAll(path));
  return inputs;
}

/// In the form in which a dictionary writes it: "\x00" for what cannot be read.
std::string Shown(const Text& input) {
  constexpr const char* kDigits = "0123456789abcdef";
  std::string shown;
  for (const std::uint8_t byte : input) {
    if (byte >= 0x20 && byte < 0x7F && byte != '\\' && byte != '"') {
      shown += static_cast<char>(byte);
    } else {
      shown += std::string("\\x") + kDigits[byte >> 4] + kDigits[byte & 15];
    }
  }
  return shown;
}

void Try(const Target& target, const Text& input) {
  try {
    target.run(input);
  } catch (const std::exception& failure) {
    FAIL() << failure.what() << "\nwith the input \"" << Shown(input) << '"';
  }
}

/// Puts pieces of inputs together and damages them; the same sequence in every run and on every machine.
class Mutator {
 public:
  explicit Mutator(const std::vector<Text>& corpus) : corpus_(corpus) {}

  Text Next() {
    Text input = Any();
    for (std::size_t changes = 1 + Below(6); changes > 0; --changes) Change(input);
    return input;
  }

 private:
  std::size_t Below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }
  const Text& Any() { return corpus_[Below(corpus_.size())]; }

  void Change(Text& input) {
    const auto at = input.begin() + static_cast<std::ptrdiff_t>(Below(input.size() + 1));
    switch (Below(5)) {
      case 0:
        if (at != input.end()) *at = static_cast<std::uint8_t>(random_());
        break;
      case 1:
        input.insert(at, static_cast<std::uint8_t>(random_()));
        break;
      case 2:
        input.erase(at, at + static_cast<std::ptrdiff_t>(
                                 std::min(Below(12), static_cast<std::size_t>(input.end() - at))));
        break;
      case 3:
        input.resize(static_cast<std::size_t>(at - input.begin()));
        break;
      default: {
        const Text& other = Any();
        const std::size_t from = Below(other.size());
        const std::size_t count = std::min(Below(40), other.size() - from);
        const auto first = other.begin() + static_cast<std::ptrdiff_t>(from);
        input.insert(at, first, first + static_cast<std::ptrdiff_t>(count));
      }
    }
  }

  const std::vector<Text>& corpus_;
  std::mt19937 random_{20261123};
};

class Targets : public testing::TestWithParam<Target> {};

TEST_P(Targets, HoldForTheCorpus) {
  const std::vector<Text> corpus = Corpus(GetParam());
  EXPECT_GT(corpus.size(), 10u);
  for (const Text& input : corpus) Try(GetParam(), input);
}

TEST_P(Targets, HoldForMutations) {
  constexpr int kInputs = 1000;
  const std::vector<Text> corpus = Corpus(GetParam());
  Mutator mutator(corpus);
  for (int i = 0; i < kInputs && !HasFailure(); ++i) Try(GetParam(), mutator.Next());
}

INSTANTIATE_TEST_SUITE_P(All, Targets, testing::ValuesIn(kTargets),
                         [](const auto& chosen) { return std::string(chosen.param.name); });

TEST(AllocationWatch, TellsTheMostThatWasHeldAtOnce) {
  const AllocationWatch watch;
  // Calls of the operators, which no compiler leaves out as it may leave out an unused `new`.
  for (int i = 0; i < 10; ++i) ::operator delete(::operator new(100'000));
  EXPECT_GE(watch.Peak(), 100'000u);
  EXPECT_LT(watch.Peak(), 200'000u);
  void* const one = ::operator new(100'000);
  void* const two = ::operator new(150'000);
  ::operator delete(two);
  ::operator delete(one);
  EXPECT_GE(watch.Peak(), 250'000u);
}

}  // namespace
}  // namespace velmar::fuzz
