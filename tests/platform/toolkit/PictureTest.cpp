#include "platform/toolkit/Picture.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::toolkit {
namespace {

long FailureOf(const std::string& path) {
  try {
    Picture::Load(path);
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(Picture, LoadsWhatIsAPictureAndNothingElse) {
  const auto folder =
      std::filesystem::path(testing::TempDir()) / ("velmar-picture-" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  const std::string icon("\0\0\1\0\1\0", 6);
  std::ofstream(folder / "Quinvera.ico", std::ios::binary) << icon;
  std::ofstream(folder / "texto.ico") << "hola";

  const Picture picture = Picture::Load((folder / "QUINVERA.ICO").string());
  EXPECT_EQ(picture.Bytes(), icon);
  EXPECT_EQ(picture.Path(), (folder / "Quinvera.ico").string());
  EXPECT_TRUE(Picture::Load("").Empty());
  EXPECT_EQ(FailureOf((folder / "texto.ico").string()), kInvalidPropertyValue);
  EXPECT_EQ(FailureOf((folder / "nada.ico").string()), kFileNotFound);
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace velmar::toolkit
