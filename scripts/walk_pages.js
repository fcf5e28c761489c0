// SPDX-License-Identifier: GPL-3.0-or-later
// sysdef script PROJECT walk_pages.js FOLDER: opens every page, leaves a picture of each in FOLDER
// and prints where.
if (args.length !== 1) throw new Error("walk_pages.js needs one argument: the folder for the pictures");

for (const name of sysdef.pages()) {
  const picture = `${args[0]}/${name}.png`;
  sysdef.open(name).screenshot(picture);
  print(picture);
}
