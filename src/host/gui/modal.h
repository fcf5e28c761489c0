// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <functional>

class QDialog;

/// Runs a dialog modally and returns its result code. Every modal dialog of a page goes through
/// here. When the host runs without user interaction and no runner is set, the dialog is not shown
/// and counts as cancelled.
int RunModal(QDialog& dialog);

/// Takes the place of the modal loop: gets the dialog not yet shown, returns its result code.
/// An empty function restores the loop.
using ModalRunner = std::function<int(QDialog& dialog)>;
void SetModalRunner(ModalRunner runner);
