#include "platform/toolkit/Picture.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/files/Files.h"

namespace velmar::toolkit {
namespace {

using std::string_view_literals::operator""sv;

constexpr std::array kSignatures = {"\0\0\1\0"sv,          "\0\0\2\0"sv, "BM"sv,
                                    "\x89PNG\r\n\x1A\n"sv, "GIF8"sv,     "\xFF\xD8\xFF"sv};

}  // namespace

Picture Picture::Load(std::string_view path) {
  Picture picture;
  if (path.empty()) return picture;
  const auto found = files::Matches(path);
  const std::string name(path);
  if (found.empty()) {
    throw RuntimeError(kFileNotFound, "No existe la imagen \"" + name + "\".", "LoadPicture");
  }
  picture.path_ = found.front();
  std::ifstream file(picture.path_, std::ios::binary);
  picture.bytes_.assign(std::istreambuf_iterator<char>(file), {});
  if (!file.is_open() || file.bad()) {
    throw RuntimeError(kDeviceIoError, "No se puede leer la imagen \"" + name + "\".", "LoadPicture");
  }
  const bool known = std::any_of(kSignatures.begin(), kSignatures.end(), [&](std::string_view signature) {
    return std::string_view(picture.bytes_).substr(0, signature.size()) == signature;
  });
  if (!known) {
    throw RuntimeError(kInvalidPropertyValue,
                       "El fichero \"" + name + "\" no es una imagen (icono, BMP, PNG, GIF o JPEG).",
                       "LoadPicture");
  }
  return picture;
}

}  // namespace velmar::toolkit
