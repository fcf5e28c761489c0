// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/image_button.h"

#include <QAction>

#include "widgets/dynamic_data_grid.h"

namespace GUI {

ImageButton::ImageButton(QWidget* parent) : QToolButton(parent) { setIconSize({16, 16}); }

void ImageButton::SetImage(Image image, const QString& tip) {
  setIcon(Icon(image));
  setToolTip(tip);
  NameIfUnnamed(tip);
}

void ImageButton::BindTo(CDynamicDataGrid* grid, RowOperation operation) {
  for (const QMetaObject::Connection& old : bindings_) disconnect(old);
  bindings_.clear();
  setEnabled(grid != nullptr);
  if (!grid) return;

  const QAction* action = grid->RowAction(operation);
  setIcon(action->icon());
  if (toolTip().isEmpty()) setToolTip(action->toolTip());
  NameIfUnnamed(action->text());
  const auto follow = [this, action] { setEnabled(action->isEnabled()); };
  follow();
  bindings_ << connect(action, &QAction::changed, this, follow)
            << connect(action, &QObject::destroyed, this, [this] { setEnabled(false); })
            << connect(this, &QToolButton::clicked, grid,
                       [grid, operation] { grid->RunRowOperation(operation); });
}

void ImageButton::NameIfUnnamed(const QString& name) {
  if (accessibleName().isEmpty()) setAccessibleName(name);
}

}  // namespace GUI
