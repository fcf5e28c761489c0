// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/recent_projects.h"

#include <QFileInfo>
#include <QSettings>
#include <algorithm>

namespace app {

namespace {

const QString kKey = QStringLiteral("recentProjects");

}  // namespace

QStringList RecentProjects::Files() {
  QStringList files = QSettings().value(kKey).toStringList();
  files.removeIf([](const QString& file) { return !QFileInfo::exists(file); });
  return files;
}

void RecentProjects::Add(const QString& file) {
  QStringList files = QSettings().value(kKey).toStringList();
  files.removeAll(file);
  files.prepend(file);
  QSettings().setValue(kKey, files.mid(0, std::min<qsizetype>(kMost, files.size())));
}

}  // namespace app
