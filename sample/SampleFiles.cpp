#include "sample/SampleFiles.h"

#include <fcntl.h>
#include <stdio.h>

#include <cerrno>
#include <filesystem>

#include "platform/ado/ConnectionText.h"

namespace velmar::sample {
namespace {

ADODB::ConnectionText TextFor(const std::string& path) {
  ADODB::ConnectionText text;
  text.Set("Provider", "Microsoft.Jet.OLEDB.4.0").Set(ADODB::kDataSourceKey, path);
  return text;
}

}  // namespace

std::string PathIn(std::string_view folder, std::string_view file) {
  return (std::filesystem::path(folder) / file).string();
}

std::error_code MoveWithoutReplacing(const std::string& from, const std::string& to) {
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return {};
  if (errno != EINVAL && errno != ENOSYS) return {errno, std::generic_category()};
  // A file system that cannot tell: the look and the move are two steps then.
  if (std::filesystem::exists(std::filesystem::symlink_status(to)))
    return std::make_error_code(std::errc::file_exists);
  std::error_code failure;
  std::filesystem::rename(from, to, failure);
  return failure;
}

std::string ConnectionTextOf(const std::string& path, const std::string& password) {
  ADODB::ConnectionText text = TextFor(path);
  if (!password.empty()) text.Set(ADODB::kPasswordKey, password);
  return text.Text();
}

std::string ScratchConnectionTextOf(const std::string& path) {
  return TextFor(path).Set(ADODB::kScratchKey, "True").Text();
}

std::shared_ptr<ADODB::Connection> OpenDatabase(const std::string& path, const std::string& password) {
  auto connection = std::make_shared<ADODB::Connection>();
  connection->Open(ConnectionTextOf(path, password));
  return connection;
}

}  // namespace velmar::sample
