#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# format.sh [--check]: formats every C++ source in place, or says which are not formatted.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

how=(-i)
[ "${1:-}" = --check ] && how=(--dry-run --Werror)
find src tests bench fuzz \( -name '*.h' -o -name '*.cpp' \) -print0 |
  xargs -0 --no-run-if-empty clang-format "${how[@]}"
