// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/dynamic_data_grid.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>
#include <stdexcept>

#include "host/project/ost_exception.h"
#include "widgets/dynamic_data_grid_private.h"
#include "widgets/rules/copy_names.h"

namespace GUI {

namespace {

/// What stands over the row headings, in the button that selects all.
QLabel* MakeCorner(QTableView& table) {
  auto* button = table.findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
  if (!button) return nullptr;
  auto* label = new QLabel(button);
  label->setAlignment(Qt::AlignCenter);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* layout = new QVBoxLayout(button);
  layout->setContentsMargins(2, 0, 2, 0);
  layout->addWidget(label);
  return label;
}

}  // namespace

CDynamicDataGrid::Private::Private(CDynamicDataGrid& owner)
    : grid(owner),
      delegate(model),
      rowActions(owner, [this](RowOperation operation) { grid.RunRowOperation(operation); }),
      columnFit(owner),
      corner(MakeCorner(owner)) {
  scrollLater.setSingleShot(true);
  scrollLater.setInterval(0);
  QObject::connect(&scrollLater, &QTimer::timeout, &owner,
                   [this] { grid.scrollTo(grid.currentIndex()); });
}

CDynamicDataGrid::CDynamicDataGrid(QWidget* parent)
    : QTableView(parent), d_(std::make_unique<Private>(*this)) {
  // Before the model: from then on the selection sets the actions.
  AddClipboardActions();
  setModel(&d_->model);
  setItemDelegate(&d_->delegate);
  setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
  setSelectionMode(ExtendedSelection);
  setWordWrap(false);
  // The cells draw their own lines.
  setShowGrid(false);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  // With the table's selection the row headings would find their places for every row added; they
  // do not show it.
  verticalHeader()->setHighlightSections(false);
  verticalHeader()->setSelectionModel(new QItemSelectionModel(&d_->model, verticalHeader()));
  d_->UpdateRowHeight();
  d_->UpdateActions();
  connect(&d_->model, &DataGridModel::cellEdited, this, &CDynamicDataGrid::cellEditEnded);
  connect(&d_->model, &DataGridModel::boxToggled, this, &CDynamicDataGrid::checkBoxToggled);
  connect(&d_->model, &DataGridModel::editRefused, this, [this] { d_->editRefused = true; });
  connect(&d_->delegate, &DataGridDelegate::buttonClicked, this,
          &CDynamicDataGrid::pushButtonClicked);
  connect(this, &QTableView::clicked, this,
          [this](const QModelIndex& cell) { emit cellClicked(cell.row(), cell.column()); });
}

CDynamicDataGrid::CDynamicDataGrid(const GridColumn* columns, int count, QWidget* parent)
    : CDynamicDataGrid(parent) {
  SetColumns(columns, count);
}

CDynamicDataGrid::~CDynamicDataGrid() {
  // The model goes before the view; nobody is to hear of it.
  d_->quiet = true;
  setModel(nullptr);
}

void CDynamicDataGrid::SetColumns(const GridColumn* columns, int count) {
  if (!columns || count <= 0) {
    throw OstException("Error creating a new instance of CDynamicDataGrid.");
  }
  d_->copyMap.clear();
  d_->model.SetColumns({columns, columns + count});
  d_->columnFit.Reset();
}

int CDynamicDataGrid::ColumnCount() const { return d_->model.Columns(); }

void CDynamicDataGrid::SetHeading(int column, const QString& heading) {
  d_->model.SetHeading(column, heading);
  d_->columnFit.Fit();
}

void CDynamicDataGrid::SetCornerHeading(const QString& heading) {
  if (!d_->corner) return;
  d_->corner->setText(heading);
  verticalHeader()->setMinimumWidth(d_->corner->sizeHint().width() + 8);
}

void CDynamicDataGrid::SetRowHeadingsVisible(bool visible) {
  verticalHeader()->setVisible(visible);
}

void CDynamicDataGrid::SetExpandColumns(bool expand) { d_->columnFit.SetExpanding(expand); }

void CDynamicDataGrid::SetColumnSample(int column, const QString& sample) {
  d_->columnFit.SetSample(column, sample);
}

int CDynamicDataGrid::RowCount() const { return d_->model.Rows(); }

int CDynamicDataGrid::InsertRow(const QStringList& values, int position, unsigned rowId,
                                const QList<QColor>& textColors, bool readOnly,
                                const QColor& background) {
  if (values.size() != ColumnCount()) throw std::invalid_argument("a value for each column");
  if (!textColors.isEmpty() && textColors.size() != ColumnCount()) {
    throw std::invalid_argument("no text color, or one for each column");
  }
  if (position < -1 || position > RowCount()) throw std::invalid_argument("no such position");
  if (rowId != 0 && RowOfId(rowId) >= 0) throw std::invalid_argument("row id in use");

  GridRow row = d_->model.MakeRow(values);
  row.looks = d_->model.MakeLooks(textColors, readOnly, background);
  row.id = rowId != 0 ? rowId : d_->NewId();
  d_->highestGivenId = std::max(d_->highestGivenId, rowId);
  const int place = position < 0 ? RowCount() : position;
  d_->ChangeRows([&] { d_->model.InsertRow(place, std::move(row)); });
  return place;
}

int CDynamicDataGrid::AddRow(const QStringList& values) {
  const int row = InsertRow(values);
  SelectRows(row, row);
  return row;
}

void CDynamicDataGrid::ClearRows() {
  if (RowCount() == 0) return;
  d_->ChangeRows([this] {
    d_->copyMap.clear();
    d_->SelectQuietly({});
    d_->model.Clear();
  });
  emit rowSelectionChanged();
}

unsigned CDynamicDataGrid::RowId(int row) const {
  return row >= 0 && row < RowCount() ? d_->model.Row(row).id : 0;
}

int CDynamicDataGrid::RowOfId(unsigned rowId) const { return d_->model.RowOfId(rowId); }

unsigned CDynamicDataGrid::SourceId(unsigned rowId) const {
  const auto found = d_->copyMap.find(rowId);
  return found == d_->copyMap.end() ? 0 : found->second;
}

RowBlocks CDynamicDataGrid::SelectedRowBlocks() const {
  RowBlocks blocks;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    blocks.emplace_back(range.top(), range.bottom());
  }
  return MergedBlocks(std::move(blocks));
}

