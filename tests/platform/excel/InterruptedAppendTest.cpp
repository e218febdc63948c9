#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include "platform/error/Failure.h"
#include "platform/error/OperationObserver.h"
#include "platform/excel/CellModel.h"
#include "platform/excel/WorkbookCheck.h"
#include "platform/files/TemporaryFolder.h"

namespace velmar::excel {
namespace {

// Lets so many changes to files pass; the next one is interrupted.
class Interruption : public OperationObserver {
 public:
  Interruption(int changes, std::function<void()> interrupt)
      : left_(changes), interrupt_(std::move(interrupt)) {}

  bool Reached() const { return left_ < 0; }
  void Begins(Operation operation, std::string_view) override {
    const bool changes = operation == Operation::kWriteFile || operation == Operation::kResizeFile ||
                         operation == Operation::kPublishFile;
    if (changes && left_ >= 0 && left_-- == 0) interrupt_();
  }

 private:
  int left_;
  std::function<void()> interrupt_;
};

std::vector<CellModel::Row> Rows(int first, int count) {
  std::vector<CellModel::Row> rows;
  for (int i = first; i < first + count; ++i)
    rows.push_back({double(i), "Socia " + std::to_string(i), i % 2 == 0, "Núm. " + std::to_string(i % 10)});
  return rows;
}

using Statement = std::function<void(Workbook&)>;

// Runs the statement in a process that is killed behind so many changes. False when it came to its end.
bool RunKilled(const std::string& path, int changes, const Statement& statement) {
  const pid_t child = fork();
  if (child == 0) {
    Interruption interruption(changes, [] { kill(getpid(), SIGKILL); });
    const OperationObserver::Scope scope(interruption);
    Workbook book(path);
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
    Workbook book(path_);
    model_.Create(book, "Hoja1", {"Número", "Nombre", "Sí", "Texto"}, Rows(0, 300));
    for (int i = 0; i < 4; ++i) model_.Append(book, Rows(300 + 100 * i, 100));
  }

  files::TemporaryFolder folder_;
  std::string path_ = folder_ / "libro.xls";
  CellModel model_;
};

TEST_F(InterruptedAppend, LeavesTheEarlierRowsAndTheNextOneHeals) {
  const std::string before = folder_.Read("libro.xls");
  const Statement append = [this](Workbook& book) { CellModel(model_).Append(book, Rows(5000, 2000)); };
  const Statement create = [this](Workbook& book) {
    CellModel(model_).Create(book, "Hoja2", {"Uno", "Dos", "Tres", "Cuatro"}, Rows(5000, 2000));
  };
  for (const Statement& statement : {append, create}) {
    int changes = 0;
    for (; RunKilled(path_, changes, statement); ++changes) {
      SCOPED_TRACE(changes);
      ASSERT_LT(changes, 100);
      ASSERT_EQ(model_.Differs(path_), "");
      CellModel healed = model_;
      Workbook book(path_);
      healed.Append(book, Rows(7000, 10));
      ASSERT_EQ(WorkbookCheck::Problem(path_), "");
      healed.Append(book, Rows(7010, 1000));
      ASSERT_EQ(WorkbookCheck::Problem(path_), "");
      ASSERT_EQ(healed.Differs(path_), "");
      folder_.Write("libro.xls", before);
    }
    EXPECT_GE(changes, 3);
    folder_.Write("libro.xls", before);
  }
}

TEST_F(InterruptedAppend, AFailedWriteLeavesTheFileByteForByte) {
  const std::string before = folder_.Read("libro.xls");
  int changes = 0;
  for (bool failed = true; failed; ++changes) {
    SCOPED_TRACE(changes);
    ASSERT_LT(changes, 100);
    Interruption interruption(changes, [] { throw RuntimeError(kDiskFull, "lleno"); });
    const OperationObserver::Scope scope(interruption);
    Workbook book(path_);
    const long number = FailureOf([&] { CellModel(model_).Append(book, Rows(5000, 2000)); });
    failed = interruption.Reached();
    EXPECT_EQ(number, failed ? kDiskFull : 0L);
    ASSERT_EQ(folder_.Read("libro.xls") == before, failed);
  }
  EXPECT_GE(changes, 3);
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
