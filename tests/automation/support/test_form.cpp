// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "automation/support/test_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolButton>

#include "automation/support/grid.h"
#include "host/gui/modal.h"

namespace test {
namespace {

/// A delegate whose editor is a drop-down list.
class ChoiceDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                        const QModelIndex&) const override {
    auto* combo = new QComboBox(parent);
    combo->addItems({"steel", "glass", "brass"});
    return combo;
  }
  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    static_cast<QComboBox*>(editor)->setCurrentText(index.data().toString());
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override {
    model->setData(index, static_cast<QComboBox*>(editor)->currentText());
  }
};

QDialog* MakeDialog(QWidget* owner, const QString& title, const QString& field) {
  auto* dialog = new QDialog(owner);
  dialog->setWindowTitle(title);
  auto* layout = new QFormLayout(dialog);
  layout->addRow(field, new QLineEdit(dialog));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  layout->addRow(buttons);
  return dialog;
}

QString Verdict(int result) { return result == QDialog::Accepted ? "accepted" : "cancelled"; }

}  // namespace

TestForm::TestForm() {
  setWindowTitle("Test form");
  auto* layout = new QFormLayout(this);
  AddFields(*layout);
  AddLists(*layout);
  AddButtons(*layout);
  AddTables(*layout);
  AddTabs(*layout);
}

void TestForm::AddFields(QFormLayout& layout) {
  auto* width = new QLineEdit("3.00");
  width->setToolTip("in mm");
  layout.addRow(" &Width (mm) : ", width);
  connect(width, &QLineEdit::textEdited, this, [this](const QString& text) { Note(text); });
  connect(width, &QLineEdit::editingFinished, this, [=, this] { Note("left " + width->text()); });
  auto* rate = new QLineEdit("60");
  rate->setAccessibleName("Frame Rate");
  auto* unit = new QLabel("Hz [1-120]");
  unit->setAccessibleName("Frame Rate/Unit");
  auto* row = new QHBoxLayout;
  row->addWidget(new QLabel("Frame Rate"));
  row->addWidget(rate);
  row->addWidget(unit);
  layout.addRow(row);
  auto* total = new QLineEdit("7");
  total->setReadOnly(true);
  layout.addRow("Total", total);
  auto* secret = new QLineEdit("hidden text");
  layout.addRow("Secret", secret);
  layout.labelForField(secret)->hide();
  secret->hide();
  auto* note = new QLabel("<b>Mind</b> the gap");
  note->setAccessibleName("Note");
  layout.addRow(note);
}

void TestForm::AddLists(QFormLayout& layout) {
  auto* color = new QComboBox;
  color->addItems({"Red", "Green", "Blue"});
  qobject_cast<QStandardItemModel*>(color->model())->item(1)->setEnabled(false);
  layout.addRow("Color:", color);
  connect(color, &QComboBox::activated, this, [=, this] { Note(color->currentText()); });
  auto* spin = new QComboBox;
  spin->setEditable(true);
  spin->setInsertPolicy(QComboBox::NoInsert);
  spin->addItems({"1.0x", "2.0x"});
  layout.addRow("Spin", spin);
}

void TestForm::AddButtons(QFormLayout& layout) {
  auto* enable = new QCheckBox("Enable &all && more");
  connect(enable, &QCheckBox::clicked, this, [this](bool on) { Note(on ? "all" : "none"); });
  auto* start = new QPushButton("&Start...");
  connect(start, &QPushButton::clicked, this, [this] { Note("started"); });
  auto* up = new QToolButton;
  up->setAccessibleName("Move up");
  connect(up, &QToolButton::clicked, this, [this] { Note("up"); });
  auto* locked = new QPushButton("Locked");
  locked->setEnabled(false);
  auto* ask = new QPushButton("Ask");
  connect(ask, &QPushButton::clicked, this, [this] { Ask(); });
  for (QWidget* each : std::initializer_list<QWidget*>{
           enable, start, up, locked, ask, new QPushButton("Twice"), new QPushButton("Twice")})
    layout.addRow(each);
  auto* mode = new QGroupBox("Mode");
  mode->setCheckable(true);
  auto* modes = new QVBoxLayout(mode);
  modes->addWidget(new QRadioButton("Fast"));
  modes->addWidget(new QRadioButton("Slow"));
  layout.addRow(mode);
}

void TestForm::AddTables(QFormLayout& layout) {
  parts = new QTableWidget(3, 4);
  parts->setAccessibleName("Parts");
  parts->setHorizontalHeaderLabels({"Part", "Use", "Made of", "Hidden"});
  parts->setColumnHidden(3, true);
  parts->setItemDelegateForColumn(2, new ChoiceDelegate(parts));
  for (int row = 0; row < 3; ++row) {
    parts->setItem(row, 0, new QTableWidgetItem(QStringLiteral("part %1").arg(row)));
    auto* use = new QTableWidgetItem;
    use->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    use->setCheckState(Qt::Unchecked);
    parts->setItem(row, 1, use);
    parts->setItem(row, 2, new QTableWidgetItem("glass"));
  }
  parts->item(1, 0)->setBackground(QColor(1, 2, 3));
  parts->item(1, 0)->setToolTip("the second");
  for (int column = 0; column < 3; ++column) parts->item(2, column)->setFlags(Qt::NoItemFlags);
  layout.addRow(parts);
  grid = new Grid(this);
  layout.addRow("Grid", grid);
}

void TestForm::AddTabs(QFormLayout& layout) {
  sheet = new QTabWidget;
  for (const char* tab : {"General", "Extra", "Third"}) {
    auto* page = new QWidget;
    auto* fields = new QFormLayout(page);
    fields->addRow("Width (mm)", new QLineEdit(QStringLiteral("of ") + tab));
    fields->addRow(QStringLiteral("Only %1").arg(tab), new QLineEdit("1"));
    sheet->addTab(page, QLatin1Char('&') + QLatin1String(tab));
  }
  sheet->setTabEnabled(1, false);
  layout.addRow(sheet);
}

void TestForm::Ask() {
  const std::unique_ptr<QDialog> dialog(MakeDialog(this, "Question", "Answer"));
  auto* more = new QPushButton("More", dialog.get());
  dialog->layout()->addWidget(more);
  connect(more, &QPushButton::clicked, this, [this, &dialog] {
    const std::unique_ptr<QDialog> inner(MakeDialog(dialog.get(), "Inner", "Detail"));
    const QString verdict = Verdict(RunModal(*inner));
    Note("Inner " + verdict + ' ' + inner->findChild<QLineEdit*>()->text());
  });
  const QString verdict = Verdict(RunModal(*dialog));
  Note("Question " + verdict + ' ' + dialog->findChild<QLineEdit*>()->text());
}

}  // namespace test
