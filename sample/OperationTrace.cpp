#include "sample/OperationTrace.h"

#include <algorithm>
#include <cstdlib>
#include <iomanip>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::sample {
namespace {

/// In one line, and without what stands between ";pwd=" and the closing bracket.
std::string Shown(std::string_view subject) {
  constexpr std::string_view kMark = ";pwd=";
  std::string shown;
  for (std::size_t at = 0; at < subject.size();) {
    const std::size_t mark = subject.find(kMark, at);
    shown += subject.substr(at, mark == std::string_view::npos ? mark : mark + kMark.size() - at);
    if (mark == std::string_view::npos) break;
    shown += "***";
    at = std::min(subject.find(']', mark), subject.size());
  }
  std::replace_if(
      shown.begin(), shown.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
  return shown;
}

}  // namespace

OperationTrace::OperationTrace(const std::string& path) : file_(path, std::ios::app) {
  if (file_) return;
  throw RuntimeError(kPermissionDenied,
                     "No se puede escribir la traza en '" + path +
                         "'. Compruebe la carpeta y los permisos, o quite la variable VELMAR_TRAZA.",
                     "OperationTrace");
}

OperationTrace::~OperationTrace() {
  WriteRepeats();
}

std::unique_ptr<OperationTrace> OperationTrace::FromEnvironment() {
  const char* path = std::getenv("VELMAR_TRAZA");
  if (path == nullptr || *path == '\0') return nullptr;
  return std::make_unique<OperationTrace>(path);
}

void OperationTrace::Begins(Operation operation, std::string_view subject) {
  std::string line = std::string(NameOf(operation)) + '\t' + Shown(subject);
  if (line == line_) {
    ++repeats_;
    return;
  }
  WriteRepeats();
  const auto now = std::chrono::system_clock::now().time_since_epoch() % std::chrono::days(1);
  const auto time = std::chrono::hh_mm_ss(std::chrono::duration_cast<std::chrono::milliseconds>(now));
  file_ << std::setfill('0') << std::setw(2) << time.hours().count() << ':' << std::setw(2)
        << time.minutes().count() << ':' << std::setw(2) << time.seconds().count() << '.' << std::setw(3)
        << time.subseconds().count() << '\t' << line << std::endl;
  line_ = std::move(line);
}

void OperationTrace::WriteRepeats() {
  if (repeats_ > 0) file_ << "\t…\ty " << repeats_ << " veces más" << std::endl;
  repeats_ = 0;
}

}  // namespace velmar::sample
