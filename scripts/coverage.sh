#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# coverage.sh BUILD: the lines of src/ that the tests just run in BUILD reached.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

gcovr --root . --filter src/ --object-directory "$1" --exclude-throw-branches \
  --html-details "$1/coverage.html" --print-summary "$1"
echo "$1/coverage.html"
