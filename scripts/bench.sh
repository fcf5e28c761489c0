#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# bench.sh FOLDER: runs every benchmark program (*_bench) of FOLDER.
set -euo pipefail

shopt -s nullglob
programs=("$1"/*_bench)
[ ${#programs[@]} -gt 0 ] || { echo "bench: no benchmark in $1" >&2; exit 1; }
for program in "${programs[@]}"; do
  echo "== $(basename "$program")"
  QT_QPA_PLATFORM=offscreen "$program"
done
