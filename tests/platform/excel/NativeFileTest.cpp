#include "platform/excel/NativeFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <vector>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/excel/NativeFileLayer.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::excel {
namespace {

long NumberOf(const std::function<void()>& action) {
  try {
    action();
    return 0;
  } catch (const RuntimeError& error) {
    return error.Number();
  }
}

const std::vector<std::uint8_t> kBytes = {1, 2, 3};

TEST(NativeFile, ANewFileAppearsWholeOrNotAtAll) {
  const files::TemporaryFolder folder;
  const std::string path = folder / "libro.xls";
  const auto nameless = [&] { return FileLayer::Native().Create(path); };
  const auto temporary = [&]() -> std::unique_ptr<File> {
    const std::string beside = folder / "beside";
    const int descriptor = open(beside.c_str(), O_RDWR | O_CREAT | O_EXCL, 0666);
    return std::make_unique<NativeFile>(descriptor, path, NativeFile::Kind::kTemporary, beside);
  };
  for (const std::function<std::unique_ptr<File>()>& make :
       {std::function(nameless), std::function(temporary)}) {
    make()->Write(0, kBytes);
    EXPECT_TRUE(folder.Empty());
    {
      const auto file = make();
      file->Write(0, kBytes);
      EXPECT_FALSE(FileLayer::Native().Exists(path));
      file->Publish();
    }
    EXPECT_EQ(std::filesystem::file_size(path), kBytes.size());
    EXPECT_EQ(NumberOf([&] { make()->Publish(); }), kPermissionDenied) << "must not replace a file";
    EXPECT_EQ(std::filesystem::file_size(path), kBytes.size());
    std::filesystem::remove(path);
    EXPECT_TRUE(folder.Empty());
  }
}

TEST(NativeFile, OneWriterAtATime) {
  const files::TemporaryFolder folder;
  const std::string path = folder / "libro.xls";
  const auto made = FileLayer::Native().Create(path);
  made->Publish();
  const auto first = FileLayer::Native().OpenForWriting(path);
  const auto second = FileLayer::Native().OpenForWriting(path);
  first->Lock();
  EXPECT_EQ(NumberOf([&] { second->Lock(); }), kPermissionDenied);
}

TEST(NativeFile, SaysWhatIsWrong) {
  const files::TemporaryFolder folder;
  FileLayer& layer = FileLayer::Native();
  EXPECT_EQ(NumberOf([&] { layer.OpenForReading(folder / "no"); }), kFileNotFound);
  EXPECT_EQ(NumberOf([&] { layer.OpenForWriting(folder / "."); }), kPermissionDenied);
  EXPECT_EQ(NumberOf([&] { layer.OpenForReading(folder / "."); }), kPermissionDenied);
  EXPECT_EQ(NumberOf([&] { layer.Create(folder / "no/libro.xls"); }), kPathNotFound);
  const auto file = layer.Create(folder / "libro.xls");
  file->Write(0, kBytes);
  std::vector<std::uint8_t> more(4);
  EXPECT_EQ(NumberOf([&] { file->Read(0, more); }), kWorkbookFormat);
}

}  // namespace
}  // namespace velmar::excel
