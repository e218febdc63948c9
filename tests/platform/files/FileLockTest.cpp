#include "platform/files/FileLock.h"

#include <gtest/gtest.h>

#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::files {
namespace {

TEST(FileLock, IsHeldByOneUntilItGoes) {
  const TemporaryFolder folder;
  folder.Touch("en curso.lock");  // as a killed process leaves it
  const std::string path = folder / "en curso.lock";
  EXPECT_FALSE(FileLock::IsHeld(path));
  auto lock = FileLock::TryTake(path);
  EXPECT_TRUE(FileLock::IsHeld(path));
  std::optional<FileLock> other = std::move(lock);
  EXPECT_FALSE(FileLock::TryTake(path));
  other.reset();
  EXPECT_FALSE(folder.Has("en curso.lock"));
  EXPECT_FALSE(FileLock::IsHeld(path));
  EXPECT_TRUE(FileLock::TryTake(path));
}

TEST(FileLock, LeavesTheFileOfAnother) {
  const TemporaryFolder folder;
  const std::string path = folder / "en curso.lock";
  auto lock = FileLock::TryTake(path);
  std::filesystem::remove(path);
  const auto other = FileLock::TryTake(path);
  ASSERT_TRUE(other);
  lock.reset();
  EXPECT_FALSE(FileLock::TryTake(path));
}

TEST(FileLock, IsRefusedWhereNoFileCanBe) {
  const TemporaryFolder folder;
  folder.Touch("carpeta/x");
  EXPECT_THROW(FileLock::TryTake(folder / "no hay/x.lock"), RuntimeError);
  EXPECT_THROW(FileLock::TryTake(folder / "carpeta"), RuntimeError);
}

}  // namespace
}  // namespace velmar::files
