#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# run.sh: the sample project in the window. Without a display every page of a copy of it is opened
# off-screen and leaves a picture, so that nothing of the sample changes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

sample=samples/three-color-lamp
project=$(ls "$sample"/*.ostproj)

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/bin/sysdef "$project"
fi

pictures=build/pictures
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp -r "$sample" "$scratch/project"
mkdir -p "$pictures"
echo "No display: every page of the sample project is opened off-screen. Pictures:"
QT_QPA_PLATFORM=offscreen build/bin/sysdef script \
  "$scratch/project/$(basename "$project")" scripts/walk_pages.js "$pictures"
