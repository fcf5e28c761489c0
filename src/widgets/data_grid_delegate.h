// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

namespace GUI {

class DataGridModel;

/// Draws and edits the cells of a CDynamicDataGrid. A widget exists for a cell only while it is
/// edited.
class DataGridDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  /// The model must outlive the delegate.
  explicit DataGridDelegate(DataGridModel& model, QObject* parent = nullptr);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  /// Lets go of the push button that is held down.
  void ReleaseButton() { pressed_ = QModelIndex(); }
  /// Where the box of a check-box cell is.
  [[nodiscard]] static QRect BoxRect(const QRect& cell);
  /// Where a drop-down cell opens by one click.
  [[nodiscard]] static QRect ArrowRect(const QRect& cell);

 signals:
  void buttonClicked(int row, int column);

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  [[nodiscard]] QWidget* MakeDropDown(QWidget* parent) const;
  void PaintBox(QPainter& painter, const QStyleOptionViewItem& option,
                const QModelIndex& index) const;
  void PaintButton(QPainter& painter, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const;
  bool ToggleByEvent(const QEvent& event, const QRect& cell, const QModelIndex& index);
  bool PressByEvent(const QEvent& event, const QRect& cell, const QModelIndex& index);

  DataGridModel& model_;
  /// The push button that the mouse holds down.
  QPersistentModelIndex pressed_;
};

}  // namespace GUI
