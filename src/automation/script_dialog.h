// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "automation/script_form.h"

namespace automation {

/// A modal dialog as scripts see it.
class ScriptDialog : public ScriptForm {
  Q_OBJECT
  Q_PROPERTY(bool open READ Open)

 public:
  using ScriptForm::ScriptForm;
  [[nodiscard]] bool Open() const { return form_.Open(); }
};

}  // namespace automation
