// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <functional>

class QDialog;

/// Runs a dialog modally and returns its result code. Every modal dialog of a page goes through
/// here.
int RunModal(QDialog& dialog);

/// Takes the place of the modal loop: gets the dialog not yet shown, returns its result code.
using ModalRunner = std::function<int(QDialog& dialog)>;
void SetModalRunner(ModalRunner runner);
