#pragma once

#include <string>
#include <string_view>

namespace velmar::toolkit {

/// A picture file as it stands on disk, for the toolkit to decode; empty for none.
class Picture {
 public:
  Picture() = default;

  /// Reads an icon, bitmap, PNG, GIF or JPEG file. The empty path gives the empty picture. The path is found
  /// regardless of case. Raises kFileNotFound if there is no such file, kDeviceIoError if it cannot be read,
  /// kInvalidPropertyValue if it holds no such picture.
  static Picture Load(std::string_view path);

  bool Empty() const noexcept { return bytes_.empty(); }
  /// The file's real path.
  const std::string& Path() const noexcept { return path_; }
  const std::string& Bytes() const noexcept { return bytes_; }

 private:
  std::string path_;
  std::string bytes_;
};

}  // namespace velmar::toolkit
