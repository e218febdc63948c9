#include "platform/excel/NativeFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <vector>

#include "platform/error/Failure.h"
#include "platform/excel/NativeFileLayer.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::excel {
namespace {

TEST(NativeFile, ANewFileAppearsWholeOrNotAtAll) {
  const files::TemporaryFolder folder;
  const std::string path = folder / "libro.xls";
  // What file systems get that know no files without a name.
  const auto temporary = [&]() -> std::unique_ptr<File> {
    const std::string beside = folder / "beside";
    const int descriptor = open(beside.c_str(), O_RDWR | O_CREAT | O_EXCL, 0666);
    return std::make_unique<NativeFile>(descriptor, path, NativeFile::Kind::kTemporary, beside);
  };
  const auto nameless = [&] { return FileLayer::Native().Create(path); };
  for (const std::function<std::unique_ptr<File>()>& make :
       {std::function(temporary), std::function(nameless)}) {
    make()->Write(0, std::vector<std::uint8_t>(3));
    EXPECT_TRUE(folder.Empty());
    {
      const auto file = make();
      file->Write(0, std::vector<std::uint8_t>(3));
      EXPECT_FALSE(FileLayer::Native().Exists(path));
      file->Publish();
    }
    EXPECT_EQ(FailureOf([&] { make()->Publish(); }), kPermissionDenied);
    EXPECT_EQ(std::filesystem::file_size(path), 3U) << "must not replace a file";
    std::filesystem::remove(path);
    EXPECT_TRUE(folder.Empty());
  }
}

TEST(NativeFile, OneWriterAtATime) {
  const files::TemporaryFolder folder;
  folder.Touch("libro.xls");
  const auto first = FileLayer::Native().OpenForWriting(folder / "libro.xls");
  const auto second = FileLayer::Native().OpenForWriting(folder / "libro.xls");
  first->Lock();
  EXPECT_EQ(FailureOf([&] { second->Lock(); }), kPermissionDenied);
}

}  // namespace
}  // namespace velmar::excel
