// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/data_grid_model.h"

#include <QBrush>
#include <algorithm>
#include <numeric>

#include "host/gui/message_box.h"
#include "widgets/grid_fmt_num_cell.h"

namespace GUI {

namespace {

const QString& BoxText(bool checked) {
  static const QString yes = QStringLiteral("true"), no = QStringLiteral("false");
  return checked ? yes : no;
}

/// Whether XML can carry the text: no control characters but tab and line ends, no lone halves of
/// surrogate pairs, no non-characters.
bool IsStorable(const QString& text) {
  const auto storable = [](char32_t c) {
    return c >= 0x20 ? (c < 0xD800 || c > 0xDFFF) && c != 0xFFFE && c != 0xFFFF
                     : c == '\t' || c == '\n' || c == '\r';
  };
  const QList<uint> characters = text.toUcs4();
  return std::ranges::all_of(characters, storable);
}

/// A color that can be read on the background.
QColor InkOn(const QColor& background) {
  return qGray(background.rgb()) < 128 ? QColor(Qt::white) : QColor(Qt::black);
}

}  // namespace

void DataGridModel::SetColumns(std::vector<GridColumn> columns) {
  beginResetModel();
  rows_.clear();
  rowOfId_.clear();
  knownChoices_.clear();
  knownRowChoices_.clear();
  knownLooks_ = {};
  columns_ = std::move(columns);
  endResetModel();
}

bool DataGridModel::Holds(int row, int column) const {
  return row >= 0 && row < Rows() && column >= 0 && column < Columns();
}

void DataGridModel::SetHeading(int column, const QString& heading) {
  columns_.at(Index(column)).heading = heading;
  emit headerDataChanged(Qt::Horizontal, column, column);
}

GridRow DataGridModel::MakeRow(const QStringList& values) {
  GridRow row;
  row.texts = values;
  QList<QStringList> choices = knownRowChoices_;
  for (int column = 0; column < Columns(); ++column) {
    switch (Column(column).kind) {
      case CellKind::kDropDown:
        TakeDropDown(column, row.texts[column], choices);
        break;
      case CellKind::kNumber:
      case CellKind::kCheckBox:
        row.texts[column] = Formatted(column, values[column]);
        break;
      case CellKind::kText:
      case CellKind::kPushButton:
        break;
    }
  }
  knownRowChoices_ = choices;
  row.choices = choices;
  return row;
}

/// Splits a drop-down's value into its choices and the text it shows.
void DataGridModel::TakeDropDown(int column, QString& value, QList<QStringList>& choices) {
  if (choices.isEmpty()) choices.resize(Columns());
  KnownChoices& known = knownChoices_[column];
  const qsizetype bar = value.lastIndexOf(u'|');
  const bool isKnown =
      bar > 0 && bar + 1 < value.size() && known.joined == QStringView(value).left(bar);
  if (!isKnown) {
    QStringList pieces = value.split(u'|', Qt::SkipEmptyParts);
    known.joined = value.left(std::max<qsizetype>(bar, 0));
    value = pieces.isEmpty() ? QString() : pieces.takeLast();
    known.choices = pieces;
  } else {
    value.remove(0, bar + 1);
  }
  if (!choices.at(column).isSharedWith(known.choices)) choices[column] = known.choices;
  const qsizetype chosen = known.choices.indexOf(value);
  if (chosen >= 0) value = known.choices.at(chosen);
}

QList<CellLook> DataGridModel::MakeLooks(const QList<QColor>& textColors, bool readOnly,
                                         const QColor& background) {
  if (textColors.isEmpty() && !readOnly && !background.isValid()) return {};
  const KnownLooks& known = knownLooks_;
  if (!known.looks.isEmpty() && known.readOnly == readOnly && known.background == background &&
      known.textColors == textColors) {
    return known.looks;
  }
  QList<CellLook> looks(Columns());
  for (int column = 0; column < Columns(); ++column) {
    CellLook& look = looks[column];
    if (!textColors.isEmpty()) look.text = textColors[column];
    const CellKind kind = Column(column).kind;
    // Check boxes and drop-downs have neither: a person may use them in a read-only row.
    if (kind == CellKind::kCheckBox || kind == CellKind::kDropDown) continue;
    look.readOnly = readOnly;
    look.background = background;
  }
  knownLooks_ = {textColors, readOnly, background, looks};
  return looks;
}

void DataGridModel::InsertRows(int position, std::vector<GridRow> rows) {
  if (rows.empty()) return;
  const int count = static_cast<int>(rows.size());
  beginInsertRows({}, position, position + count - 1);
  const bool keepsIndex = position == Rows() && rowOfId_.size() == Rows();
  if (!keepsIndex) rowOfId_.clear();
  for (int i = 0; keepsIndex && i < count; ++i) rowOfId_.insert(rows[Index(i)].id, position + i);
  rows_.insert(rows_.begin() + position, std::make_move_iterator(rows.begin()),
               std::make_move_iterator(rows.end()));
  endInsertRows();
}

void DataGridModel::InsertRow(int position, GridRow row) {
  std::vector<GridRow> rows;
  rows.push_back(std::move(row));
  InsertRows(position, std::move(rows));
}

void DataGridModel::RemoveBlocks(const RowBlocks& blocks) {
  if (blocks.empty()) return;
  // Many blocks go to the end first: removing them one by one would shift the rest for each.
  if (blocks.size() > 1) Reorder(MoveBlocks(Rows(), blocks, BlockMove::kToBottom).order);
  int count = 0;
  for (const RowBlock& block : blocks) count += block.second - block.first + 1;
  const int first = blocks.size() > 1 ? Rows() - count : blocks.front().first;
  beginRemoveRows({}, first, first + count - 1);
  rows_.erase(rows_.begin() + first, rows_.begin() + first + count);
  rowOfId_.clear();
  endRemoveRows();
}

void DataGridModel::Reorder(const std::vector<int>& order) {
  emit layoutAboutToBeChanged({}, VerticalSortHint);
  std::vector<GridRow> rows(rows_.size());
  std::vector<int> placeOf(rows_.size());
  for (std::size_t place = 0; place < order.size(); ++place) {
    rows[place] = std::move(rows_[Index(order[place])]);
    placeOf[Index(order[place])] = static_cast<int>(place);
  }
  rows_ = std::move(rows);
  rowOfId_.clear();
  const QModelIndexList from = persistentIndexList();
  QModelIndexList to;
  to.reserve(from.size());
  for (const QModelIndex& index : from) {
    to << createIndex(placeOf[Index(index.row())], index.column());
  }
  changePersistentIndexList(from, to);
  emit layoutChanged({}, VerticalSortHint);
}

void DataGridModel::Clear() {
  if (!rows_.empty()) RemoveBlocks({{0, Rows() - 1}});
}

int DataGridModel::RowOfId(unsigned id) const {
  if (rowOfId_.size() != Rows()) IndexIds();
  return rowOfId_.value(id, -1);
}

void DataGridModel::IndexIds() const {
  rowOfId_.clear();
  rowOfId_.reserve(Rows());
  for (int row = 0; row < Rows(); ++row) rowOfId_.insert(Row(row).id, row);
}

NumberCellFormat DataGridModel::NumberFormat(int column) const {
  const GridColumn& c = Column(column);
  return {static_cast<std::uint16_t>(c.decimals), c.minimum, c.maximum, c.minimumSet, c.maximumSet};
}

QString DataGridModel::Formatted(int column, const QString& text) const {
  switch (Column(column).kind) {
    case CellKind::kNumber:
      return CGridFmtNumCell(NumberFormat(column), text).Text();
    case CellKind::kCheckBox:
      return BoxText(text == BoxText(true));
    default:
      return text;
  }
}

QString DataGridModel::Edited(int column, const QString& text) const {
  return Column(column).asTyped ? text : Formatted(column, text);
}

void DataGridModel::SetText(int row, int column, const QString& text) {
  SetTextUnformatted(row, column, Formatted(column, text));
}

void DataGridModel::SetTextUnformatted(int row, int column, const QString& text) {
  rows_.at(Index(row)).texts[column] = text;
  Changed(row, column);
}

QStringList DataGridModel::Choices(int row, int column) const {
  return Row(row).choices.value(column);
}

void DataGridModel::SetChoices(int row, int column, const QStringList& choices) {
  QList<QStringList>& all = rows_.at(Index(row)).choices;
  if (all.isEmpty()) all.resize(Columns());
  all[column] = choices;
}

CellLook DataGridModel::Look(int row, int column) const { return Row(row).looks.value(column); }

void DataGridModel::SetLook(int row, int column, const CellLook& look) {
  if (look == Look(row, column)) return;
  QList<CellLook>& looks = rows_.at(Index(row)).looks;
  if (looks.isEmpty()) looks.resize(Columns());
  looks[column] = look;
  Changed(row, column);
}

bool DataGridModel::IsChecked(int row, int column) const {
  return Row(row).texts[column] == BoxText(true);
}

void DataGridModel::SetReadOnly(bool readOnly) {
  readOnly_ = readOnly;
  if (Rows() > 0) emit dataChanged(index(0, 0), index(Rows() - 1, Columns() - 1));
}

bool DataGridModel::IsChangeable(int row, int column) const {
  return !readOnly_ && Column(column).kind != CellKind::kPushButton && !Look(row, column).readOnly;
}

std::optional<QString> DataGridModel::Refusal(int row, int column, const QString& text) const {
  switch (Column(column).kind) {
    case CellKind::kNumber: {
      if (Column(column).asTyped) return std::nullopt;
      const auto refusal = NumberFormat(column).Refusal(text.toStdString());
      return refusal ? std::optional(QString::fromStdString(*refusal)) : std::nullopt;
    }
    case CellKind::kDropDown:
      if (Choices(row, column).contains(text)) return std::nullopt;
      return tr("\"%1\" is not one of the choices.").arg(text);
    case CellKind::kCheckBox:
      if (text == BoxText(true) || text == BoxText(false)) return std::nullopt;
      return tr("Please enter true or false.");
    default:
      if (IsStorable(text)) return std::nullopt;
      return tr("The text has a character that cannot be stored.");
  }
}

bool DataGridModel::Validate(int row, int column, const QString& text) const {
  if (Column(column).kind == CellKind::kNumber && !Column(column).asTyped) {
    return CGridFmtNumCell(NumberFormat(column)).ValidateEdit(text);
  }
  const auto refusal = Refusal(row, column, text);
  if (refusal) ShowMessageBox(refusal->toStdString());
  return !refusal;
}

bool DataGridModel::Edit(int row, int column, const QString& text) {
  const QString before = Row(row).texts[column];
  if (text == before) return true;
  if (!Validate(row, column, text)) {
    emit editRefused();
    return false;
  }
  SetTextUnformatted(row, column, Edited(column, text));
  if (Row(row).texts[column] != before) emit cellEdited(row, column);
  return true;
}

bool DataGridModel::Check(int row, int column, bool checked) {
  if (IsChecked(row, column) == checked) return true;
  SetTextUnformatted(row, column, BoxText(checked));
  emit boxToggled(row, column, checked);
  return true;
}

int DataGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Rows();
}

int DataGridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Columns();
}

QVariant DataGridModel::data(const QModelIndex& index, int role) const {
  if (!Holds(index.row(), index.column())) return {};
  const GridRow& row = Row(index.row());
  const bool isBox = Column(index.column()).kind == CellKind::kCheckBox;
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return isBox ? QVariant() : row.texts[index.column()];
    case Qt::CheckStateRole:
      if (!isBox) return {};
      return IsChecked(index.row(), index.column()) ? Qt::Checked : Qt::Unchecked;
    case Qt::TextAlignmentRole:
      return Alignment(index.column());
    default:
      break;
  }
  if (row.looks.isEmpty()) return {};
  const CellLook& look = row.looks[index.column()];
  switch (role) {
    case Qt::BackgroundRole:
      return look.background.isValid() ? QBrush(look.background) : QVariant();
    case Qt::ForegroundRole:
      if (look.text.isValid()) return QBrush(look.text);
      // The palette's text may be light, the given background too.
      return look.background.isValid() ? QBrush(InkOn(look.background)) : QVariant();
    case Qt::ToolTipRole:
      return look.toolTip.isEmpty() ? QVariant() : look.toolTip;
    default:
      return {};
  }
}

QVariant DataGridModel::Alignment(int column) const {
  switch (Column(column).kind) {
    case CellKind::kNumber:
      return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    case CellKind::kCheckBox:
    case CellKind::kPushButton:
      return Qt::AlignCenter;
    default:
      return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
  }
}

bool DataGridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!Holds(index.row(), index.column()) || !IsChangeable(index.row(), index.column())) {
    return false;
  }
  const bool isBox = Column(index.column()).kind == CellKind::kCheckBox;
  if (role == Qt::CheckStateRole && isBox) {
    return Check(index.row(), index.column(), value.toInt() == Qt::Checked);
  }
  if (role != Qt::EditRole || isBox) return false;
  return Edit(index.row(), index.column(), value.toString());
}

Qt::ItemFlags DataGridModel::flags(const QModelIndex& index) const {
  if (!Holds(index.row(), index.column())) return Qt::NoItemFlags;
  const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  if (!IsChangeable(index.row(), index.column())) return shown;
  const bool isBox = Column(index.column()).kind == CellKind::kCheckBox;
  return shown | (isBox ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

QVariant DataGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role == Qt::TextAlignmentRole) return Qt::AlignCenter;
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return QString::number(section);
  if (section < 0 || section >= Columns()) return {};
  return QString(Column(section).heading).remove(u'\r');
}

void DataGridModel::Changed(int row, int column) {
  const QModelIndex changed = index(row, column);
  emit dataChanged(changed, changed);
}

}  // namespace GUI
