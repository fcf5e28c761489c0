// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/image_button.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QtTest>
#include <memory>
#include <set>

#include "widgets/dynamic_data_grid.h"
#include "widgets/gallery/gallery.h"

using GUI::CDynamicDataGrid;
using GUI::Icon;
using GUI::Image;
using GUI::ImageButton;
using GUI::RowOperation;

namespace {

QImage Picture(Image image, int size, QIcon::Mode mode = QIcon::Normal) {
  return Icon(image).pixmap(QSize(size, size), mode).toImage();
}

bool IsGray(const QImage& picture) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor color = picture.pixelColor(x, y);
      if (color.alpha() > 200 && color.saturation() > 20) return false;
    }
  }
  return true;
}

/// Lightness of what is drawn, on average.
double Lightness(const QImage& picture) {
  double sum = 0, weight = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor color = picture.pixelColor(x, y);
      sum += color.lightnessF() * color.alphaF();
      weight += color.alphaF();
    }
  }
  return sum / weight;
}

TEST(Icons, EachIsItsOwnAtEverySizeAndGrayWhenDisabled) {
  QList<QImage> seen;
  for (int number = 0; number <= static_cast<int>(Image::kDropDown); ++number) {
    const auto image = static_cast<Image>(number);
    for (const int size : {16, 24, 32}) {
      EXPECT_EQ(Picture(image, size).size(), QSize(size, size));
      EXPECT_TRUE(IsGray(Picture(image, size, QIcon::Disabled))) << number;
    }
    const QImage picture = Picture(image, 32);
    EXPECT_FALSE(seen.contains(picture)) << number;
    EXPECT_NE(picture, Picture(image, 32, QIcon::Disabled)) << number;
    seen << picture;
  }
}

TEST(Icons, TheyFollowTheDarkPalette) {
  const QPalette light = QApplication::palette();
  const double onLight = Lightness(Picture(Image::kDropDown, 32));
  QApplication::setPalette(GUI::DarkPalette());
  const double onDark = Lightness(Picture(Image::kDropDown, 32));
  QApplication::setPalette(light);
  EXPECT_LT(onLight, 0.3);
  EXPECT_GT(onDark, 0.7);
}

class BoundButton : public testing::Test {
 protected:
  BoundButton() : grid(MakeGrid()), other(MakeGrid()) {}

  static std::unique_ptr<CDynamicDataGrid> MakeGrid() {
    const GUI::GridColumn columns[] = {{"A"}};
    auto made = std::make_unique<CDynamicDataGrid>(columns, 1);
    made->SetNewRowValues({"new"});
    return made;
  }

  std::unique_ptr<CDynamicDataGrid> grid, other;
  ImageButton add, remove;
};

TEST_F(BoundButton, FollowsItsGridAndRunsTheOperation) {
  add.BindTo(grid.get(), RowOperation::kAdd);
  remove.setAccessibleName("Delete source");
  remove.BindTo(grid.get(), RowOperation::kDelete);
  EXPECT_EQ(add.accessibleName(), "Add row");
  EXPECT_EQ(add.toolTip(), "Add row (Ins)");
  EXPECT_EQ(remove.accessibleName(), "Delete source") << "a form's name stays";
  EXPECT_FALSE(remove.isEnabled());
  QTest::mouseClick(&add, Qt::LeftButton);
  EXPECT_EQ(grid->RowCount(), 1);
  EXPECT_TRUE(remove.isEnabled()) << "the new row is selected";
  QTest::keyClick(&remove, Qt::Key_Space);
  EXPECT_EQ(grid->RowCount(), 0);
}

TEST_F(BoundButton, CanBeBoundAnew) {
  add.BindTo(grid.get(), RowOperation::kAdd);
  add.BindTo(other.get(), RowOperation::kAdd);
  add.click();
  EXPECT_EQ(grid->RowCount(), 0);
  EXPECT_EQ(other->RowCount(), 1);
  grid->SetOperationEnabled(RowOperation::kAdd, false);
  EXPECT_TRUE(add.isEnabled());
  other->SetOperationEnabled(RowOperation::kAdd, false);
  EXPECT_FALSE(add.isEnabled());
  add.BindTo(nullptr, RowOperation::kAdd);
  other->SetOperationEnabled(RowOperation::kAdd, true);
  EXPECT_FALSE(add.isEnabled());
  add.BindTo(other.get(), RowOperation::kAdd);
  EXPECT_TRUE(add.isEnabled());
  other.reset();
  EXPECT_FALSE(add.isEnabled()) << "the grid has gone";
}

}  // namespace
