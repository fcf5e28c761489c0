// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <string>

namespace Framework {

class Tool;

/// The host's property page: a window with controls and the operations the host drives it by.
/// A page builds its controls in CreateControls, once, and shows its data whenever the host
/// initialises it.
class ToolPropertyPage {
 public:
  ToolPropertyPage(const char* toolName, int dialogId, int reserved);
  virtual ~ToolPropertyPage();
  ToolPropertyPage(const ToolPropertyPage&) = delete;
  ToolPropertyPage& operator=(const ToolPropertyPage&) = delete;

  /// The host shows the page with data: by default the controls are filled from them.
  virtual void InitDialog();
  /// What was edited and not applied is dropped, for a revert or an import; InitDialog follows. For
  /// pages that keep their controls' state when they are initialised again.
  virtual void DropEdits() {}
  /// True when the page wants to be initialised anew before it is shown again.
  virtual bool NeedUpdate() { return false; }
  virtual int OnSetActive() { return 1; }
  virtual int OnKillActive() { return 1; }
  /// 0 refuses the apply.
  virtual int OnApply() { return 1; }
  /// Moves the data: save 1 from the controls, 0 to the controls. 0 when a control's text was
  /// refused; the person was told then.
  virtual int UpdateData(int save);
  /// Marks the tool as needing to be saved and, when its build flag is set, to be built.
  virtual void Modified();

  /// The window with the controls, made at the first call. The page owns it until it is put into
  /// another widget.
  QWidget* Window();
  /// Destroys the window, if there is one. What is being typed there is not taken any more: nothing
  /// is stored and nothing asked.
  void CloseWindow();
  [[nodiscard]] const QString& Title() const noexcept { return title_; }
  [[nodiscard]] const std::string& ToolName() const noexcept { return toolName_; }
  [[nodiscard]] int DialogId() const noexcept { return dialogId_; }
  [[nodiscard]] Tool* GetTool() const;

 protected:
  /// Builds the page's controls in its window, without data.
  virtual void CreateControls(QWidget* window);
  /// The page a wrapper shows in its place; null for a page of its own.
  [[nodiscard]] virtual ToolPropertyPage* WrappedPage() { return nullptr; }
  void SetTitle(const QString& title) { title_ = title; }

 private:
  std::string toolName_;
  int dialogId_;
  QString title_;
  QPointer<QWidget> window_;
};

}  // namespace Framework
