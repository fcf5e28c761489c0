// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// An extension that will not attach.
extern "C" {
int OstExtensionInterface() { return 1; }
bool OstExtensionAttach() { return false; }
void OstExtensionDetach() {}
}
