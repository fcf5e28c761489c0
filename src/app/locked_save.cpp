// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/locked_save.h"

#include "app/session.h"
#include "host/gui/project_lock.h"
#include "host/gui/tool.h"
#include "host/project/run_time_db.h"

namespace app {

std::optional<std::string> SaveLocked(const Session& session) {
  Framework::ProjectLock lock(session.Database().File());
  // Nothing is written where nothing changed.
  if (session.Database().Modified() && !lock.Acquire())
    return session.Database().File().string() + ": not saved. " + lock.Obstacle();
  if (!session.Tool().Save()) return session.Tool().LastError();
  return std::nullopt;
}

}  // namespace app
