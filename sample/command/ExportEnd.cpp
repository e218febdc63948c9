#include "sample/command/ExportEnd.h"

namespace velmar::sample {

CommandError ExportEnd::Failure(const std::string& messages) const {
  std::string text = messages.empty() ? "El asistente se cerró sin exportar." : messages;
  const bool told = text.find(reason.Description()) != std::string::npos;
  if (reason.Number() != 0 && !told) text += "\nMotivo: " + reason.Description();
  // Rows that cannot be read are reported like none at all, but with a reason.
  const bool nothing = outcome == exporting::Outcome::kNoData && reason.Number() == 0;
  return {nothing ? kNothingToExport : kFailed, text};
}

}  // namespace velmar::sample
