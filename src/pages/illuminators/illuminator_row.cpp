// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/illuminators/illuminator_row.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLineEdit>

#include "host/gui/number_box.h"
#include "host/gui/slow_tool_tip.h"
#include "widgets/focus_wheel.h"
#include "widgets/when_left.h"

namespace illuminators {

namespace {

constexpr const char* kListToolTip = "Use this combobox to add or remove a non-RGB illuminator.";
constexpr Framework::NumberFormat kTimeFormat{kTimeDecimals, {kMinTimeUs, kMaxTimeUs}};
constexpr int kNameWidth = 150;
constexpr int kTimeWidth = 110;

QString AccessibleName(int row, const char* part) {
  return QStringLiteral("Row %1/%2").arg(row).arg(QLatin1String(part));
}

QStringList Texts(const std::vector<std::string>& entries) {
  QStringList texts;
  for (const std::string& entry : entries) texts << QString::fromStdString(entry);
  return texts;
}

QStringList EntriesOf(const QComboBox& list) {
  QStringList texts;
  for (int i = 0; i < list.count(); ++i) texts << list.itemText(i);
  return texts;
}

}  // namespace

IlluminatorRow::IlluminatorRow(int row, QWidget& window, QGridLayout& grid)
    : QObject(&window), row_(row) {
  if (row_ < kFixedRows) {
    MakeName(window);
  } else {
    MakeList(window);
  }
  QWidget* field = name_ ? static_cast<QWidget*>(name_) : list_;
  field->setAccessibleName(AccessibleName(row_, "Illuminator"));
  field->setMinimumWidth(kNameWidth);
  field->installEventFilter(this);
  grid.addWidget(field, row_ + 1, 0);
  MakeTimes(window, grid);
}

void IlluminatorRow::MakeName(QWidget& window) {
  name_ = new QLineEdit(&window);
  name_->setReadOnly(true);
  name_->setText(FixedName());
  Paint(*name_, name_->text().toStdString());
}

void IlluminatorRow::MakeList(QWidget& window) {
  list_ = new QComboBox(&window);
  GUI::TurnOnlyWithFocus(*list_);
  connect(list_, &QComboBox::activated, this, [this] { emit illuminatorChosen(); });
}

void IlluminatorRow::MakeTimes(QWidget& window, QGridLayout& grid) {
  for (std::size_t i = 0; i < times_.size(); ++i) {
    auto* box = new QLineEdit(&window);
    box->setAccessibleName(AccessibleName(row_, TimeFields()[i].name));
    box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    box->setMinimumWidth(kTimeWidth);
    box->installEventFilter(this);
    GUI::WhenLeftForAnother(*box, [this] { emit timeLeft(); });
    connect(box, &QLineEdit::returnPressed, this, [this] { emit timeLeft(); });
    grid.addWidget(box, row_ + 1, static_cast<int>(i) + 1);
    times_[i] = box;
  }
}

QString IlluminatorRow::FixedName() const {
  return QString::fromStdString(std::string(IllumCharacteristics::GetStrForIllumType(row_)));
}

void IlluminatorRow::SetToolTips() {
  if (list_) Framework::SetSlowToolTip(*list_, QString::fromLatin1(kListToolTip));
  for (std::size_t i = 0; i < times_.size(); ++i) {
    Framework::SetSlowToolTip(*times_[i], QString::fromLatin1(TimeFields()[i].toolTip));
  }
}

void IlluminatorRow::Hide() {
  if (list_) list_->hide();
  for (QLineEdit* box : times_) box->hide();
}

void IlluminatorRow::ShowIlluminator(const IlluminatorsPageData& data) {
  const IllumCharacteristics* illuminator = ShownIn(data, row_);
  if (IsFixed()) {
    name_->setText(illuminator ? FixedName() : QString());
    return Describe(name_->text());
  }
  Fill(DropDownContents(data, row_));
  shownEntry_ = illuminator ? QString::fromStdString(std::string(
                                  IllumCharacteristics::GetStrForIllumType(illuminator->Type)))
                            : QString();
  list_->setCurrentIndex(list_->findText(shownEntry_));
  // A stored type that the list does not offer shows as none.
  shownEntry_ = list_->currentText();
  Paint(*list_, shownEntry_.toStdString());
  for (QLineEdit* box : times_) box->setEnabled(RowEnabled(data, row_));
  Describe(shownEntry_);
}

void IlluminatorRow::Fill(const std::vector<std::string>& entries) {
  const QStringList texts = Texts(entries);
  if (EntriesOf(*list_) == texts) return;
  list_->setUpdatesEnabled(false);
  list_->clear();
  list_->addItems(texts);
  list_->setUpdatesEnabled(true);
}

/// A name's field has its illuminator's color, with a text that can be read on it in any theme.
void IlluminatorRow::Paint(QWidget& field, const std::string& name) {
  QPalette palette;
  if (const auto color = ColorOf(IllumCharacteristics::GetIllumTypeForStr(name))) {
    const QColor fill(color->red, color->green, color->blue);
    for (const auto role : {QPalette::Base, QPalette::Button}) palette.setColor(role, fill);
    for (const auto role : {QPalette::Text, QPalette::ButtonText}) {
      palette.setColor(role, Qt::black);
    }
  }
  field.setPalette(palette);
}

/// A screen reader says which illuminator a time belongs to.
void IlluminatorRow::Describe(const QString& name) {
  for (QLineEdit* box : times_) box->setAccessibleDescription(name);
}

void IlluminatorRow::ShowTimes(const IlluminatorsPageData& data) {
  const IllumCharacteristics* illuminator = ShownIn(data, row_);
  for (std::size_t i = 0; i < times_.size(); ++i) {
    const double time = illuminator ? illuminator->*TimeFields()[i].member : 0.0;
    Framework::ShowNumber(*times_[i], time, kTimeFormat);
  }
}

std::optional<std::string> IlluminatorRow::EditedChoice() const {
  if (IsFixed() || list_->currentText() == shownEntry_) return std::nullopt;
  return list_->currentText().toStdString();
}

std::optional<TimeEdits> IlluminatorRow::TakeTimes() {
  TimeEdits edits;
  for (std::size_t i = 0; i < times_.size(); ++i) {
    if (!Framework::IsEdited(*times_[i])) continue;
    edits[i] = Framework::TakeNumber(*times_[i], 0.0, kTimeFormat);
    if (!edits[i]) return std::nullopt;
  }
  return edits;
}

bool IlluminatorRow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) emit entered();
  return QObject::eventFilter(watched, event);
}

}  // namespace illuminators
