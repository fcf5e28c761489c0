// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <functional>
#include <string>

/// Message box styles, to be combined, and the answers.
namespace msgbox {
inline constexpr unsigned kOk = 0x0, kOkCancel = 0x1, kYesNoCancel = 0x3, kYesNo = 0x4;
inline constexpr unsigned kIconError = 0x10, kIconQuestion = 0x20, kIconWarning = 0x30,
                          kIconInformation = 0x40;
inline constexpr unsigned kDefaultButton2 = 0x100;
inline constexpr int kAnswerOk = 1, kAnswerCancel = 2, kAnswerIgnore = 5, kAnswerYes = 6,
                     kAnswerNo = 7;

/// The name of an answer code: "OK", "Cancel", "Ignore", "Yes", "No".
[[nodiscard]] const char* AnswerName(int answer);
/// The answer that the box's default button gives.
[[nodiscard]] int DefaultAnswer(unsigned style);
}  // namespace msgbox

/// Shows a message box owned by the main window and returns the answer. When the host runs
/// without user interaction nothing is shown and the answer is Ignore (5). An empty caption
/// stands for the program's name.
int ShowMessageBox(const std::string& text, const std::string& caption = {},
                   unsigned style = msgbox::kOk);

/// Takes the place of the box on the screen: gets the text, the caption as it would be shown, and
/// the style; returns the answer. Scripts and tests set it; an empty function restores the box. It
/// is not asked when the host runs without user interaction.
using MessageBoxResponder =
    std::function<int(const std::string& text, const std::string& caption, unsigned style)>;
void SetMessageBoxResponder(MessageBoxResponder responder);
