// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// A library that is no extension of the host.
extern "C" int Unrelated() { return 1; }