void CDynamicDataGrid::SelectRows(int first, int last) { d_->Select({{first, last}}); }

bool CDynamicDataGrid::DeleteSelectedRows() {
  const RowBlocks blocks = SelectedRowBlocks();
  if (blocks.empty()) return false;
  d_->ChangeRows([&] {
    for (const auto& [first, last] : blocks) {
      for (int row = first; row <= last; ++row) d_->copyMap.erase(RowId(row));
    }
    d_->SelectQuietly({});
    d_->model.RemoveBlocks(blocks);
  });
  const int next = std::min(blocks.front().first, RowCount() - 1);
  if (next >= 0) {
    SelectRows(next, next);
  } else {
    emit rowSelectionChanged();
  }
  return true;
}

bool CDynamicDataGrid::DuplicateSelectedRows() {
  const RowBlocks blocks = SelectedRowBlocks();
  if (blocks.empty()) return false;
  const int first = RowCount();
  d_->ChangeRows([&] { d_->model.InsertRows(first, d_->CopiesOf(blocks)); });
  SelectRows(first, RowCount() - 1);
  return true;
}

bool CDynamicDataGrid::MoveSelectedUp() { return MoveSelected(BlockMove::kUp); }

bool CDynamicDataGrid::MoveSelectedDown() { return MoveSelected(BlockMove::kDown); }

bool CDynamicDataGrid::MoveSelectedToTop() { return MoveSelected(BlockMove::kToTop); }

bool CDynamicDataGrid::MoveSelectedToBottom() { return MoveSelected(BlockMove::kToBottom); }

bool CDynamicDataGrid::MoveSelected(BlockMove move) {
  const MovedRows moved = MoveBlocks(RowCount(), SelectedRowBlocks(), move);
  if (!moved.changed) return false;
  d_->ChangeRows([&] {
    d_->SelectQuietly({});
    d_->model.Reorder(moved.order);
  });
  d_->Select(moved.blocks);
  return true;
}

bool CDynamicDataGrid::IsAllowed(RowOperation operation) const {
  return d_->Allows(operation, SelectedRowBlocks());
}

void CDynamicDataGrid::OfferRowOperations(const QList<RowOperation>& operations) {
  d_->rowActions.Offer(operations);
  d_->UpdateActions();
}

void CDynamicDataGrid::SetOperationEnabled(RowOperation operation, bool enabled) {
  d_->rowActions.SetEnabledByOwner(operation, enabled);
  d_->UpdateActions();
}

void CDynamicDataGrid::SetNewRowValues(const QStringList& values) {
  d_->newRowValues = values;
  d_->UpdateActions();
}

void CDynamicDataGrid::SetRowOperationHandler(std::function<void(RowOperation)> handler) {
  d_->handler = std::move(handler);
  d_->UpdateActions();
}

void CDynamicDataGrid::RunRowOperation(RowOperation operation) {
  EndEditing();
  if (!IsAllowed(operation)) return;
  if (d_->handler) {
    d_->handler(operation);
  } else {
    d_->RunOwn(operation);
  }
}

void CDynamicDataGrid::RunOwnOperation(RowOperation operation) { d_->RunOwn(operation); }

