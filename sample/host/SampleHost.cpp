#include "sample/host/SampleHost.h"

#include <string_view>
#include <utility>

#include "platform/ado/Connection.h"
#include "sample/SampleFiles.h"

namespace velmar::sample {

namespace {

/// A folder as hosts give it: without a separator at its end.
std::string WithoutSeparator(std::string folder) {
  while (folder.size() > 1 && (folder.back() == '/' || folder.back() == '\\')) folder.pop_back();
  return folder;
}

std::shared_ptr<ADODB::Connection> ClosedConnection(const std::string& folder, std::string_view file,
                                                    const std::string& password) {
  return std::make_shared<ADODB::Connection>(ConnectionTextOf(PathIn(folder, file), password));
}

}  // namespace

SampleHost::SampleHost(Settings settings) : settings_(std::move(settings)) {
  settings_.folder = WithoutSeparator(std::move(settings_.folder));
  main_ = ClosedConnection(settings_.folder, kMainFile, settings_.mainPassword);
  reports_ = ClosedConnection(settings_.folder, kReportsFile, settings_.reportsPassword);
}

}  // namespace velmar::sample
