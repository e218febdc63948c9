#include "query/DistinctList.h"

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Case.h"

namespace velmar {

namespace {

constexpr std::string_view kSeparator = ", ";

}  // namespace

bool DistinctList::Add(std::string_view name) {
  const std::string folded = text::FoldCase(name);
  if (!folded_.empty() && folded_.find(folded) != std::string::npos) return false;
  text_.append(name).append(kSeparator);
  folded_.append(folded).append(kSeparator);
  return true;
}

bool DistinctList::Holds(std::string_view name) const {
  return !folded_.empty() && folded_.find(text::FoldCase(name)) != std::string::npos;
}

std::string DistinctList::Joined() const {
  return std::string(WithoutLastSeparator(text_));
}

std::string_view WithoutLastSeparator(std::string_view list) {
  if (list.size() < kSeparator.size()) {
    throw RuntimeError(kInvalidProcedureCall, "La selección no tiene ningún campo. Añada por lo menos uno.",
                       "VelmarExportacion");
  }
  return list.substr(0, list.size() - kSeparator.size());
}

}  // namespace velmar
