#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# fuzz.sh FOLDER: runs every fuzz target (*_fuzz) of FOLDER for FUZZ_SECONDS (60) each, from the
# corpus fuzz/corpus/NAME. What it finds in passing stays in the build folder; what fails is left
# there as a file beginning NAME-, for `FOLDER/NAME FILE` to repeat.
set -euo pipefail

shopt -s nullglob
targets=("$1"/*_fuzz)
[ ${#targets[@]} -gt 0 ] || { echo "fuzz: no fuzz target in $1" >&2; exit 1; }
for target in "${targets[@]}"; do
  name=$(basename "$target")
  echo "== $name"
  found=$(dirname "$1")/corpus/$name
  mkdir -p "$found"
  corpora=("$found")
  [ -d "fuzz/corpus/$name" ] && corpora+=("fuzz/corpus/$name")
  "$target" -max_total_time="${FUZZ_SECONDS:-60}" -timeout=10 -rss_limit_mb=2048 \
    -print_final_stats=1 -verbosity=0 -artifact_prefix="$(dirname "$1")/$name-" "${corpora[@]}"
done
