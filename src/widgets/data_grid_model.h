// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QStringList>
#include <map>
#include <optional>
#include <vector>

#include "widgets/grid_column.h"
#include "widgets/rules/number_cell.h"
#include "widgets/rules/row_blocks.h"

namespace GUI {

/// How one cell differs from its column's look.
struct CellLook {
  QColor text;
  QColor background;
  QString toolTip;
  bool readOnly = false;
  bool operator==(const CellLook&) const = default;
};

/// One row. Its lists share their data with other rows that say the same, so that a row is light.
struct GridRow {
  unsigned id = 0;
  /// A text for each column; "true" or "false" for a check box.
  QStringList texts;
  /// Empty, or the choices of each column.
  QList<QStringList> choices;
  /// Empty, or a look for each column.
  QList<CellLook> looks;
};

/// Rows and cells of a CDynamicDataGrid. setData is a person's edit: it is checked, shows why it
/// is refused and is signalled; the Set functions are the program's.
class DataGridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  void SetColumns(std::vector<GridColumn> columns);
  [[nodiscard]] const GridColumn& Column(int column) const { return columns_.at(Index(column)); }
  [[nodiscard]] int Columns() const { return static_cast<int>(columns_.size()); }
  [[nodiscard]] int Rows() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] const GridRow& Row(int row) const { return rows_.at(Index(row)); }
  [[nodiscard]] bool Holds(int row, int column) const;
  void SetHeading(int column, const QString& heading);

  /// A row of these values, as CDynamicDataGrid::InsertRow takes them, without an id.
  [[nodiscard]] GridRow MakeRow(const QStringList& values);
  /// The looks of a row that is inserted so.
  [[nodiscard]] QList<CellLook> MakeLooks(const QList<QColor>& textColors, bool readOnly,
                                          const QColor& background);
  void InsertRow(int position, GridRow row);
  void InsertRows(int position, std::vector<GridRow> rows);
  void RemoveBlocks(const RowBlocks& blocks);
  /// order[i] is the row that comes to stand at i.
  void Reorder(const std::vector<int>& order);
  void Clear();
  [[nodiscard]] int RowOfId(unsigned id) const;

  /// The text that this cell makes of a text.
  [[nodiscard]] QString Formatted(int column, const QString& text) const;
  /// What an edit of that text leaves in the cell.
  [[nodiscard]] QString Edited(int column, const QString& text) const;
  void SetText(int row, int column, const QString& text);
  void SetTextUnformatted(int row, int column, const QString& text);
  [[nodiscard]] QStringList Choices(int row, int column) const;
  void SetChoices(int row, int column, const QStringList& choices);
  [[nodiscard]] CellLook Look(int row, int column) const;
  void SetLook(int row, int column, const CellLook& look);
  [[nodiscard]] bool IsChecked(int row, int column) const;

  [[nodiscard]] bool IsReadOnly() const { return readOnly_; }
  void SetReadOnly(bool readOnly);
  /// Whether a person may change the cell at all: type, choose, toggle.
  [[nodiscard]] bool IsChangeable(int row, int column) const;
  /// Why the text may not be entered there; nothing when it may.
  [[nodiscard]] std::optional<QString> Refusal(int row, int column, const QString& text) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;

 signals:
  void cellEdited(int row, int column);
  void boxToggled(int row, int column, bool checked);
  void editRefused();

 private:
  static std::size_t Index(int number) { return static_cast<std::size_t>(number); }
  void TakeDropDown(int column, QString& value, QList<QStringList>& choices);
  [[nodiscard]] NumberCellFormat NumberFormat(int column) const;
  [[nodiscard]] bool Validate(int row, int column, const QString& text) const;
  bool Edit(int row, int column, const QString& text);
  bool Check(int row, int column, bool checked);
  [[nodiscard]] QVariant Alignment(int column) const;
  void Changed(int row, int column);
  void IndexIds() const;

  struct KnownChoices {
    QString joined;
    QStringList choices;
  };
  struct KnownLooks {
    QList<QColor> textColors;
    bool readOnly = false;
    QColor background;
    QList<CellLook> looks;
  };

  std::vector<GridColumn> columns_;
  std::vector<GridRow> rows_;
  bool readOnly_ = false;
  /// What the last row said, to be shared by the next one.
  std::map<int, KnownChoices> knownChoices_;
  QList<QStringList> knownRowChoices_;
  KnownLooks knownLooks_;
  /// Row of each id; empty when it has to be built anew.
  mutable QHash<unsigned, int> rowOfId_;
};

}  // namespace GUI
