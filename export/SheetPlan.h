#pragma once

#include <string>

namespace velmar::exporting {

/// Blocks that go to one sheet.
inline constexpr int kBlocksPerSheet = 8;

/// The statements that take the blocks, in their order, to the sheets Hoja1, Hoja2 and so on of the target.
/// A sheet is made by the first of its blocks that could be written.
class SheetPlan {
 public:
  explicit SheetPlan(std::string strFichero) : strFichero_(std::move(strFichero)) {}

  /// Goes on to the block, to the next sheet where one begins, and gives its statement.
  std::string StatementFor(int block);
  /// The statement has been carried out.
  void Written() noexcept {
    sheetExists_ = true;
    fileExists_ = true;
  }
  /// True if anything has been written to the target.
  bool FileExists() const noexcept { return fileExists_; }

 private:
  std::string strFichero_;
  long lngHoja_ = 1;
  bool sheetExists_ = false;
  bool fileExists_ = false;
};

}  // namespace velmar::exporting
