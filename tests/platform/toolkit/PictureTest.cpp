#include "platform/toolkit/Picture.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/error/RuntimeError.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::toolkit {
namespace {

TEST(Picture, LoadsWhatIsAPictureAndNothingElse) {
  const files::TemporaryFolder folder;
  const std::string icon("\0\0\1\0\1\0", 6);
  std::ofstream(folder / "Quinvera.ico", std::ios::binary) << icon;
  folder.Touch("texto.ico");

  const Picture picture = Picture::Load(folder / "QUINVERA.ICO");
  EXPECT_EQ(picture.Bytes(), icon);
  EXPECT_EQ(picture.Path(), folder / "Quinvera.ico");
  EXPECT_TRUE(Picture::Load("").Empty());
  EXPECT_THROW(Picture::Load(folder / "texto.ico"), RuntimeError);
  EXPECT_THROW(Picture::Load(folder / "nada.ico"), RuntimeError);
}

}  // namespace
}  // namespace velmar::toolkit
