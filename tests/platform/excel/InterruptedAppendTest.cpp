#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/excel/CellModel.h"
#include "platform/excel/InterruptingLayer.h"
#include "platform/excel/WorkbookCheck.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::excel {
namespace {

std::string Content(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<CellModel::Row> Rows(int first, int count) {
  std::vector<CellModel::Row> rows;
  for (int i = first; i < first + count; ++i)
    rows.push_back({double(i), "Socia " + std::to_string(i), i % 2 == 0, "Núm. " + std::to_string(i % 10)});
  return rows;
}

using Statement = std::function<void(Workbook&)>;

// Runs the statement in a process that is killed behind so many changes. Returns false when it came to its
// end.
bool RunKilled(const std::string& path, int changes, const Statement& statement) {
  const pid_t child = fork();
  if (child == 0) {
    InterruptingLayer layer(changes, [] { kill(getpid(), SIGKILL); });
    Workbook book(path, layer);
    statement(book);
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
  return WIFSIGNALED(status);
}

// A workbook after some statements, so that the next one finds gaps to write to, and something behind the
// end.
class InterruptedAppend : public testing::Test {
 protected:
  void SetUp() override {
    Workbook book(base_);
    model_.Create(book, "Hoja1", {"Número", "Nombre", "Sí", "Texto"}, Rows(0, 600));
    for (int i = 0; i < 4; ++i) model_.Append(book, Rows(600 + 300 * i, 300));
    ExpectReads(model_, base_);
  }
  static void ExpectReads(const CellModel& model, const std::string& path) {
    ASSERT_EQ(WorkbookCheck::Problem(path), "");
    ASSERT_EQ(model.DiffersForFreexl(path), "");
  }

  files::TemporaryFolder folder_;
  std::string base_ = folder_ / "base.xls";
  CellModel model_;
};

TEST_F(InterruptedAppend, LeavesTheEarlierRowsAndTheNextOneHeals) {
  const std::string path = folder_ / "libro.xls";
  const auto copyBase = [&] {
    return std::filesystem::copy_file(base_, path, std::filesystem::copy_options::overwrite_existing);
  };
  const Statement append = [this](Workbook& book) { CellModel(model_).Append(book, Rows(5000, 2000)); };
  const Statement create = [this](Workbook& book) {
    CellModel(model_).Create(book, "Hoja2", {"Uno", "Dos", "Tres", "Cuatro"}, Rows(5000, 2000));
  };
  for (const Statement& statement : {append, create}) {
    int changes = 0;
    for (; copyBase() && RunKilled(path, changes, statement); ++changes) {
      SCOPED_TRACE(changes);
      ASSERT_LT(changes, 100);
      ASSERT_EQ(model_.DiffersForFreexl(path), "");
      CellModel healed = model_;
      Workbook book(path);
      healed.Append(book, Rows(7000, 10));
      ExpectReads(healed, path);
      healed.Append(book, Rows(7010, 3000));
      ExpectReads(healed, path);
    }
    EXPECT_GE(changes, 3);
  }
}

TEST_F(InterruptedAppend, AFailedWriteLeavesTheFileByteForByte) {
  const std::string before = Content(base_);
  int changes = 0;
  for (bool failed = true; failed; ++changes) {
    SCOPED_TRACE(changes);
    ASSERT_LT(changes, 100);
    InterruptingLayer layer(changes, [] { throw RuntimeError(kDiskFull, "lleno"); });
    Workbook book(base_, layer);
    const auto writer = book.AppendTo("Hoja1", 4);
    for (const auto& row : Rows(5000, 2000)) CellModel::AddRow(*writer, row);
    try {
      writer->Commit();
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), kDiskFull);
      ASSERT_EQ(Content(base_), before);
    }
    failed = layer.Interrupted();
  }
  EXPECT_GE(changes, 3);
  EXPECT_NE(Content(base_), before);
}

TEST(InterruptedCreation, LeavesNothing) {
  const files::TemporaryFolder folder;
  const std::string path = folder / "libro.xls";
  const Statement create = [](Workbook& book) {
    CellModel().Create(book, "Hoja1", {"a", "b", "c", "d"}, Rows(0, 4000));
  };
  int changes = 0;
  for (; RunKilled(path, changes, create); ++changes) {
    ASSERT_LT(changes, 100);
    EXPECT_TRUE(folder.Empty()) << changes;
  }
  EXPECT_GE(changes, 3);
  EXPECT_EQ(WorkbookCheck::Problem(path), "");
}

}  // namespace
}  // namespace velmar::excel
