// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

class QWidget;

/// The host's main window, which owns message boxes and file dialogs; null without one.
[[nodiscard]] QWidget* HostMainWindow();
