// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include "widgets/gallery/gallery.h"
#include "widgets/tab_sheet.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Shows every widget with sample data."));
  parser.addHelpOption();
  const QCommandLineOption dark(QStringLiteral("dark"), QStringLiteral("Use a dark palette."));
  const QCommandLineOption pictures(QStringLiteral("pictures"),
                                    QStringLiteral("Leave a picture of each tab there and end."),
                                    QStringLiteral("folder"));
  parser.addOptions({dark, pictures});
  parser.process(app);
  if (parser.isSet(dark)) QApplication::setPalette(GUI::DarkPalette());

  GUI::Gallery gallery;
  gallery.show();
  if (!parser.isSet(pictures)) return QApplication::exec();
  const QDir folder(parser.value(pictures));
  for (int tab = 0; tab < gallery.Sheet().count(); ++tab) {
    if (gallery.Sheet().IsTabDisabled(tab)) continue;
    gallery.Sheet().setCurrentIndex(tab);
    QApplication::processEvents();
    if (!gallery.grab().save(folder.filePath(QStringLiteral("widgets_%1.png").arg(tab)))) return 1;
  }
  return 0;
}
