// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

/// How the host was started. One for the process, filled by the program before anything else.
class OstCommandLineInfo {
 public:
  static OstCommandLineInfo c_instance;

  /// True when the host runs without a person: no message box is shown, a question counts as No.
  bool nonInteractive = false;
};
