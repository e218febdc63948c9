#include "platform/toolkit/Picture.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

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
  const files::TemporaryFolder folder;
  const std::string icon("\0\0\1\0\1\0", 6);
  std::ofstream(folder / "Quinvera.ico", std::ios::binary) << icon;
  folder.Touch("texto.ico");

  const Picture picture = Picture::Load(folder / "QUINVERA.ICO");
  EXPECT_EQ(picture.Bytes(), icon);
  EXPECT_EQ(picture.Path(), folder / "Quinvera.ico");
  EXPECT_TRUE(Picture::Load("").Empty());
  EXPECT_EQ(FailureOf(folder / "texto.ico"), kInvalidPropertyValue);
  EXPECT_EQ(FailureOf(folder / "nada.ico"), kFileNotFound);
}

}  // namespace
}  // namespace velmar::toolkit
