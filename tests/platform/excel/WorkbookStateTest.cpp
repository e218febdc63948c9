#include "platform/excel/WorkbookState.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

#include "platform/excel/DamagedFile.h"

namespace velmar::excel {
namespace {

WorkbookState Sample() {
  WorkbookState state;
  state.sectorCount = 1000;
  state.headStart = 3;
  state.headSectors = 8;
  state.textCells = 77;
  state.strings = 55;
  state.fillers = 1;
  state.sheetRows = {64'001, 12};
  state.digest = 0x123456789ABCDEF0;
  state.stringArea = {4, 1999, 42, {{0, 20}, {2, 25}, {3, 26}}};
  state.sheetArea = {9, 4444, 43, {{0, 40}, {8, 48}}};
  state.sheets = {{"Hoja1", 0}, {"Año", 4000}};
  state.sheetColumns = {0, 0};
  state.columnLists = {{"Nombre", "", "Población"}};
  for (std::uint32_t i = 0; i < 40; ++i) state.freeSectors.push_back(500 + i);
  return state;
}

TEST(WorkbookState, ComesBackAsItWas) {
  const ByteWriter bytes = Sample().Encode(4096);
  ASSERT_EQ(bytes.Size(), 4096u);
  const WorkbookState state = WorkbookState::Decode(bytes.Content());
  EXPECT_EQ(state.stringArea.known, Sample().stringArea.known);
  EXPECT_EQ(state.columnLists, Sample().columnLists);
  const ByteWriter again = state.Encode(4096);
  EXPECT_TRUE(std::equal(bytes.Content().begin(), bytes.Content().end(), again.Content().begin()));
}

TEST(WorkbookState, LeavesOutFreeSectorsThatFindNoRoom) {
  const WorkbookState state = Sample();
  const ByteWriter bytes = state.Encode(state.EncodedSize(3));
  EXPECT_EQ(WorkbookState::Decode(bytes.Content()).freeSectors, SectorMap::Places({500, 501, 502}));
}

TEST(WorkbookState, RefusesEveryChangedByteAndEveryShorterCopy) {
  const ByteWriter good = Sample().Encode(600);
  std::vector<std::uint8_t> bytes(good.Content().begin(), good.Content().end());
  for (std::uint8_t& byte : bytes) {
    byte ^= 1;
    EXPECT_THROW(WorkbookState::Decode(bytes), DamagedFile);
    byte ^= 1;
  }
  for (std::size_t size = 0; size < bytes.size(); ++size)
    EXPECT_THROW(WorkbookState::Decode(std::span(bytes).first(size)), DamagedFile);
}

TEST(WorkbookState, RefusesPlacesWhereNoWorkbookHasAny) {
  const std::vector<std::pair<const char*, std::function<void(WorkbookState&)>>> damages = {
      {"no head", [](WorkbookState& state) { state.headSectors = 0; }},
      {"a head beyond the end", [](WorkbookState& state) { state.headSectors = 998; }},
      {"a head that goes round", [](WorkbookState& state) { state.headStart = 0xFFFFFFFF; }},
      {"more strings than sectors", [](WorkbookState& state) { state.stringArea.sectors = 1001; }},
      {"a tail behind the strings", [](WorkbookState& state) { state.stringArea.tailOffset = 4 * 512; }},
      {"no sheet records", [](WorkbookState& state) { state.sheetArea = {}; }},
      {"a sector beyond the end", [](WorkbookState& state) { state.sheetArea.known[8] = 1000; }},
      {"a position beyond the area", [](WorkbookState& state) { state.sheetArea.known[9] = 49; }},
      {"a sheet behind its rows", [](WorkbookState& state) { state.sheets.back().offset = 4413; }},
      {"a sheet whose place goes round",
       [](WorkbookState& state) { state.sheets.back().offset = 0xFFFFFFF0; }},
      {"a sheet without a header row", [](WorkbookState& state) { state.sheetRows[0] = 0; }},
      {"more rows than a sheet has", [](WorkbookState& state) { state.sheetRows[1] = 65'537; }},
  };
  for (const auto& [name, damage] : damages) {
    SCOPED_TRACE(name);
    WorkbookState state = Sample();
    damage(state);
    EXPECT_THROW(WorkbookState::Decode(state.Encode(4096).Content()), DamagedFile);
  }
}

}  // namespace
}  // namespace velmar::excel
