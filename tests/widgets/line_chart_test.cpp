// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/line_chart.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>
#include <set>

#include "host/gui/message_box.h"
#include "host/gui/modal.h"
#include "widgets/chart_theme.h"
#include "widgets/gallery/gallery.h"

using GUI::ChartTheme;
using GUI::LineChart;
using Axis = LineChart::Axis;

namespace {

class Chart : public testing::Test {
 protected:
  Chart() {
    chart.SetAxisTitle(Axis::kX, "Time (usecs)");
    chart.SetAxisTitle(Axis::kY, "Amplitude");
    chart.resize(600, 400);
    chart.show();
    chart.activateWindow();
    chart.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&chart));
  }

  void AddTwoSeries() {
    chart.AddSeries("Drive", {{0, 1}, {10, 2}, {20, std::nan("")}, {30, 3}});
    chart.AddSeries("Response", {{1, 5}, {29, 6}}, LineChart::Style::kSteps);
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&chart, key, modifiers);
  }

  [[nodiscard]] std::pair<int, int> Cursor() const {
    return {chart.Cursor().series, chart.Cursor().index};
  }

  [[nodiscard]] double Width(Axis axis) const {
    const LineChart::Range range = chart.VisibleRange(axis);
    return range.upper - range.lower;
  }

  LineChart chart;
};

TEST_F(Chart, TheCursorWalksTheSeriesByKeys) {
  Press(Qt::Key_Right);
  EXPECT_EQ(chart.Cursor().series, -1) << "there is nothing to stand on";
  AddTwoSeries();
  Press(Qt::Key_Right);
  EXPECT_THAT(Cursor(), testing::Pair(0, 0));
  Press(Qt::Key_Right);
  Press(Qt::Key_Right);
  EXPECT_THAT(Cursor(), testing::Pair(0, 3)) << "the gap is passed";
  EXPECT_EQ(chart.CursorText(), "Drive\nTime (usecs): 30\nAmplitude: 3");
  EXPECT_EQ(chart.accessibleDescription(), chart.CursorText());
  Press(Qt::Key_Right);
  EXPECT_THAT(Cursor(), testing::Pair(0, 3));
  Press(Qt::Key_Down);
  EXPECT_THAT(Cursor(), testing::Pair(1, 1)) << "the nearest in x";
  Press(Qt::Key_Left);
  Press(Qt::Key_Up);
  EXPECT_THAT(Cursor(), testing::Pair(0, 0));

  QSignalSpy clicked(&chart, &LineChart::pointClicked);
  Press(Qt::Key_Return);
  EXPECT_EQ(clicked.value(0), QVariantList({0, 0}));
  Press(Qt::Key_Escape);
  EXPECT_THAT(Cursor(), testing::Pair(-1, -1));
  EXPECT_EQ(chart.CursorText(), "");
}

