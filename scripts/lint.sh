#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# lint.sh BUILD [PATTERN]: clang-tidy, with the checks of .clang-tidy, over the sources that BUILD
# compiles and whose path matches PATTERN.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build=$1
pattern=${2:-"^$PWD/(src|tests|bench|fuzz)/"}
run-clang-tidy -quiet -p "$build" -j "$(nproc)" "$pattern"
