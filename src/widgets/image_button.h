// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QList>
#include <QToolButton>

#include "widgets/icons.h"
#include "widgets/row_operation.h"

namespace GUI {

class CDynamicDataGrid;

/// A button that shows a 16 x 16 image. It takes the focus by Tab, and its accessible name stays
/// the one its form gives it.
class ImageButton : public QToolButton {
  Q_OBJECT

 public:
  explicit ImageButton(QWidget* parent = nullptr);

  /// The tool tip is also the accessible name of a button that has none.
  void SetImage(Image image, const QString& tip);
  /// Makes the button a grid's button for that operation: its image, its tool tip where it has
  /// none, enabling as the grid allows, and a click runs the operation there. The button may be
  /// bound anew at any time; without a grid it is disabled.
  void BindTo(CDynamicDataGrid* grid, RowOperation operation);

 private:
  void NameIfUnnamed(const QString& name);

  QList<QMetaObject::Connection> bindings_;
};

}  // namespace GUI
