// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/ost_command_line_info.h"

OstCommandLineInfo OstCommandLineInfo::c_instance;
