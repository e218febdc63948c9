#include "qt/views/GridModel.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <memory>
#include <random>

#include "qt/views/ModelCheck.h"

namespace velmar::qt {
namespace {

void Prepare(controls::Grid& grid) {
  grid.Cols(3);
  grid.Rows(2);
  grid.FixedRows(1);
  grid.Rows(1);
}

TEST(GridModelTest, StaysInStepThroughAnyChanges) {
  controls::Grid grid("msg");
  GridModel model(grid);
  const ModelCheck check(model);
  Prepare(grid);
  std::mt19937 random(11);
  for (int step = 0; step < 1500; ++step) {
    const auto data = [&] {
      return 1 + static_cast<long>(random() % static_cast<unsigned long>(grid.Rows() - 1));
    };
    const bool has = grid.Rows() > 1;
    const std::string text = "a\tb\t" + std::to_string(random() % 100);
    switch (random() % 8) {
      case 0:
        if (step % 40 == 0) grid.Rows(1);
        break;
      case 1:
        if (step % 100 == 1) grid.Cols(2 + step % 3);
        break;
      case 2:
      case 3:
        if (grid.Rows() > 2) grid.RemoveItem(data());
        break;
      case 4:
        if (has) grid.TextMatrix(data(), 1, text);
        break;
      case 5:
        grid.AddItem(text, has ? data() : 1);
        break;
      case 6:
        if (step % 60 == 6) grid.Rows(grid.Rows() + 3);
        break;
      default:
        grid.AddItem(text);
    }
    ASSERT_EQ(model.rowCount(), grid.Rows() - 1);
    ASSERT_EQ(model.columnCount(), grid.Cols());
  }
  for (int row = 0; row < model.rowCount(); ++row) {
    for (int column = 0; column < model.columnCount(); ++column) {
      ASSERT_EQ(model.index(row, column).data(Qt::ToolTipRole).toString().toStdString(),
                grid.TextMatrix(row + 1, column));
    }
  }
}

TEST(GridModelTest, ShowsHeadsAlignmentAndOneLineACell) {
  controls::Grid grid("msg");
  Prepare(grid);
  GridModel model(grid);
  const ModelCheck check(model);
  QSignalSpy heads(&model, &QAbstractItemModel::headerDataChanged);
  grid.TextMatrix(0, 2, "Filtro");
  EXPECT_EQ(heads.count(), 1);
  grid.AddItem("(COL)\tNombre\tuno");
  grid.TextMatrix(1, 2, "uno\r\ndos\ntres");
  grid.ColAlignment(0, 8);
  grid.ColAlignment(1, 3);
  EXPECT_EQ(model.headerData(2, Qt::Horizontal, Qt::DisplayRole), "Filtro");
  EXPECT_EQ(model.index(0, 2).data(), "uno dos tres");
  EXPECT_EQ(model.index(0, 2).data(Qt::ToolTipRole), "uno\r\ndos\ntres");
  const auto alignment = [&](int column) {
    return model.index(0, column).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
  };
  EXPECT_EQ(alignment(0), Qt::AlignRight | Qt::AlignBottom);
  EXPECT_EQ(alignment(1), Qt::AlignHCenter | Qt::AlignTop);
  EXPECT_EQ(alignment(2), Qt::AlignLeft | Qt::AlignVCenter);
}

TEST(GridModelTest, IsEmptyOnceTheGridIsGone) {
  auto grid = std::make_unique<controls::Grid>("msg");
  Prepare(*grid);
  grid->AddItem("uno");
  GridModel model(*grid);
  const ModelCheck check(model);
  grid.reset();
  EXPECT_EQ(model.rowCount(), 0);
  EXPECT_EQ(model.columnCount(), 0);
}

}  // namespace
}  // namespace velmar::qt
