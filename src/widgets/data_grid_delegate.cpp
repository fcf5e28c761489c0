// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/data_grid_delegate.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <functional>

#include "widgets/data_grid_model.h"
#include "widgets/icons.h"

namespace GUI {

namespace {

constexpr int kBoxSize = 13;
constexpr int kArrowSize = 16;

/// The list of a drop-down cell. It leaves the cell with its popup.
class DropDownEditor : public QComboBox {
 public:
  using QComboBox::QComboBox;
  std::function<void()> closed;

  /// Before, a typed letter only searches the list.
  [[nodiscard]] bool WasShown() const { return wasShown_; }

  void showPopup() override {
    wasShown_ = true;
    QComboBox::showPopup();
  }

  void hidePopup() override {
    QComboBox::hidePopup();
    // What was chosen is signalled after the popup has gone.
    QTimer::singleShot(0, this, [this] { closed(); });
  }

 private:
  bool wasShown_ = false;
};

bool IsActivatingKey(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Space || key == Qt::Key_Select || key == Qt::Key_Return ||
         key == Qt::Key_Enter;
}

/// Whether the left button does that inside of the rectangle.
bool IsLeft(const QEvent& event, QEvent::Type type, const QRect& rect) {
  if (event.type() != type) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(event);
  return mouse.button() == Qt::LeftButton && rect.contains(mouse.position().toPoint());
}

QColor Mixed(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int x, int y) { return qRound(x + (y - x) * share); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// A line between cells that shows on light and dark backgrounds; the style's own vanishes on dark
/// ones.
void DrawLines(QPainter& painter, const QStyleOptionViewItem& option) {
  const QPalette& palette = option.palette;
  painter.setPen(Mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.2));
  painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  painter.drawLine(option.rect.topRight(), option.rect.bottomRight());
}

void Disable(QStyleOption& option) {
  option.state &= ~QStyle::State_Enabled;
  option.palette.setCurrentColorGroup(QPalette::Disabled);
}

QStyle& StyleOf(const QStyleOptionViewItem& option) {
  return option.widget ? *option.widget->style() : *QApplication::style();
}

}  // namespace

DataGridDelegate::DataGridDelegate(DataGridModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

QRect DataGridDelegate::BoxRect(const QRect& cell) {
  QRect box(0, 0, kBoxSize, kBoxSize);
  box.moveCenter(cell.center());
  return box;
}

QRect DataGridDelegate::ArrowRect(const QRect& cell) {
  return cell.adjusted(cell.width() - kArrowSize - 4, 0, 0, 0);
}

void DataGridDelegate::initStyleOption(QStyleOptionViewItem* option,
                                       const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  switch (model_.Column(index.column()).kind) {
    case CellKind::kCheckBox:
    case CellKind::kPushButton:
      // Drawn over the empty cell.
      option->features &=
          ~(QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay);
      option->text.clear();
      break;
    case CellKind::kDropDown: {
      static const QIcon arrow = Icon(Image::kDropDown);
      if (!model_.IsChangeable(index.row(), index.column())) break;
      option->features |= QStyleOptionViewItem::HasDecoration;
      option->icon = arrow;
      option->decorationSize = {kArrowSize, kArrowSize};
      option->decorationPosition = QStyleOptionViewItem::Right;
      option->decorationAlignment = Qt::AlignRight | Qt::AlignVCenter;
      break;
    }
    case CellKind::kText:
    case CellKind::kNumber:
      break;
  }
}

void DataGridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  const CellKind kind = model_.Column(index.column()).kind;
  if (kind == CellKind::kCheckBox) PaintBox(*painter, option, index);
  if (kind == CellKind::kPushButton) PaintButton(*painter, option, index);
  DrawLines(*painter, option);
}

void DataGridDelegate::PaintBox(QPainter& painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  QStyleOptionButton box;
  box.rect = BoxRect(option.rect);
  box.palette = option.palette;
  // The style draws the frame in a darker window color, which a dark palette would hide.
  box.palette.setColor(QPalette::Window, Mixed(option.palette.color(QPalette::Base),
                                               option.palette.color(QPalette::Text), 0.6));
  box.state = option.state & ~(QStyle::State_HasFocus | QStyle::State_Selected);
  if (!model_.IsChangeable(index.row(), index.column())) Disable(box);
  box.state |= model_.IsChecked(index.row(), index.column()) ? QStyle::State_On : QStyle::State_Off;
  StyleOf(option).drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &painter, option.widget);
}

