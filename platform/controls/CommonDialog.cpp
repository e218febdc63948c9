#include "platform/controls/CommonDialog.h"

#include <cstddef>
#include <optional>

#include "platform/controls/FileChooser.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Search.h"
#include "platform/text/Trim.h"

namespace velmar::controls {

std::vector<CommonDialog::FileType> CommonDialog::FileTypes() const {
  std::vector<FileType> types;
  const std::vector<std::string> pieces = text::Split(filter_, "|");
  for (std::size_t i = 0; i + 1 < pieces.size(); i += 2) {
    types.push_back({text::Trim(pieces[i]), text::Trim(pieces[i + 1])});
  }
  return types;
}

std::string CommonDialog::WithDefaultExt(std::string name) const {
  if (name.empty() || defaultExt_.empty()) return name;
  const std::size_t separator = name.find_last_of("/\\");
  const std::size_t point = name.rfind('.');
  const std::size_t begin = separator == std::string::npos ? 0 : separator + 1;
  const bool hasExtension = point != std::string::npos && point > begin;
  if (begin == name.size() || hasExtension) return name;
  return name + "." + defaultExt_;
}

void CommonDialog::ShowSave() {
  if (chooser_ == nullptr) {
    throw RuntimeError(kObjectNotSet, "El diálogo \"" + Name() + "\" no pertenece a ninguna ventana.",
                       Name());
  }
  std::optional<std::string> chosen = chooser_->ChooseFileToSave(*this);
  if (chosen) {
    fileName_ = WithDefaultExt(std::move(*chosen));
  } else if (cancelError_) {
    throw RuntimeError(kDialogCancelled, "Se ha cancelado la elección del archivo.", Name());
  }
}

}  // namespace velmar::controls
