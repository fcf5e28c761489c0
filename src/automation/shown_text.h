// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QString>

class QWidget;

namespace automation {

/// What a control shows: a field's text, a button's or check box's caption without its mnemonic, a
/// drop-down list's current item, a label's text, the text of a drawn widget (its property "text",
/// else its accessible description).
[[nodiscard]] QString ShownText(const QWidget& widget);

}  // namespace automation
