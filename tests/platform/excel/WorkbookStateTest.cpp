#include "platform/excel/WorkbookState.h"

#include <gtest/gtest.h>

#include "platform/excel/DamagedFile.h"

namespace velmar::excel {
namespace {

WorkbookState Sample() {
  WorkbookState state;
  state.sectorCount = 1000;
  state.headStart = 3;
  state.headSectors = 8;
  state.stringArea = {4, 1999, 42, {{0, 20}, {2, 25}, {3, 26}}};
  state.sheetArea = {9, 4444, 43, {{0, 40}, {8, 48}}};
  state.sheets = {{"Hoja1", 4000}};
  state.sheetRows = {12};
  state.sheetColumns = {0};
  state.columnLists = {{"Nombre"}};
  return state;
}

// Right digests alone do not make a state that may be believed.
TEST(WorkbookState, RefusesPlacesWhereNoWorkbookHasAny) {
  void (*const damages[])(WorkbookState&) = {
      [](WorkbookState& state) { state.headSectors = 0; },
      [](WorkbookState& state) { state.headSectors = 998; },
      [](WorkbookState& state) { state.headStart = 0xFFFFFFFF; },
      [](WorkbookState& state) { state.stringArea.sectors = 1001; },
      [](WorkbookState& state) { state.sheetArea = {}; },
      [](WorkbookState& state) { state.sheetArea.known[8] = 1000; },
      [](WorkbookState& state) { state.sheetArea.known[9] = 49; },
      [](WorkbookState& state) { state.sheets.back().offset = 4413; },
      [](WorkbookState& state) { state.sheets.back().offset = 0xFFFFFFF0; },
      [](WorkbookState& state) { state.sheetRows[0] = 0; },
      [](WorkbookState& state) { state.sheetRows[0] = 65'537; },
  };
  EXPECT_NO_THROW(WorkbookState::Decode(Sample().Encode(4096).Content()));
  for (const auto& damage : damages) {
    WorkbookState state = Sample();
    damage(state);
    EXPECT_THROW(WorkbookState::Decode(state.Encode(4096).Content()), DamagedFile) << &damage - damages;
  }
}

}  // namespace
}  // namespace velmar::excel
