// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/log.h"

#include <utility>

namespace {

std::vector<tostream::Line>& Entries() {
  static std::vector<tostream::Line> entries;
  return entries;
}

std::function<void(const tostream::Line&)>& Listener() {
  static std::function<void(const tostream::Line&)> listener;
  return listener;
}

}  // namespace

tostream& tostream::GetLog(LogLevelEnum level, PrivLevelEnum /*privilege*/) {
  static tostream log;
  log.level_ = level;
  return log;
}

void tostream::EndEntry() {
  Entries().push_back({level_, std::exchange(buffer_, {}).str()});
  if (Listener()) Listener()(Entries().back());
}

const std::vector<tostream::Line>& tostream::Lines() { return Entries(); }

void tostream::SetListener(std::function<void(const Line&)> listener) {
  Listener() = std::move(listener);
}

tostream& Normal(tostream& log) {
  log.SetLevel(tostream::kLogNormal);
  return log;
}

tostream& Error(tostream& log) {
  log.SetLevel(tostream::kLogError);
  return log;
}

tostream& EndEntry(tostream& log) {
  log.EndEntry();
  return log;
}
