// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QObject>
#include <ostream>

namespace automation {

/// Where a script's `print` goes.
class ScriptOutput : public QObject {
  Q_OBJECT

 public:
  /// The stream outlives the object.
  explicit ScriptOutput(std::ostream& stream) : stream_(stream) {}
  Q_INVOKABLE void line(const QString& text) { stream_ << text.toStdString() << '\n'; }

 private:
  std::ostream& stream_;
};

}  // namespace automation
