#include "platform/excel/Workbook.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <filesystem>
#include <functional>
#include <limits>
#include <random>

#include "platform/error/Failure.h"
#include "platform/excel/CellModel.h"
#include "platform/excel/FileSizeLimit.h"
#include "platform/excel/WorkbookCheck.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::excel {
namespace {

class WorkbookTest : public testing::Test {
 protected:
  std::string Content() const { return folder_.Read("libro.xls"); }
  void Put(const std::string& content) const { folder_.Write("libro.xls", content); }

  // The action must fail with this number, name the file and leave it as it is.
  void ExpectRefused(long number, const std::function<void()>& action) const {
    const std::string before = Content();
    const RuntimeError failure = FailureIn(action);
    EXPECT_EQ(failure.Number(), number) << failure.Description();
    EXPECT_THAT(failure.Description(), testing::HasSubstr("libro.xls"));
    EXPECT_EQ(Content(), before);
  }

  void ExpectReads(const CellModel& model) const {
    EXPECT_EQ(WorkbookCheck::Problem(path_), "");
    EXPECT_EQ(model.Differs(path_), "");
  }

  files::TemporaryFolder folder_;
  std::string path_ = folder_ / "libro.xls";
  Workbook book_{path_};
  CellModel model_;
};

TEST_F(WorkbookTest, KeepsEveryKindOfCell) {
  const std::vector<CellModel::Row> rows = {
      {"=1+1", 0.0, true}, {"007", -0.0, false},   {"\"comillas\" y 'apóstrofos'", 1e308, {}},
      {"1e5", 0.1, {}},    {"Señor €", 12.34, {}}, {"😀 emoji", 536870912.0, {}},
      {" ", 5e-324, {}},   {{}, {}, {}},           {"tab\ty\x01 control", -1.0 / 3, true},
      {"", 99.99, false}};
  model_.Create(book_, "Hoja1", {"Texto", "Número", "Sí o no"}, rows);
  ExpectReads(model_);
}

// Short and long form of numbers, and the limits between them.
TEST_F(WorkbookTest, KeepsNumbersToTheLastBit) {
  constexpr double kLimit = 536'870'912;
  std::vector<CellModel::Row> rows;
  for (const double value : {kLimit - 1, kLimit, kLimit + 1, 0.01, 5368709.11, 5368709.12, 1.005, 1e200})
    rows.push_back({value, -value, 1 / value});
  std::mt19937_64 random(182);
  for (int i = 0; i < 20'000; ++i) {
    const auto cents = static_cast<std::int32_t>(random());
    const auto any = std::bit_cast<double>(random());
    rows.push_back({cents / 100.0, cents / 8.0, std::isfinite(any) ? any : 0});
  }
  model_.Create(book_, "Hoja1", {"a", "b", "c"}, rows);
  ExpectReads(model_);
}

TEST_F(WorkbookTest, MendsWhatNoCellCanHold) {
  const double infinity = std::numeric_limits<double>::infinity();
  model_.Create(book_, "Hoja1", {"a", "b"},
                {{infinity - infinity, std::string("Cal\0le Mayor", 12)},
                 {-infinity, std::string("Calle May\0or", 12)},
                 {std::string(1, '\0'), "x\xFFy\xED\xA0\x80z"}});
  model_.sheets = {
      {"Hoja1", {{"a", "b"}, {{}, "Calle Mayor"}, {{}, "Calle Mayor"}, {{}, "x\uFFFDy\uFFFD\uFFFD\uFFFDz"}}}};
  ExpectReads(model_);
}

// A first text of every length near the end of a record puts each kind of text at each place around the cut.
TEST_F(WorkbookTest, KeepsTextsUpToTheLongestHoweverTheyAreCut) {
  const auto repeat = [](const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
  };
  const std::string narrow = repeat("x", 32'767);
  const std::string pairs = repeat("😀", 16'383);
  const std::vector<std::string> texts = {
      "a", "ñ", "€", "😀", repeat("ñé", 5000), repeat("€", 32'767), narrow, pairs + "x", "x" + pairs};
  model_.Create(book_, "Hoja1", {"a"});
  for (int length = 8224 - 3 - 14; length <= 8224; ++length)
    for (const std::string& text : texts) model_.Append(book_, {{repeat("f", length)}, {text}, {"fin"}});
  ExpectReads(model_);
  for (const std::string& text : {narrow + "x", pairs + "xy"}) {
    const auto writer = book_.AppendTo("Hoja1", 1);
    ExpectRefused(kFieldSizeExceeded, [&] { writer->AddText(text); });
  }
}

// Each sheet makes the head 21 bytes longer and the strings 513, so that both end at every place of a sector.
TEST_F(WorkbookTest, FillsItsLastSectorsAtAllSizesOfWhatStandsBefore) {
  for (int sheet = 1001; sheet <= 1512; ++sheet) {
    const std::string number = std::to_string(sheet);
    model_.Create(book_, "Hoja " + number, {"a"}, {{number + std::string(498, 'x')}});
    ASSERT_EQ(WorkbookCheck::Problem(path_), "") << number;
  }
  ExpectReads(model_);
}

TEST_F(WorkbookTest, TakesEveryNameThatASheetMayHaveAndNoOther) {
  std::string emojis;
  for (int i = 0; i < 15; ++i) emojis += "😀";
  for (const std::string& good : {std::string(31, 'x'), std::string("Años d'abril"), std::string("hoja é"),
                                  std::string("Hoja e"), emojis + "x"})
    model_.Create(book_, good, {"a"});
  ExpectReads(model_);
  for (const std::string& bad :
       {std::string(), std::string(32, 'x'), emojis + "😀", std::string("a[b"), std::string("a]b"),
        std::string("a:b"), std::string("a*b"), std::string("a?b"), std::string("a/b"), std::string("a\\b"),
        std::string("'a"), std::string("a'"), std::string("a\nb"), std::string("a\0b", 3),
        std::string("a\xFF")})
    ExpectRefused(kWorkbookLimit, [&] { book_.CreateSheet(bad, {"a"}); });
  ExpectRefused(kTableExists, [&] { book_.CreateSheet("HOJA É", {"a"}); });
}

// Sheets as small as they get, so that beginnings, ends and sectors meet in every way.
TEST_F(WorkbookTest, MixesStatementsOfAllSizes) {
  unsigned random = 7;
  const auto draw = [&random](unsigned limit) {
    return (random = random * 1'103'515'245 + 12'345) / 65'536 % limit;
  };
  std::vector<std::string> columns = {"Código", "Nombre"};
  for (int step = 0; step < 200; ++step) {
    SCOPED_TRACE(step);
    std::vector<CellModel::Row> rows(draw(4) == 0 ? draw(300) : draw(12));
    for (auto& row : rows)
      row = {draw(3) == 0 ? CellModel::Cell() : double(draw(1000)) / 8, std::string(draw(60), 'x') + "ñ"};
    if (step == 0 || draw(3) == 0)
      model_.Create(book_, "Hoja número " + std::to_string(model_.sheets.size() + 1), columns, rows);
    else
      model_.Append(book_, rows);
    ASSERT_EQ(WorkbookCheck::Problem(path_), "");
  }
  ExpectReads(model_);
}

TEST_F(WorkbookTest, TellsSheetsAndColumns) {
  ExpectRefused(kFileNotFound, [&] { book_.SheetNames(); });
  ExpectRefused(kFileNotFound, [&] { book_.AppendTo("Hoja1", 1); });
  model_.Create(book_, "Hoja1", {"Código", "Nombre"}, {{1.0, "Ana"}, {2.0, "Eva"}});
  model_.Create(book_, "Años", {"Año"});
  EXPECT_THAT(book_.SheetNames(), testing::ElementsAre("Hoja1", "Años"));
  EXPECT_THAT(book_.ColumnNames("HOJA1"), testing::ElementsAre("Código", "Nombre"));
  EXPECT_EQ(book_.RowCount("hoja1"), 2u);
  EXPECT_EQ(book_.RowCount("AÑOS"), 0u);
  ExpectReads(model_);
}

TEST_F(WorkbookTest, RefusesWhatDoesNotFit) {
  const std::vector<std::string> wide(257, "c");
  ExpectRefused(kWorkbookLimit, [&] { book_.CreateSheet("Hoja1", {}); });
  ExpectRefused(kWorkbookLimit, [&] { book_.CreateSheet("Hoja1", wide); });
  model_.Create(book_, "Hoja1", std::vector<std::string>(256, "c"), {CellModel::Row(256, 1.5)});
  ExpectReads(model_);
  ExpectRefused(kWorkbookLimit, [&] { book_.AppendTo("Hoja1", 257); });
  ExpectRefused(kWorkbookLimit, [&] { book_.AppendTo("Hoja1", 0); });
  ExpectRefused(kUnknownTable, [&] { book_.AppendTo("Hoja2", 1); });
  model_.Create(book_, "Hoja2", {"a", "b"});
  ExpectRefused(kWorkbookLimit, [&] { book_.AppendTo("Hoja1", 1); });
  const auto writer = book_.AppendTo("Hoja2", 2);
  ExpectRefused(kInvalidProcedureCall, [&] {
    writer->AddNull();
    writer->EndRow();
  });
  ExpectRefused(kInvalidProcedureCall, [&] { writer->Commit(); });
  writer->AddNull();
  ExpectRefused(kInvalidProcedureCall, [&] { writer->AddNull(); });
  writer->EndRow();
  writer->Commit();
  ExpectRefused(kInvalidProcedureCall, [&] { writer->Commit(); });
  ExpectRefused(kInvalidProcedureCall, [&] { writer->AddNull(); });
}

// So many texts that some of them have the same hash.
TEST_F(WorkbookTest, HoldsAsManyRowsAsTheFormat) {
  std::vector<CellModel::Row> rows;
  for (int i = 1; i <= 65'535; ++i)
    rows.push_back({"Socia " + std::to_string(i), "Calle " + std::to_string(i), std::to_string(i)});
  model_.Create(book_, "Hoja1", {"a", "b", "c"}, rows);
  ExpectReads(model_);
  const auto writer = book_.AppendTo("Hoja1", 1);
  ExpectRefused(kWorkbookLimit, [&] { writer->AddNumber(1); });
}

TEST_F(WorkbookTest, RefusesOtherFiles) {
  const auto create = [&] { book_.CreateSheet("Hoja1", {"a"}); };
  for (const std::string& content : {std::string(), std::string("hola"), std::string(9000, '\0')}) {
    Put(content);
    ExpectRefused(kWorkbookFormat, create);
    ExpectRefused(kWorkbookFormat, [&] { book_.SheetNames(); });
  }
  std::filesystem::remove(path_);
  std::filesystem::create_directory(path_);
  ExpectRefused(kPermissionDenied, create);
  Workbook elsewhere(folder_ / "no/libro.xls");
  ExpectRefused(kPathNotFound, [&] { elsewhere.CreateSheet("Hoja1", {"a"})->Commit(); });
}

TEST_F(WorkbookTest, RefusesAWorkbookThatIsNoLongerItsOwn) {
  model_.Create(book_, "Hoja1", {"Código", "Nombre"}, {{1.0, "uno"}, {2.0, "dos"}});
  model_.Append(book_, {{3.0, "tres"}});
  const std::string good = Content();
  for (const std::size_t size : {std::size_t{8}, std::size_t{511}, std::size_t{512}, good.size() / 2,
                                 good.size() - 512, good.size() - 1}) {
    SCOPED_TRACE(size);
    Put(good.substr(0, size));
    ExpectRefused(kWorkbookFormat, [&] { book_.AppendTo("Hoja1", 2); });
  }
  // Whatever byte changes: the append is refused, or it leaves that byte out of the game.
  int refused = 0;
  for (std::size_t place = 0; place < good.size(); place += 101) {
    SCOPED_TRACE(place);
    std::string bad = good;
    bad[place] = static_cast<char>(bad[place] ^ 0x10);
    Put(bad);
    const long number = FailureOf([&] { CellModel(model_).Append(book_, {{4.0, "cuatro"}}); });
    if (number != 0) ++refused;
    EXPECT_EQ(number, Content() == bad ? kWorkbookFormat : 0L);
  }
  EXPECT_GT(refused, 80);
  // The last rows go into the next statement's first sector: a damage must not go with them.
  std::string bad = good;
  const std::string lastNumber("\x7E\x02\x0A\x00\x03\x00\x00\x00", 8);  // RK, row 3, column 0
  bad.at(good.find(lastNumber) + lastNumber.size() + 2) ^= 4;
  Put(bad);
  ExpectRefused(kWorkbookFormat, [&] { book_.AppendTo("Hoja1", 2); });
}

TEST_F(WorkbookTest, NoticesAChangeBetweenStartAndCommit) {
  model_.Create(book_, "Hoja1", {"a"}, {{1.0}});
  const auto late = book_.AppendTo("Hoja1", 1);
  CellModel::AddRow(*late, {2.0});
  model_.Append(book_, {{3.0}});
  ExpectRefused(kWorkbookFormat, [&] { late->Commit(); });
  const auto gone = book_.AppendTo("Hoja1", 1);
  std::filesystem::remove(path_);
  ExpectRefused(kFileNotFound, [&] { gone->Commit(); });
  const auto second = book_.CreateSheet("Hoja1", {"a"});
  Put("otro");
  ExpectRefused(kPermissionDenied, [&] { second->Commit(); });
}

TEST_F(WorkbookTest, SurvivesAFullDisk) {
  model_.Create(book_, "Hoja1", {"a"}, {{1.0}});
  for (const rlim_t room : {1000u, 100'000u}) {
    const auto writer = book_.AppendTo("Hoja1", 1);
    for (int i = 0; i < 50'000; ++i) CellModel::AddRow(*writer, {"texto " + std::to_string(i)});
    const FileSizeLimit limit(std::filesystem::file_size(path_) + room);
    ExpectRefused(kDiskFull, [&] { writer->Commit(); });
  }
  model_.Append(book_, {{2.0}});
  ExpectReads(model_);
}

}  // namespace
}  // namespace velmar::excel
