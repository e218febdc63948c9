#include "fuzz/WorkbookTarget.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "fuzz/AllocationWatch.h"
#include "fuzz/MemoryLayer.h"
#include "fuzz/Violation.h"
#include "platform/error/RuntimeError.h"
#include "platform/excel/Digest.h"
#include "platform/excel/Workbook.h"

namespace velmar::fuzz {

namespace {

using Content = MemoryLayer::Content;

constexpr const char* kPath = "libro.xls";
constexpr std::uint8_t kRawFile = 0xFF;
constexpr std::size_t kSector = 512;
constexpr std::size_t kLongestFile = 1 << 16;

std::string Text(std::size_t number, std::size_t length) {
  std::string text = std::to_string(number) + " ñ ";
  while (text.size() < length) text += static_cast<char>('a' + text.size() % 26);
  return text;
}

void Statement(MemoryLayer& layer, const std::string& sheet, const std::vector<std::string>& columns,
               int rows, std::size_t length) {
  excel::Workbook workbook(kPath, layer);
  const auto writer = columns.empty() ? workbook.AppendTo(sheet, 2) : workbook.CreateSheet(sheet, columns);
  for (int row = 0; row < rows; ++row) {
    writer->AddText(Text(static_cast<std::size_t>(row), length));
    writer->AddNumber(row / 3.0);
    for (std::size_t cell = 2; cell < columns.size(); ++cell) writer->AddBoolean(row % 2 == 0);
    writer->EndRow();
  }
  writer->Commit();
}

/// Workbooks of our own: the smallest; one that has grown a few times, over two sheets; one with long texts.
const std::vector<Content>& GoodWorkbooks() {
  static const std::vector<Content> kWorkbooks = [] {
    std::vector<Content> made;
    MemoryLayer small;
    Statement(small, "Hoja1", {"Nombre", "Importe"}, 3, 0);
    made.push_back(small.Bytes(kPath));
    MemoryLayer grown;
    Statement(grown, "Hoja1", {"Nombre", "Importe", "Baja"}, 40, 10);
    Statement(grown, "Hoja1", {}, 40, 20);
    Statement(grown, "Hoja2", {"Otro", "Más"}, 40, 30);
    Statement(grown, "Hoja2", {}, 2, 30);
    made.push_back(grown.Bytes(kPath));
    MemoryLayer long_;
    Statement(long_, "Hoja1", {"Texto", "Número"}, 3, 9000);
    made.push_back(long_.Bytes(kPath));
    return made;
  }();
  return kWorkbooks;
}

std::uint32_t NumberAt(const Content& file, std::size_t place) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) number = number << 8 | file[place + i];
  return number;
}

void WriteDigest(Content& file, std::size_t place, std::uint64_t digest) {
  for (std::size_t i = 0; i < 8; ++i) file[place + i] = static_cast<std::uint8_t>(digest >> 8 * i);
}

/// A part of the file; empty where the file does not have all of it.
struct Part {
  std::size_t start = 0;
  std::size_t size = 0;
};

Part Sectors(const Content& file, std::uint64_t first, std::uint64_t size) {
  const std::uint64_t start = (first + 1) * kSector;
  if (start > file.size() || size > file.size() - start) return {};
  return {static_cast<std::size_t>(start), static_cast<std::size_t>(size)};
}

Part DirectoryOf(const Content& file) {
  return file.size() < kSector ? Part{} : Sectors(file, NumberAt(file, 48), kSector);
}

/// The stream in which the writer keeps what its next statement must know.
Part StateOf(const Content& file) {
  constexpr std::size_t kStart = 2 * 128 + 116;  // in the third entry
  const Part directory = DirectoryOf(file);
  if (directory.size == 0) return {};
  return Sectors(file, NumberAt(file, directory.start + kStart),
                 NumberAt(file, directory.start + kStart + 4));
}

