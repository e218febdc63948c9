#include "export/SheetPlan.h"

#include "export/WorkFiles.h"

namespace velmar::exporting {

std::string SheetPlan::StatementFor(int block) {
  if (block > 0 && block % kBlocksPerSheet == 0) {
    ++lngHoja_;
    sheetExists_ = false;
  }
  const std::string sheet =
      "[Excel 8.0;DATABASE=" + strFichero_ + "].[Hoja" + std::to_string(lngHoja_) + "] ";
  const std::string part = "[" + (kTable + std::to_string(block)) + "]";
  return sheetExists_ ? "INSERT INTO " + sheet + "SELECT * FROM " + part
                      : "SELECT * INTO " + sheet + "FROM " + part + " ";
}

}  // namespace velmar::exporting
