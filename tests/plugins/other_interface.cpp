// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// An extension built for another interface of the host.
extern "C" {
int OstExtensionInterface() { return 99; }
bool OstExtensionAttach() { return true; }
void OstExtensionDetach() {}
}
