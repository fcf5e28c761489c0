// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>

namespace GUI {

/// What a person does with rows of a grid, by button, key or menu.
enum class RowOperation { kAdd, kCopy, kDelete, kMoveToTop, kMoveUp, kMoveDown, kMoveToBottom };

inline constexpr std::array kRowOperations{RowOperation::kAdd,         RowOperation::kCopy,
                                           RowOperation::kDelete,      RowOperation::kMoveToTop,
                                           RowOperation::kMoveUp,      RowOperation::kMoveDown,
                                           RowOperation::kMoveToBottom};

}  // namespace GUI
