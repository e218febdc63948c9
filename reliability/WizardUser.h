#pragma once

#include <string>
#include <vector>

namespace velmar::reliability {

/// Which export the user makes.
enum class Selection {
  kReceipts,     ///< accounts, dates, coded columns, a filter, a sort order, pending receipts
  kDeclaration,  ///< Modelo 182
};

/// What the user sees of one opening of the wizard.
struct Seen {
  /// The message that the export has ended well was shown.
  bool success = false;
  /// Texts of the boxes that tell a failure or a refusal, and the error out of the call last.
  std::vector<std::string> failures;

  bool Told(const std::string& piece) const;
  std::string Text() const;
};

/// Opens the wizard through the component's entry on the databases of the folder, selects fields, exports to
/// the file, and closes the window. Nobody has to be there, and nothing waits for ever.
Seen Export(const std::string& folder, const std::string& file, Selection selection);

}  // namespace velmar::reliability
