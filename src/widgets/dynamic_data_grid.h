// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QColor>
#include <QList>
#include <QStringList>
#include <QTableView>
#include <functional>
#include <memory>

#include "host/gui/table_access.h"
#include "widgets/grid_column.h"
#include "widgets/row_operation.h"
#include "widgets/rules/row_blocks.h"

class QAction;

namespace GUI {

/// A table whose columns are described once and whose rows a person adds, copies, deletes and
/// moves. Rows count from 0 without the header. Each row has an id that is never 0 and stays with
/// it, and each copied row remembers the id of the row it was copied from.
///
/// Keys: Enter, Tab and arrows move, F2, Enter or typing edit, Escape leaves the cell as it was,
/// Space toggles and presses; Ctrl+C and Ctrl+V copy and paste tab-separated text; the row
/// operations have their keys and stand in the context menu.
class CDynamicDataGrid : public QTableView, public TableAccess {
  Q_OBJECT

 public:
  /// For forms; SetColumns comes before the first row.
  explicit CDynamicDataGrid(QWidget* parent = nullptr);
  /// Throws OstException when the columns are missing.
  CDynamicDataGrid(const GridColumn* columns, int count, QWidget* parent = nullptr);
  ~CDynamicDataGrid() override;

  /// Describes the columns, once; throws OstException when they are missing. Removes all rows.
  void SetColumns(const GridColumn* columns, int count);
  template <std::size_t N>
  void SetColumns(const GridColumn (&columns)[N]) {
    SetColumns(columns, static_cast<int>(N));
  }
  [[nodiscard]] int ColumnCount() const;
  void SetHeading(int column, const QString& heading);
  /// What stands over the row headings.
  void SetCornerHeading(const QString& heading);
  void SetRowHeadingsVisible(bool visible);
  /// Shares the grid's width among the columns, whenever it changes, in the proportion of their
  /// widths. On by default.
  void SetExpandColumns(bool expand);
  /// The sample text, beside its heading, sizes the column.
  void SetColumnSample(int column, const QString& sample);

  // Rows.

  [[nodiscard]] int RowCount() const;
  /// Inserts a row before that position (-1 appends) and returns its index. values holds a text
  /// for each column: a check box is checked by "true"; the pieces of a drop-down's text between
  /// "|" are its choices, and the last piece is what it shows. Row id 0 asks for a new id.
  /// textColors is empty or holds a color for each column; an invalid color leaves the default.
  /// Text, number and push-button cells take readOnly and the background. Throws
  /// std::invalid_argument on a wrong number of values or colors, a position outside the rows or
  /// an id in use.
  int InsertRow(const QStringList& values, int position = -1, unsigned rowId = 0,
                const QList<QColor>& textColors = {}, bool readOnly = false,
                const QColor& background = {});
  /// Appends a row with a new id and selects it; returns its index.
  int AddRow(const QStringList& values);
  /// Removes all rows; ids given out are not given out again.
  void ClearRows();
  /// 0 outside the rows.
  [[nodiscard]] unsigned RowId(int row) const;
  /// The row with that id, -1 when there is none.
  [[nodiscard]] int RowOfId(unsigned rowId) const;
  /// The id of the row that a row with this id was copied from; 0 when it was not copied.
  [[nodiscard]] unsigned SourceId(unsigned rowId) const;

  // Cells: program access. It shows no messages and emits no edit signals.

  [[nodiscard]] CellKind KindOf(int column) const;
  /// What an edit would leave: a number in its format, "true" or "false" of a check box, the shown
  /// entry of a drop-down (its choices stay), the caption of a push button.
  void SetCellText(int row, int column, const QString& text);
  /// Shows an empty text, in a number cell too.
  void ClearCell(int row, int column);
  void SetChoices(int row, int column, const QStringList& choices);
  void SetCellChecked(int row, int column, bool checked);
  /// An invalid color is the default.
  void SetCellBackground(int row, int column, const QColor& color);
  void SetCellTextColor(int row, int column, const QColor& color);
  void SetCellToolTip(int row, int column, const QString& text);
  void SetCellReadOnly(int row, int column, bool readOnly);
  /// Shows data only: no edits, no row operations; selecting and copying still work.
  void SetReadOnly(bool readOnly);
  [[nodiscard]] bool IsReadOnly() const;
  /// Ends an open edit as leaving the cell does. For whoever takes the grid while a cell is open.
  void EndEditing();