void DataGridDelegate::PaintButton(QPainter& painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const {
  QStyleOptionButton button;
  button.rect = option.rect.adjusted(2, 1, -2, -1);
  button.palette = option.palette;
  button.fontMetrics = option.fontMetrics;
  button.text = index.data().toString();
  button.state = option.state & ~(QStyle::State_HasFocus | QStyle::State_Selected);
  button.state |= pressed_ == index ? QStyle::State_Sunken : QStyle::State_Raised;
  if (model_.IsReadOnly()) Disable(button);
  StyleOf(option).drawControl(QStyle::CE_PushButton, &button, &painter, option.widget);
}

QWidget* DataGridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
  if (model_.Column(index.column()).kind == CellKind::kDropDown) return MakeDropDown(parent);
  QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
  if (auto* line = qobject_cast<QLineEdit*>(editor)) {
    line->setFrame(false);
    line->setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
  }
  return editor;
}

QWidget* DataGridDelegate::MakeDropDown(QWidget* parent) const {
  auto* editor = new DropDownEditor(parent);
  auto* self = const_cast<DataGridDelegate*>(this);
  editor->closed = [self, editor] {
    // Losing the focus may have closed it before.
    if (editor->isVisible()) emit self->closeEditor(editor);
  };
  connect(editor, &QComboBox::activated, self, [self, editor] {
    if (editor->WasShown()) emit self->commitData(editor);
  });
  QTimer::singleShot(0, editor, &QComboBox::showPopup);
  return editor;
}

void DataGridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  auto* list = qobject_cast<QComboBox*>(editor);
  if (!list) return QStyledItemDelegate::setEditorData(editor, index);
  if (list->count() > 0) return;
  list->addItems(model_.Choices(index.row(), index.column()));
  list->setCurrentIndex(list->findText(index.data().toString()));
}

void DataGridDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const {
  const auto* list = qobject_cast<QComboBox*>(editor);
  if (list && list->currentIndex() < 0) return;
  QStyledItemDelegate::setModelData(editor, model, index);
}

void DataGridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex&) const {
  editor->setGeometry(option.rect);
}

bool DataGridDelegate::editorEvent(QEvent* event, QAbstractItemModel*,
                                   const QStyleOptionViewItem& option, const QModelIndex& index) {
  switch (model_.Column(index.column()).kind) {
    case CellKind::kCheckBox:
      return ToggleByEvent(*event, option.rect, index);
    case CellKind::kPushButton:
      return PressByEvent(*event, option.rect, index);
    default:
      return false;
  }
}

bool DataGridDelegate::ToggleByEvent(const QEvent& event, const QRect& cell,
                                     const QModelIndex& index) {
  const bool clicked =
      IsLeft(event, QEvent::MouseButtonRelease, BoxRect(cell).adjusted(-2, -2, 2, 2));
  if (!clicked && !IsActivatingKey(event)) return false;
  const bool checked = model_.IsChecked(index.row(), index.column());
  return model_.setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

bool DataGridDelegate::PressByEvent(const QEvent& event, const QRect& cell,
                                    const QModelIndex& index) {
  if (model_.IsReadOnly()) return false;
  if (IsLeft(event, QEvent::MouseButtonPress, cell) ||
      IsLeft(event, QEvent::MouseButtonDblClick, cell)) {
    pressed_ = index;
    return true;
  }
  const bool clicked = pressed_ == index && IsLeft(event, QEvent::MouseButtonRelease, cell);
  if (!clicked && !IsActivatingKey(event)) return false;
  emit buttonClicked(index.row(), index.column());
  return true;
}

}  // namespace GUI
