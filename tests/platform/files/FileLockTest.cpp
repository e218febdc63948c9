#include "platform/files/FileLock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::files {
namespace {

TEST(FileLock, IsHeldByOneUntilItGoes) {
  TemporaryFolder folder;
  const std::string path = folder / "en curso.lock";
  auto lock = FileLock::TryTake(path);
  ASSERT_TRUE(lock);
  EXPECT_FALSE(FileLock::TryTake(path));
  EXPECT_TRUE(FileLock::IsHeld(path));
  std::optional<FileLock> other = std::move(lock);
  EXPECT_FALSE(FileLock::TryTake(path));
  other.reset();
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_FALSE(FileLock::IsHeld(path));
  EXPECT_TRUE(FileLock::TryTake(path));
}

TEST(FileLock, LeavesTheFileOfAnother) {
  TemporaryFolder folder;
  const std::string path = folder / "en curso.lock";
  auto lock = FileLock::TryTake(path);
  std::filesystem::remove(path);
  const auto other = FileLock::TryTake(path);
  ASSERT_TRUE(other);
  lock.reset();
  EXPECT_FALSE(FileLock::TryTake(path));
}

TEST(FileLock, DiesWithItsProcess) {
  TemporaryFolder folder;
  const std::string path = folder / "en curso.lock";
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  if (child == 0) {
    const auto lock = FileLock::TryTake(path);
    if (lock && write(ready[1], "x", 1) == 1) pause();
    _exit(1);
  }
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  EXPECT_FALSE(FileLock::TryTake(path));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_TRUE(FileLock::TryTake(path));
  close(ready[0]);
  close(ready[1]);
}

TEST(FileLock, SaysWhereItCannotBe) {
  TemporaryFolder folder;
  std::filesystem::create_directory(folder / "carpeta");
  for (const auto& [name, number] :
       {std::pair{"no hay/x.lock", long{kPathNotFound}}, {"carpeta", long{kDeviceIoError}}}) {
    SCOPED_TRACE(name);
    try {
      FileLock::TryTake(folder / name);
      ADD_FAILURE() << "taken";
    } catch (const RuntimeError& failure) {
      EXPECT_EQ(failure.Number(), number);
      EXPECT_NE(failure.Description().find(folder / name), std::string::npos) << failure.Description();
    }
  }
}

}  // namespace
}  // namespace velmar::files
