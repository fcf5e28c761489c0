// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <functional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

/// The host's log: tools write lines to it at a level; the host shows and keeps them.
class tostream {
 public:
  enum LogLevelEnum { kLogNormal, kLogWarning, kLogError };
  enum PrivLevelEnum { kPrivUser, kPrivDeveloper };

  struct Line {
    LogLevelEnum level;
    std::string text;
  };

  static tostream& GetLog(LogLevelEnum level, PrivLevelEnum privilege);

  template <class T>
  tostream& operator<<(const T& value) {
    buffer_ << value;
    return *this;
  }
  tostream& operator<<(tostream& (*manipulator)(tostream&)) { return manipulator(*this); }

  void SetLevel(LogLevelEnum level) { level_ = level; }
  /// Ends what was written so far as one entry; line breaks inside it are kept.
  void EndEntry();

  /// All entries since the process began.
  static const std::vector<Line>& Lines();
  /// Called with each new entry; one listener, empty for none.
  static void SetListener(std::function<void(const Line&)> listener);

 private:
  LogLevelEnum level_ = kLogNormal;
  std::ostringstream buffer_;
};

/// Manipulators: the level of the entry being written, and its end.
tostream& Normal(tostream& log);
tostream& Error(tostream& log);
tostream& EndEntry(tostream& log);
