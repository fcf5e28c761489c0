// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace automation {

/// One control of a form, worked as a person does. Every call throws AutomationError when the
/// control is gone; those that click or type also when it is hidden, disabled or behind a modal
/// dialog. Calls return after everything they set off has happened.
class Control {
 public:
  Control(QWidget& widget, QString name);

  [[nodiscard]] const QString& Name() const noexcept { return name_; }
  [[nodiscard]] QWidget& Widget() const;

  /// What is shown.
  [[nodiscard]] QString Text() const;
  /// Focus, select all, the keys one by one, then leave the field. A drop-down list that cannot
  /// be typed into gets the item chosen.
  void SetText(const QString& text);
  /// The keys one by one, without leaving the field; see PressCharacter for the keys that are no
  /// characters.
  void Type(const QString& keys);
  void Leave();

  /// The entries of a drop-down list or list; throws for other controls.
  [[nodiscard]] QStringList Items() const;
  /// The current entry, from 0; -1 when there is none.
  [[nodiscard]] int Index() const;
  /// Picks an entry by its text, as a person does from the open list. Throws when there is none,
  /// or when it is disabled.
  void Choose(const QString& text);

  /// Throws for controls that cannot be checked.
  [[nodiscard]] bool Checked() const;
  /// Clicks when the state differs.
  void SetChecked(bool checked);
  void Click();

  [[nodiscard]] bool Enabled() const { return Widget().isEnabled(); }
  [[nodiscard]] bool Visible() const { return Widget().isVisible(); }
  [[nodiscard]] QString ToolTip() const { return Widget().toolTip(); }

 private:
  [[nodiscard]] QWidget& Reachable() const;

  QPointer<QWidget> widget_;
  QString name_;
};

}  // namespace automation
