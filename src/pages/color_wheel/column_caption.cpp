// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/color_wheel/column_caption.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <algorithm>

namespace color_wheel {

ColumnCaption::ColumnCaption(QWidget* parent)
    : QWidget(parent), caption_(new QLabel(this)), columns_(new QLabel(this)) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  columns_->setAlignment(Qt::AlignCenter);
}

void ColumnCaption::SetUp(QTableView& table, const QString& caption, int firstColumn,
                          const QString& columns) {
  table_ = &table;
  firstColumn_ = firstColumn;
  caption_->setText(caption);
  caption_->setBuddy(&table);
  columns_->setText(columns);
  const QHeaderView* header = table.horizontalHeader();
  connect(header, &QHeaderView::sectionResized, this, &ColumnCaption::Place);
  connect(header, &QHeaderView::geometriesChanged, this, &ColumnCaption::Place);
  Place();
}

QSize ColumnCaption::sizeHint() const {
  const QSize left = caption_->sizeHint(), right = columns_->sizeHint();
  return {left.width() + right.width() + 12, std::max(left.height(), right.height())};
}

void ColumnCaption::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Place();
}

void ColumnCaption::Place() {
  if (!table_) return;
  const int left = caption_->sizeHint().width();
  caption_->setGeometry(0, 0, left, height());
  const QHeaderView& header = *table_->horizontalHeader();
  const int begin = std::max(header.x() + header.sectionViewportPosition(firstColumn_), left + 8);
  const int end = std::min(header.x() + header.sectionViewportPosition(header.count() - 1) +
                               header.sectionSize(header.count() - 1),
                           width());
  columns_->setGeometry(begin, 0, std::max(end - begin, columns_->sizeHint().width()), height());
}

}  // namespace color_wheel
