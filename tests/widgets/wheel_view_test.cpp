// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/wheel_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include "widgets/wheel_colors.h"

namespace {

constexpr int kRed = 0, kGreen = 1, kBlue = 2, kWhite = 3, kBlack = 7;

class WheelViewTest : public testing::Test {
 protected:
  WheelViewTest() { view_.resize(400, 300); }

  std::vector<int> TakeClicked() {
    std::vector<int> segments;
    for (const auto& arguments : std::as_const(clicked_)) segments.push_back(arguments[0].toInt());
    clicked_.clear();
    return segments;
  }
  /// The color drawn at the middle of a segment, beside its letter.
  QColor Drawn(std::size_t segment) {
    const QPointF middle = view_.MiddleOf(segment).value_or(QPointF());
    const QPointF center = QRectF(view_.rect()).center();
    return view_.grab().toImage().pixelColor((middle + (middle - center) * 0.22).toPoint());
  }

  GUI::WheelView view_;
  QSignalSpy clicked_{&view_, &GUI::WheelView::segmentClicked};
};

TEST_F(WheelViewTest, AClickOnASegmentTellsItsPlaceInTheList) {
  view_.SetWheel({{kRed, 90}, {kBlack, 30}, {kGreen, 90}, {kBlue, 0}, {kWhite, 90}}, 10);
  for (const std::size_t segment : {0, 2, 4}) {
    const auto middle = view_.MiddleOf(segment);
    ASSERT_TRUE(middle) << segment;
    QTest::mouseClick(&view_, Qt::LeftButton, {}, middle->toPoint());
  }
  EXPECT_THAT(TakeClicked(), testing::ElementsAre(0, 2, 4));
  EXPECT_FALSE(view_.MiddleOf(1)) << "a color without a place";
  EXPECT_FALSE(view_.MiddleOf(3)) << "no size";
  // Neither hub, corner nor gap is a segment.
  const QPoint center = view_.rect().center();
  for (const QPoint place : {center, QPoint(1, 1), center + QPoint(-70, -70)}) {
    QTest::mouseClick(&view_, Qt::LeftButton, {}, place);
  }
  EXPECT_THAT(TakeClicked(), testing::IsEmpty());
}

TEST_F(WheelViewTest, KeysGoRoundTheWheel) {
  view_.SetWheel({{kRed, 120}, {kBlack, 30}, {kGreen, 120}, {kBlue, 120}}, 0);
  const struct {
    Qt::Key key;
    int to;
  } steps[] = {{Qt::Key_Right, 0}, {Qt::Key_Down, 2}, {Qt::Key_Right, 3}, {Qt::Key_Right, 0},
               {Qt::Key_Left, 3},  {Qt::Key_Home, 0}, {Qt::Key_End, 3},   {Qt::Key_Up, 2}};
  for (const auto& step : steps) {
    QTest::keyClick(&view_, step.key);
    EXPECT_THAT(TakeClicked(), testing::ElementsAre(step.to));
    view_.SetSelected({static_cast<std::size_t>(step.to)});
  }
}

TEST_F(WheelViewTest, DrawsSegmentsInTheirColors) {
  const struct {
    std::vector<CWSeg> wheel;
    const char* words;
  } wheels[] = {{{{kRed, 360}}, "full turn"},
                {{{kRed, 100}, {kGreen, 100}}, "160.00\u00B0 open"},
                {{{kRed, 359.999}}, "full turn"},
                {{{kRed, 360.001}}, "slightly over"},
                {{{kRed, 121}, {kGreen, 120}, {kBlue, 120}}, "1.00\u00B0 over"},
                {std::vector<CWSeg>(20, CWSeg(kBlue, 18)), "full turn"}};
  for (const auto& each : wheels) {
    view_.SetWheel(each.wheel, 8);
    EXPECT_TRUE(view_.Words().endsWith(QString::fromUtf8(each.words))) << each.words;
    for (std::size_t i = 0; i < each.wheel.size(); ++i) {
      EXPECT_EQ(Drawn(i), GUI::WheelColor(each.wheel[i].getColor())) << each.words << ' ' << i;
    }
  }
}

TEST_F(WheelViewTest, TheSelectionShows) {
  view_.SetWheel({{kRed, 180}, {kGreen, 180}}, 0);
  const QImage before = view_.grab().toImage();
  view_.SetSelected({1});
  EXPECT_NE(view_.grab().toImage(), before);
  view_.SetSelected({});
  EXPECT_EQ(view_.grab().toImage(), before);
}

TEST_F(WheelViewTest, DrawsWhateverIsStored) {
  const double huge = 1e308, nan = std::numeric_limits<double>::quiet_NaN();
  const std::vector<CWSeg> wheels[] = {
      {}, {{-1, 10}}, {{42, 10}}, {{kRed, nan}}, {{kRed, -5}}, {{kRed, huge}, {kBlue, huge}}};
  for (const auto& wheel : wheels) {
    for (const double spoke : {0.0, 90.0, -5.0, 1e9}) {
      view_.SetWheel(wheel, spoke);
      EXPECT_FALSE(view_.grab().isNull());
    }
  }
}

}  // namespace