QAction* CDynamicDataGrid::RowAction(RowOperation operation) const {
  return d_->rowActions.Action(operation);
}

unsigned CDynamicDataGrid::Private::NewId() {
  do {
    if (++lastId == 0) {
      // All ids have been given out once: from here on each may still be in use.
      ++lastId;
      highestGivenId = std::numeric_limits<unsigned>::max();
    }
  } while (lastId <= highestGivenId && model.RowOfId(lastId) >= 0);
  return lastId;
}

std::vector<GridRow> CDynamicDataGrid::Private::CopiesOf(const RowBlocks& blocks) {
  std::map<int, CopyNames> names;
  for (int column = 0; column < model.Columns(); ++column) {
    if (!model.Column(column).uniqueCopies) continue;
    for (int row = 0; row < model.Rows(); ++row) {
      names[column].Add(model.Row(row).texts[column].toStdString());
    }
  }
  std::vector<GridRow> copies;
  for (const auto& [first, last] : blocks) {
    for (int row = first; row <= last; ++row) {
      const GridRow& source = model.Row(row);
      GridRow copy{NewId(), source.texts, source.choices, {}};
      // The header row counts among the rows.
      const long long totalRows = model.Rows() + 1 + static_cast<long long>(copies.size());
      for (auto& [column, used] : names) {
        const std::string name = used.NameFor(source.texts[column].toStdString(), totalRows);
        copy.texts[column] = model.Formatted(column, QString::fromStdString(name));
      }
      copyMap[copy.id] = source.id;
      copies.push_back(std::move(copy));
    }
  }
  return copies;
}

void CDynamicDataGrid::Private::Select(const RowBlocks& blocks) {
  QItemSelection selection;
  for (const auto& [first, last] : blocks) {
    const QModelIndex top = model.index(first, 0);
    const QModelIndex bottom = model.index(last, model.Columns() - 1);
    if (top.isValid() && bottom.isValid()) selection.append(QItemSelectionRange(top, bottom));
  }
  // Rows are often added one after the other: where they are is asked, and scrolled to, once.
  placesUnknown = true;
  if (!selection.isEmpty()) {
    const int column = std::max(grid.currentIndex().column(), 0);
    grid.setAutoScroll(false);
    grid.selectionModel()->setCurrentIndex(model.index(selection.front().top(), column),
                                           QItemSelectionModel::NoUpdate);
    grid.setAutoScroll(true);
    scrollLater.start();
  }
  // The old selection goes first: Qt compares every old range with every new one.
  SelectQuietly({});
  SelectQuietly(selection);
  placesUnknown = false;
  grid.viewport()->update();
  UpdateActions();
  emit grid.rowSelectionChanged();
}

void CDynamicDataGrid::Private::SelectQuietly(const QItemSelection& selection) {
  quiet = true;
  grid.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  quiet = false;
}

bool CDynamicDataGrid::Private::Allows(RowOperation operation, const RowBlocks& blocks) const {
  if (!rowActions.IsOpen(operation) || model.IsReadOnly() || !grid.isEnabled()) return false;
  switch (operation) {
    case RowOperation::kAdd:
      return handler || !newRowValues.isEmpty();
    case RowOperation::kCopy:
    case RowOperation::kDelete:
      return !blocks.empty();
    case RowOperation::kMoveToTop:
    case RowOperation::kMoveUp:
      return !blocks.empty() && blocks.front().first > 0;
    case RowOperation::kMoveDown:
    case RowOperation::kMoveToBottom:
      return !blocks.empty() && blocks.back().second < model.Rows() - 1;
  }
  return false;
}

void CDynamicDataGrid::Private::UpdateActions() {
  const RowBlocks blocks = grid.SelectedRowBlocks();
  for (const RowOperation operation : kRowOperations) {
    rowActions.Action(operation)->setEnabled(Allows(operation, blocks));
  }
  paste->setEnabled(!model.IsReadOnly() && grid.isEnabled());
}

void CDynamicDataGrid::Private::RunOwn(RowOperation operation) {
  switch (operation) {
    case RowOperation::kAdd:
      grid.AddRow(newRowValues);
      break;
    case RowOperation::kCopy:
      grid.DuplicateSelectedRows();
      break;
    case RowOperation::kDelete:
      grid.DeleteSelectedRows();
      break;
    case RowOperation::kMoveToTop:
      grid.MoveSelectedToTop();
      break;
    case RowOperation::kMoveUp:
      grid.MoveSelectedUp();
      break;
    case RowOperation::kMoveDown:
      grid.MoveSelectedDown();
      break;
    case RowOperation::kMoveToBottom:
      grid.MoveSelectedToBottom();
      break;
  }
}

}  // namespace GUI