TEST_F(Chart, TheViewShowsAllUntilAPersonChangesIt) {
  AddTwoSeries();
  const double all = Width(Axis::kX);
  EXPECT_NEAR(all, 30 * 1.04, 1e-9);
  EXPECT_LT(chart.VisibleRange(Axis::kY).lower, 1);
  EXPECT_GT(chart.VisibleRange(Axis::kY).upper, 6);
  chart.SetPoints(0, {{0, 0}, {60, 1}});
  EXPECT_NEAR(Width(Axis::kX), 60 * 1.04, 1e-9);
  Press(Qt::Key_Plus);
  EXPECT_NEAR(Width(Axis::kX), 60 * 1.04 * 0.8, 1e-6);
  chart.SetPoints(0, {{0, 0}, {600, 1}});
  EXPECT_NEAR(Width(Axis::kX), 60 * 1.04 * 0.8, 1e-6) << "zoomed: the view stays";
  Press(Qt::Key_Minus);
  EXPECT_NEAR(Width(Axis::kX), 60 * 1.04, 1e-6);
  const double left = chart.VisibleRange(Axis::kX).lower;
  Press(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_NEAR(chart.VisibleRange(Axis::kX).lower, left + 6.24, 1e-6);
  EXPECT_NEAR(Width(Axis::kX), 60 * 1.04, 1e-6);
  Press(Qt::Key_Home);
  EXPECT_NEAR(Width(Axis::kX), 600 * 1.04, 1e-6);
}

TEST_F(Chart, TheCursorStaysInSight) {
  chart.AddSeries("s", {{0, 0}, {50, 1}, {100, 0}});
  for (int i = 0; i < 6; ++i) Press(Qt::Key_Plus);
  for (int i = 0; i < 3; ++i) {
    Press(Qt::Key_Right);
    const LineChart::Range shown = chart.VisibleRange(Axis::kX);
    EXPECT_LE(shown.lower, i * 50);
    EXPECT_GE(shown.upper, i * 50);
  }
}

TEST_F(Chart, HomeRangesAndScalesAreKept) {
  AddTwoSeries();
  EXPECT_TRUE(chart.SetHomeRange(Axis::kY, LineChart::Range{-1, 1}));
  EXPECT_EQ(chart.VisibleRange(Axis::kY).upper, 1);
  EXPECT_FALSE(chart.SetHomeRange(Axis::kY, LineChart::Range{1, 1}));
  chart.SetScale(Axis::kY, LineChart::Scale::kLogarithmic);
  EXPECT_GT(chart.VisibleRange(Axis::kY).lower, 0) << "such a home no longer serves";
  EXPECT_FALSE(chart.SetHomeRange(Axis::kY, LineChart::Range{0, 1}));
  Press(Qt::Key_Minus);
  Press(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_GT(chart.VisibleRange(Axis::kY).lower, 0);
  chart.Clear();
  EXPECT_EQ(chart.SeriesCount(), 0);
  EXPECT_EQ(chart.VisibleRange(Axis::kY).lower, 1);
  EXPECT_THROW(chart.SetPoints(0, {}), std::out_of_range);
}

TEST_F(Chart, TheMouseFindsTheNearestPoint) {
  chart.AddSeries("s", {{0, 0}, {50, 50}, {100, 100}});
  QSignalSpy hovered(&chart, &LineChart::pointHovered);
  QSignalSpy clicked(&chart, &LineChart::pointClicked);
  QTest::qWait(1);
  chart.grab();
  QWidget* plot = chart.childAt(chart.rect().center());
  ASSERT_NE(plot, nullptr);
  // The middle point stands in the middle of the axes, whose frame the labels shift.
  bool found = false;
  for (int x = 250; x < 400 && !found; x += 8) {
    for (int y = 100; y < 300 && !found; y += 8) {
      QTest::mouseMove(plot, {x, y});
      found = chart.Cursor() == LineChart::Place{0, 1};
      if (found) QTest::mouseClick(plot, Qt::LeftButton, {}, {x, y});
    }
  }
  ASSERT_TRUE(found);
  EXPECT_EQ(hovered.value(0), QVariantList({0, 1}));
  EXPECT_EQ(clicked.value(0), QVariantList({0, 1}));
  QTest::mouseMove(plot, {5, 5});
  EXPECT_EQ(hovered.value(1), QVariantList({-1, -1}));
}

TEST_F(Chart, TheWheelZoomsOnlyWithTheFocus) {
  AddTwoSeries();
  chart.grab();
  const double all = Width(Axis::kX);
  QWidget* plot = chart.childAt(chart.rect().center());
  const auto turn = [&] {
    const QPointF at = plot->rect().center();
    QWheelEvent event(at, plot->mapToGlobal(at), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(plot, &event);
  };
  chart.clearFocus();
  turn();
  EXPECT_EQ(Width(Axis::kX), all);
  chart.setFocus();
  turn();
  EXPECT_LT(Width(Axis::kX), all);
}

TEST_F(Chart, ExportsALightPictureAndAPdf) {
  const QTemporaryDir folder;
  AddTwoSeries();
  chart.setPalette(GUI::DarkPalette());
  EXPECT_LT(chart.grab().toImage().pixelColor(20, 20).lightness(), 80);
  const QString png = folder.filePath("chart.png"), pdf = folder.filePath("chart.pdf");
  EXPECT_TRUE(chart.ExportPng(png, {300, 200}, 2.0));
  const QImage picture(png);
  EXPECT_EQ(picture.size(), QSize(600, 400));
  EXPECT_EQ(picture.pixelColor(2, 2), QColor(Qt::white));
  EXPECT_LT(chart.grab().toImage().pixelColor(20, 20).lightness(), 80) << "dark again";
  EXPECT_TRUE(chart.ExportPdf(pdf, {300, 200}));
  QFile file(pdf);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().startsWith("%PDF-"));
  EXPECT_FALSE(chart.ExportPng(folder.filePath("none/chart.png"), {300, 200}));
}

TEST_F(Chart, TheMenuSavesAndSaysWhenItCannot) {
  const QTemporaryDir folder;
  std::vector<std::string> messages;
  SetMessageBoxResponder([&](const std::string& text, const std::string&, unsigned) {
    messages.push_back(text);
    return msgbox::kAnswerOk;
  });
  QString name;
  SetModalRunner([&](QDialog& dialog) {
    auto& files = dynamic_cast<QFileDialog&>(dialog);
    files.setDirectory(folder.path());
    files.selectFile(name);
    return int{QDialog::Accepted};
  });
  const auto run = [this](const char* text) {
    for (QAction* action : chart.actions()) {
      if (action->text() == text) action->trigger();
    }
  };
  AddTwoSeries();
  name = "a.png";
  run("Save as PNG...");
  EXPECT_TRUE(QFile::exists(folder.filePath("a.png")));
  name = "none/b.pdf";
  run("Save as PDF...");
  SetModalRunner({});
  SetMessageBoxResponder({});
  EXPECT_THAT(messages, testing::ElementsAre(testing::HasSubstr("could not be written")));
}

double Luminance(const QColor& color) {
  const auto linear = [](double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const double x = Luminance(a), y = Luminance(b);
  return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

TEST(ChartTheme, SeriesCanBeSeenAndToldApartWithoutTheirHue) {
  for (const ChartTheme& theme : {ChartTheme::Light(), ChartTheme::Of(GUI::DarkPalette())}) {
    std::set<QString> hues;
    std::vector<QList<qreal>> dashes;
    for (int series = 0; series < 6; ++series) {
      const QPen pen = theme.SeriesPen(series);
      EXPECT_GE(Contrast(pen.color(), theme.background), 3.0) << series;
      hues.insert(pen.color().name());
      EXPECT_THAT(dashes, testing::Not(testing::Contains(pen.dashPattern()))) << series;
      dashes.push_back(pen.dashPattern());
    }
    EXPECT_EQ(hues.size(), 6u);
    EXPECT_GE(Contrast(theme.ink, theme.background), 7.0);
    for (const QColor own : {Qt::white, Qt::black, Qt::yellow, Qt::cyan, Qt::blue, Qt::red}) {
      EXPECT_GE(Contrast(theme.Readable(own), theme.background), 3.0) << own.name().toStdString();
      EXPECT_EQ(theme.Readable(own).hue(), own.hue()) << own.name().toStdString();
    }
  }
}

}  // namespace
