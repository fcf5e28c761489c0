// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

namespace bench {

/// Runs the benchmarks of a program whose windows nobody sees.
inline int RunOffscreen(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace bench
