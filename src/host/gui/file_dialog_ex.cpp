// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/file_dialog_ex.h"

#include <QFileDialog>
#include <QFileInfo>
#include <utility>

#include "host/gui/main_window.h"
#include "host/project/ost_command_line_info.h"

namespace {

FileChooser& Chooser() {
  static FileChooser chooser;
  return chooser;
}

QString& LastFolder() {
  static QString folder;
  return folder;
}

/// "Lamp files (*.lmp)|*.lmp||" as Qt writes it; Qt takes the patterns from the parentheses.
QStringList NameFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|', Qt::SkipEmptyParts);
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString description = parts[i].section('(', 0, 0).trimmed();
    const QString patterns = parts[i + 1].split(';', Qt::SkipEmptyParts).join(' ');
    filters.append(QStringLiteral("%1 (%2)").arg(description, patterns));
  }
  return filters;
}

/// "*.lmp", ".lmp" and "lmp" all stand for "lmp".
QString SuffixOf(const std::string& extension) {
  return QString::fromStdString(extension).section('.', -1);
}

std::optional<std::filesystem::path> ChooseOnScreen(const CFileDialogEx& options) {
  const QString folder = options.startFolder.empty()
                             ? LastFolder()
                             : QString::fromStdString(options.startFolder.string());
  QFileDialog dialog(HostMainWindow(), QString::fromStdString(options.title), folder);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(NameFilters(options.filter));
  dialog.setDefaultSuffix(SuffixOf(options.defaultExtension));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  LastFolder() = dialog.directory().absolutePath();
  return QFileInfo(dialog.selectedFiles().constFirst()).filesystemAbsoluteFilePath();
}

}  // namespace

std::optional<std::filesystem::path> CFileDialogEx::Choose() const {
  if (const FileChooser chooser = Chooser()) return chooser(*this);
  if (OstCommandLineInfo::c_instance.nonInteractive) return std::nullopt;
  return ChooseOnScreen(*this);
}

void SetFileChooser(FileChooser chooser) { Chooser() = std::move(chooser); }