  // Row operations on the selection: the runs of rows in which a cell is selected. Each returns
  // whether it changed the rows; without a selection nothing happens.

  [[nodiscard]] RowBlocks SelectedRowBlocks() const;
  void SelectRows(int first, int last);
  bool DeleteSelectedRows();
  /// Appends copies of the selected rows, with copy names where the column asks for them, and
  /// selects them.
  bool DuplicateSelectedRows();
  bool MoveSelectedUp();
  bool MoveSelectedDown();
  bool MoveSelectedToTop();
  bool MoveSelectedToBottom();

  // What buttons, keys and menu do.

  /// Whether the selection (and for kAdd the owner) allows the operation.
  [[nodiscard]] bool IsAllowed(RowOperation operation) const;
  /// Operations that the owner offers; the others have neither key nor menu entry. All but kAdd by
  /// default: kAdd needs a handler or new-row values.
  void OfferRowOperations(const QList<RowOperation>& operations);
  /// Takes the operation away while it is false, such as adding to a full table.
  void SetOperationEnabled(RowOperation operation, bool enabled);
  /// The texts of the row that kAdd appends.
  void SetNewRowValues(const QStringList& values);
  /// Runs in place of the grid's own operation, for an owner that carries data along or asks
  /// first; it calls DeleteSelectedRows and the like itself.
  void SetRowOperationHandler(std::function<void(RowOperation)> handler);
  void RunRowOperation(RowOperation operation);
  /// The grid's own operation, for a handler that adds to it.
  void RunOwnOperation(RowOperation operation);
  /// Image, tool tip, shortcut and enabling of the operation; for buttons. Owned by the grid.
  [[nodiscard]] QAction* RowAction(RowOperation operation) const;

  // TableAccess.

  [[nodiscard]] int TableRows() const override;
  [[nodiscard]] int TableColumns() const override;
  [[nodiscard]] QStringList TableHeaders() const override;
  [[nodiscard]] QString CellText(int row, int column) const override;
  /// Does nothing where a person could not edit.
  void EditCell(int row, int column, const QString& text) override;
  [[nodiscard]] QStringList CellChoices(int row, int column) const override;
  [[nodiscard]] bool CellChecked(int row, int column) const override;
  void ToggleCell(int row, int column) override;
  /// Clicks beside a check box, and on a push button.
  void ClickCell(int row, int column) override;
  /// Blocks outside the rows are left out.
  void SelectBlocks(const Blocks& blocks) override;
  [[nodiscard]] Blocks SelectedBlocks() const override;
  [[nodiscard]] bool CellEditable(int row, int column) const override;
  [[nodiscard]] bool RowEnabled(int row) const override;
  [[nodiscard]] QColor CellBackground(int row, int column) const override;
  [[nodiscard]] QString CellToolTip(int row, int column) const override;

  [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;

 signals:
  void rowSelectionChanged();
  /// A person's edit was taken and changed the cell. Pasting a block counts as one edit: it is
  /// emitted once, with the first changed cell, when all cells are in place.
  void cellEditEnded(int row, int column);
  void checkBoxToggled(int row, int column, bool checked);
  void pushButtonClicked(int row, int column);
  /// A click on any cell, after what the click did there.
  void cellClicked(int row, int column);
  /// Before and after rows are inserted, removed or moved, by whomever.
  void rowsAboutToBeChanged();
  void rowsChanged();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& selection) const override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

 private:
  struct Private;
  [[nodiscard]] QModelIndex CellAt(int row, int column) const;
  bool MoveSelected(BlockMove move);
  bool SelectCell(int row, int column);
  void StepFrom(CursorAction step);
  void AddClipboardActions();
  void CopyCells();
  void PasteCells();

  std::unique_ptr<Private> d_;
};

}  // namespace GUI
