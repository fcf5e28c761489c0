// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "widgets/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>
#include <QSvgRenderer>

// A static library's resources are registered only where somebody asks for them. The macro wants
// to stand outside of a namespace.
static void RegisterImages() { Q_INIT_RESOURCE(widgets); }

namespace GUI {

namespace {

/// Draws an SVG in the palette's colors: "currentColor" is the text color; in the disabled form
/// all colors are the disabled text color.
class PaletteIconEngine : public QIconEngine {
 public:
  explicit PaletteIconEngine(QString svg) : svg_(std::move(svg)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    QSvgRenderer(Colored(mode).toUtf8()).render(painter, rect);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect({}, size), mode, state);
    return picture;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new PaletteIconEngine(*this); }

 private:
  [[nodiscard]] QString Colored(QIcon::Mode mode) const {
    static const QRegularExpression hue(QStringLiteral("#[0-9a-f]{6}"));
    const bool disabled = mode == QIcon::Disabled;
    const QString ink =
        QGuiApplication::palette()
            .color(disabled ? QPalette::Disabled : QPalette::Active,
                   mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText)
            .name();
    QString colored = svg_;
    if (disabled) colored.replace(hue, ink);
    return colored.replace(QLatin1String("currentColor"), ink);
  }

  QString svg_;
};

const char* FileName(Image image) {
  switch (image) {
    case Image::kAddRow:
      return "add_row";
    case Image::kCopyRows:
      return "copy_rows";
    case Image::kDeleteRows:
      return "delete_rows";
    case Image::kMoveToTop:
      return "move_to_top";
    case Image::kMoveUp:
      return "move_up";
    case Image::kMoveDown:
      return "move_down";
    case Image::kMoveToBottom:
      return "move_to_bottom";
    case Image::kNew:
      return "new";
    case Image::kDelete:
      return "delete";
    case Image::kImport:
      return "import";
    case Image::kExport:
      return "export";
    case Image::kDropDown:
      return "drop_down";
    case Image::kLens:
      return "lens";
  }
  return "";
}

}  // namespace

QIcon Icon(Image image) {
  RegisterImages();
  QFile file(QLatin1String(":/widgets/icons/") + QLatin1String(FileName(image)) +
             QLatin1String(".svg"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new PaletteIconEngine(QString::fromUtf8(file.readAll())));
}

}  // namespace GUI
