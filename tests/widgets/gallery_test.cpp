// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/gallery/gallery.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QtTest>

#include "widgets/dynamic_data_grid.h"
#include "widgets/tab_sheet.h"

namespace {

class GalleryWindow : public testing::Test {
 protected:
  GalleryWindow() {
    gallery.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&gallery));
  }
  ~GalleryWindow() override { QApplication::setPalette(light); }

  const QPalette light = QApplication::palette();
  GUI::Gallery gallery;
};

/// Share of the picture's pixels that are lighter than the middle.
double LightShare(const QImage& picture) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += qGray(picture.pixel(x, y)) > 127;
  }
  return count / static_cast<double>(picture.width() * picture.height());
}

TEST_F(GalleryWindow, EveryTabFollowsThePalette) {
  for (int tab = 0; tab < gallery.Sheet().count() - 1; ++tab) {
    gallery.Sheet().setCurrentIndex(tab);
    QApplication::setPalette(light);
    QApplication::processEvents();
    EXPECT_GT(LightShare(gallery.grab().toImage()), 0.8) << tab;
    QApplication::setPalette(GUI::DarkPalette());
    QApplication::processEvents();
    EXPECT_LT(LightShare(gallery.grab().toImage()), 0.2) << tab;
  }
}

TEST_F(GalleryWindow, TheColumnsFillTheGridAndTextsFit) {
  const GUI::CDynamicDataGrid& grid = gallery.Grid();
  const QAbstractItemModel& model = *grid.model();
  int width = 0;
  for (int column = 0; column < grid.ColumnCount(); ++column) {
    const QRect cell = grid.visualRect(model.index(0, column));
    width += cell.width() + 1;
    EXPECT_GE(cell.width(), grid.fontMetrics().horizontalAdvance(grid.CellText(0, column)));
  }
  EXPECT_NEAR(width, grid.viewport()->width(), grid.ColumnCount());
}

}  // namespace
