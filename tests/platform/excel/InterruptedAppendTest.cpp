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
#include "platform/excel/TemporaryFolder.h"
#include "platform/excel/WorkbookCheck.h"

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

// A workbook after some statements, so that the next one finds gaps to write to, and something behind the
// end.
class InterruptedAppend : public testing::Test {
 protected:
  void SetUp() override {
    Workbook book(base_);
    model_.Create(book, "Hoja1", {"Número", "Nombre", "Sí", "Texto"}, Rows(0, 600));
    for (int i = 0; i < 4; ++i) model_.Append(book, Rows(600 + 300 * i, 300));
    ASSERT_EQ(WorkbookCheck::Problem(base_), "");
    ASSERT_EQ(model_.DiffersForFreexl(base_), "");
  }

  // Runs the statement on a copy of the workbook. Returns false when it came to its end uninterrupted.
  bool RunKilled(int changes, const std::function<void(Workbook&)>& statement) {
    std::filesystem::copy_file(base_, path_, std::filesystem::copy_options::overwrite_existing);
    const pid_t child = fork();
    if (child == 0) {
      InterruptingLayer layer(changes, [] { kill(getpid(), SIGKILL); });
      Workbook book(path_, layer);
      statement(book);
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    return WIFSIGNALED(status);
  }

  TemporaryFolder folder_;
  std::string base_ = folder_.File("base.xls");
  std::string path_ = folder_.File("libro.xls");
  CellModel model_;
};

TEST_F(InterruptedAppend, LeavesTheEarlierRowsAndTheNextOneHeals) {
  const std::function<void(Workbook&)> statements[] = {
      [this](Workbook& book) {
        CellModel copy = model_;
        copy.Append(book, Rows(5000, 2000));
      },
      [this](Workbook& book) {
        CellModel copy = model_;
        copy.Create(book, "Hoja2", {"Uno", "Dos", "Tres", "Cuatro"}, Rows(5000, 2000));
      }};
  for (const auto& statement : statements) {
    int changes = 0;
    for (; RunKilled(changes, statement); ++changes) {
      SCOPED_TRACE(changes);
      ASSERT_LT(changes, 100);
      ASSERT_EQ(model_.DiffersForFreexl(path_), "");
      CellModel healed = model_;
      Workbook book(path_);
      healed.Append(book, Rows(7000, 10));
      ASSERT_EQ(WorkbookCheck::Problem(path_), "");
      ASSERT_EQ(healed.DiffersForFreexl(path_), "");
      healed.Append(book, Rows(7010, 3000));
      ASSERT_EQ(WorkbookCheck::Problem(path_), "");
      ASSERT_EQ(healed.DiffersForFreexl(path_), "");
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
  for (int changes = 0;; ++changes) {
    SCOPED_TRACE(changes);
    ASSERT_LT(changes, 100);
    const TemporaryFolder folder;
    const std::string path = folder.File("libro.xls");
    const pid_t child = fork();
    if (child == 0) {
      InterruptingLayer layer(changes, [] { kill(getpid(), SIGKILL); });
      Workbook book(path, layer);
      CellModel model;
      model.Create(book, "Hoja1", {"a", "b", "c", "d"}, Rows(0, 4000));
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (!WIFSIGNALED(status)) {
      EXPECT_EQ(WorkbookCheck::Problem(path), "");
      EXPECT_GE(changes, 3);
      return;
    }
    EXPECT_TRUE(folder.Empty());
  }
}

}  // namespace
}  // namespace velmar::excel
