// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/gallery/gallery.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>
#include <cmath>
#include <numbers>

#include "widgets/checkedlist.h"
#include "widgets/dynamic_data_grid.h"
#include "widgets/formatted_edit.h"
#include "widgets/image_button.h"
#include "widgets/line_chart.h"
#include "widgets/tab_sheet.h"
#include "widgets/view_table_access.h"

namespace GUI {

namespace {

constexpr Image kImages[] = {Image::kAddRow,       Image::kCopyRows, Image::kDeleteRows,
                             Image::kMoveToTop,    Image::kMoveUp,   Image::kMoveDown,
                             Image::kMoveToBottom, Image::kNew,      Image::kDelete,
                             Image::kImport,       Image::kExport};

QVBoxLayout* MakeButtons(QWidget* parent, CDynamicDataGrid* grid,
                         std::initializer_list<RowOperation> operations) {
  auto* column = new QVBoxLayout;
  column->setSpacing(2);
  for (const RowOperation operation : operations) {
    auto* button = new ImageButton(parent);
    button->BindTo(grid, operation);
    column->addWidget(button);
  }
  column->addStretch();
  return column;
}

ReadOnlyTable* MakeReadOnlyTable(QWidget* parent) {
  auto* table = new ReadOnlyTable(parent);
  table->setAccessibleName(QStringLiteral("Supported Frame Rates"));
  table->setColumnCount(2);
  table->setHorizontalHeaderLabels({QStringLiteral("Source Frame Rates"), QStringLiteral("Mode")});
  const char* const rows[][2] = {
      {"0.00 - 31.50 Hz", "LEV"}, {"31.50 - 47.50 Hz", "LIV"}, {"47.50+ Hz", "LEV"}};
  for (const auto& row : rows) {
    const int place = table->rowCount();
    table->insertRow(place);
    for (int column = 0; column < 2; ++column) {
      table->setItem(place, column, new QTableWidgetItem(QLatin1String(row[column])));
    }
  }
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  return table;
}

QList<QPointF> Wave(double amplitude, double phase) {
  QList<QPointF> points;
  for (int i = 0; i <= 200; ++i) {
    const double time = i * 83.3;
    points << QPointF(time,
                      1.0 + amplitude * std::sin(time / 16660.0 * 2 * std::numbers::pi + phase));
  }
  return points;
}

}  // namespace

Gallery::Gallery(QWidget* parent) : QWidget(parent), sheet_(new TabSheet(this)) {
  setWindowTitle(QStringLiteral("Widgets"));
  sheet_->addTab(MakeGridPage(), QStringLiteral("Grid"));
  sheet_->addTab(MakeChartPage(), QStringLiteral("Chart"));
  sheet_->addTab(MakeEntryPage(), QStringLiteral("Lists and entries"));
  sheet_->addTab(MakeImagePage(), QStringLiteral("Images"));
  sheet_->addTab(new QWidget(this), QStringLiteral("Disabled"));
  sheet_->SetTabDisabled(4, true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(sheet_);
  resize(860, 560);
}

QWidget* Gallery::MakeGridPage() {
  auto* page = new QWidget(this);
  using enum CellKind;
  const GridColumn columns[] = {
      {QStringLiteral("Segment"), false, kDropDown},
      {QStringLiteral("Name"), true, kText},
      {QStringLiteral("Degrees"), false, kNumber, 2, 0.0, 360.0, true, true},
      {QStringLiteral("Peak\r\nTrans"), false, kNumber, 3, 0.0, -1.0, true, false},
      {QStringLiteral("Pulses"), false, kNumber, 0},
      {QStringLiteral("Via\r\nWheel?"), false, kCheckBox},
      {QStringLiteral("Operation"), false, kPushButton}};
  grid_ = new CDynamicDataGrid(page);
  grid_->SetColumns(columns);
  grid_->setAccessibleName(QStringLiteral("Segments"));
  grid_->SetCornerHeading(QStringLiteral("Index"));
  grid_->SetColumnSample(0, QStringLiteral("NDMagenta"));
  grid_->SetNewRowValues({QStringLiteral("Red|Green|Blue|None|None"), QStringLiteral("New"),
                          QStringLiteral("0"), QStringLiteral("0.95"), QStringLiteral("0"),
                          QStringLiteral("false"), QStringLiteral("Edit...")});
  FillGrid();
  auto* readOnly = new QCheckBox(QStringLiteral("Read-only"), page);
  connect(readOnly, &QCheckBox::toggled, grid_, &CDynamicDataGrid::SetReadOnly);
  auto* disabled = new QCheckBox(QStringLiteral("Disabled"), page);
  connect(disabled, &QCheckBox::toggled, grid_, &QWidget::setDisabled);

  using enum RowOperation;
  auto* layout = new QGridLayout(page);
  layout->addLayout(MakeButtons(page, grid_, {kAdd, kCopy, kDelete}), 0, 0);
  layout->addWidget(grid_, 0, 1, 1, 2);
  layout->addLayout(MakeButtons(page, grid_, {kMoveToTop, kMoveUp, kMoveDown, kMoveToBottom}), 0,
                    3);
  layout->addWidget(readOnly, 1, 1);
  layout->addWidget(disabled, 1, 2);
  return page;
}

void Gallery::FillGrid() {
  const char* const names[] = {"Red", "Green", "Blue", "Red", "Green", "Blue"};
  for (int row = 0; row < 6; ++row) {
    const QString color = QLatin1String(names[row]);
    grid_->InsertRow(
        {QStringLiteral("Red|Green|Blue|None|") + color, color + u' ' + QString::number(row),
         QString::number(20 + 10 * row), QStringLiteral("0.95"), QString::number(row),
         row % 2 ? QStringLiteral("true") : QStringLiteral("false"), QStringLiteral("Edit...")});
  }
  grid_->InsertRow(
      {QStringLiteral("Red|Blue"), QStringLiteral("Fixed"), QStringLiteral("18"),
       QStringLiteral("1"), QStringLiteral("0"), QStringLiteral("true"), QStringLiteral("Show")},
      -1, 0, QList<QColor>(7, QColor(0xB0, 0x20, 0x20)), true, QColor(212, 212, 212));
}

QWidget* Gallery::MakeChartPage() {
  auto* page = new QWidget(this);
  chart_ = new LineChart(page);
  chart_->setAccessibleName(QStringLiteral("Preview"));
  chart_->SetTitle(QStringLiteral("Lamp current"));
  chart_->SetAxisTitle(LineChart::Axis::kX, QStringLiteral("Time (usecs)"));
  chart_->SetAxisTitle(LineChart::Axis::kY, QStringLiteral("Amplitude"));
  chart_->AddBand(LineChart::Axis::kX, {3000, 5200}, QStringLiteral("Blue"));
  chart_->AddBand(LineChart::Axis::kX, {9000, 11200}, QStringLiteral("Red"));
  chart_->AddArea(QStringLiteral("Tolerance"), {{0, 0.55}, {16660, 0.55}},
                  {{0, 0.65}, {16660, 0.65}});
  chart_->AddSeries(QStringLiteral("Drive"), Wave(0.3, 0));
  chart_->AddSeries(QStringLiteral("Response"), Wave(0.25, 0.6));
  chart_->AddSeries(QStringLiteral("Pulses"),
                    {{0, 1}, {3000, 1}, {3000, 1.6}, {5200, 1.6}, {5200, 1}, {16660, 1}});
  chart_->AddSeries(QStringLiteral("Steps"), {{0, 0.8}, {5000, 0.9}, {10000, 0.75}, {16660, 0.75}},
                    LineChart::Style::kSteps);
  chart_->AddMarker(LineChart::Axis::kY, 1.5, QStringLiteral("Limit"));
  chart_->AddMarker(LineChart::Axis::kX, 8330, QStringLiteral("Half"));
  chart_->AddLabel({4100, 1.6}, QStringLiteral("S pulse"));
  auto* bars = new LineChart(page);
  bars->setAccessibleName(QStringLiteral("Counts"));
  bars->SetAxisTitle(LineChart::Axis::kX, QStringLiteral("Bin"));
  bars->SetAxisTitle(LineChart::Axis::kY, QStringLiteral("Frame count"));
  bars->SetScale(LineChart::Axis::kY, LineChart::Scale::kLogarithmic);
  bars->AddSeries(QStringLiteral("Maximum"), {{1, 315789}, {2, 5263}, {3, 545}, {4, 94}},
                  LineChart::Style::kBars);
  auto* layout = new QVBoxLayout(page);
  layout->addWidget(chart_, 3);
  layout->addWidget(bars, 2);
  return page;
}

QWidget* Gallery::MakeEntryPage() {
  auto* page = new QWidget(this);
  list_ = new checkedlist(page);
  list_->setAccessibleName(QStringLiteral("Seq Rates"));
  const char* const rates[] = {"50.00 Hz (47.50 - 52.50 Hz)", "60.00 Hz (57.00 - 63.00 Hz)",
                               "120.00 Hz (114.00 - 126.00 Hz)"};
  for (int item = 0; item < 3; ++item) list_->SetItemText(item, QLatin1String(rates[item]));
  list_->SetItemText(1, 1, QStringLiteral("Yes"));
  list_->EnableItem(1, false);

  auto* entries = new QGroupBox(QStringLiteral("Numbers"), page);
  auto* form = new QFormLayout(entries);
  auto* number = new CFormattedEdit('f', entries);
  number->setText(QStringLiteral("18.000"));
  form->addRow(QStringLiteral("&Spoke Size"), number);
  form->addRow(QStringLiteral("&Index"), new CFormattedEdit('d', entries));

  auto* layout = new QGridLayout(page);
  layout->addWidget(list_, 0, 0);
  layout->addWidget(entries, 0, 1);
  layout->addWidget(MakeReadOnlyTable(page), 1, 0, 1, 2);
  return page;
}

QWidget* Gallery::MakeImagePage() {
  auto* page = new QWidget(this);
  auto* layout = new QGridLayout(page);
  int row = 0;
  for (const Image image : kImages) {
    for (const bool enabled : {true, false}) {
      auto* button = new ImageButton(page);
      button->SetImage(image, QStringLiteral("Image %1").arg(row));
      button->setEnabled(enabled);
      layout->addWidget(button, row, enabled ? 0 : 1);
    }
    auto* large = new QLabel(page);
    large->setPixmap(Icon(image).pixmap(QSize(24, 24)));
    layout->addWidget(large, row, 2);
    auto* larger = new QLabel(page);
    larger->setPixmap(Icon(image).pixmap(QSize(32, 32)));
    layout->addWidget(larger, row++, 3);
  }
  layout->setColumnStretch(4, 1);
  return page;
}

QPalette DarkPalette() {
  QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
  const QColor text(230, 230, 230), faint(127, 127, 127), base(35, 35, 35);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    dark.setColor(role, text);
    dark.setColor(QPalette::Disabled, role, faint);
  }
  dark.setColor(QPalette::Base, base);
  dark.setColor(QPalette::AlternateBase, QColor(48, 48, 48));
  dark.setColor(QPalette::ToolTipBase, base);
  dark.setColor(QPalette::ToolTipText, text);
  dark.setColor(QPalette::PlaceholderText, faint);
  dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  return dark;
}

}  // namespace GUI