/// Makes the digests of what was damaged right again, so that what lies behind them is reached.
void Repair(Content& file) {
  const Part directory = DirectoryOf(file);
  const Part state = StateOf(file);
  if (state.size < kSector) return;
  const Part head = Sectors(file, NumberAt(file, state.start + 20),
                            kSector * std::uint64_t{NumberAt(file, state.start + 24)});
  const auto digest = [&](Part part, std::uint64_t seed) {
    return excel::Digest(std::span(file).subspan(part.start, part.size), seed);
  };
  const std::uint64_t fresh = excel::Digest({});
  WriteDigest(file, state.start + 8, digest(head, digest(directory, digest({0, kSector}, fresh))));
  WriteDigest(file, state.start + state.size - 8, digest({state.start, state.size - 8}, fresh));
}

void Write(Content& file, std::size_t place, Bytes bytes) {
  const std::size_t count = std::min(bytes.size(), file.size() - place);
  std::copy_n(bytes.begin(), count, file.begin() + static_cast<std::ptrdiff_t>(place));
}

void Damage(Content& file, Input& input) {
  const std::uint8_t kind = input.Byte() % 5;
  const std::size_t place = file.empty() ? 0 : input.Number() % file.size();
  switch (kind) {
    case 0:
      Write(file, place, input.Take(input.Byte()));
      break;
    case 1:
      file.resize(place);
      break;
    case 2: {
      const Bytes more = input.Take(input.Byte());
      file.insert(file.end(), more.begin(), more.end());
      break;
    }
    case 3: {
      const std::size_t count = std::min<std::size_t>(input.Number() % kSector, file.size() - place);
      const Content piece(file.begin() + static_cast<std::ptrdiff_t>(place),
                          file.begin() + static_cast<std::ptrdiff_t>(place + count));
      if (!file.empty()) Write(file, input.Number() % file.size(), piece);
      break;
    }
    default: {
      const Part state = StateOf(file);
      if (state.size > 0) Write(file, state.start + place % state.size, input.Take(input.Byte()));
    }
  }
}

/// Grows the workbook by one statement, with everything that is read on the way; false if it was refused.
bool Grow(MemoryLayer& layer, bool newSheet, std::size_t& rowsBefore, std::string& sheet) {
  try {
    excel::Workbook workbook(kPath, layer);
    sheet = workbook.SheetNames().back();
    rowsBefore = workbook.RowCount(sheet);
    const std::size_t columns = workbook.ColumnNames(sheet).size();
    if (newSheet) {
      sheet = "Nueva";
      rowsBefore = 0;
    }
    const auto writer = newSheet ? workbook.CreateSheet(sheet, {"Uno"})
                                 : workbook.AppendTo(sheet, std::min<std::size_t>(columns, 1));
    writer->AddText("añadido");
    writer->EndRow();
    writer->Commit();
    return true;
  } catch (const RuntimeError& refused) {
    Demand(!refused.Description().empty() && refused.Description().find(kPath) != std::string::npos,
           "a refusal does not name the file: " + refused.Description());
    return false;
  }
}

}  // namespace

void FuzzWorkbook(Bytes bytes) {
  Input input(bytes);
  const std::uint8_t which = input.Byte();
  const std::uint8_t how = input.Byte();
  const bool repaired = (how & 1) != 0;
  MemoryLayer layer;
  Content& file = layer.Bytes(kPath);
  if (which == kRawFile) {
    const Bytes raw = input.Take(kLongestFile);
    file.assign(raw.begin(), raw.end());
  } else {
    file = GoodWorkbooks()[which % GoodWorkbooks().size()];
    while (!input.Empty()) Damage(file, input);
  }
  if (repaired) Repair(file);

  const Content before = file;
  std::size_t rows = 0;
  std::string sheet;
  std::size_t peak = 0;
  bool grown = false;
  {
    const AllocationWatch watch;
    grown = Grow(layer, (how & 2) != 0, rows, sheet);
    peak = watch.Peak();
  }
  Demand(peak <= (1 << 18) + 12 * before.size(),
         "took " + std::to_string(peak) + " bytes of memory for a file of " + std::to_string(before.size()));
  if (!grown) {
    Demand(file == before, "the file was refused, and changed");
  } else if (!repaired) {
    Demand(excel::Workbook(kPath, layer).RowCount(sheet) == rows + 1, "the row that was added is not there");
  }
}

}  // namespace velmar::fuzz
