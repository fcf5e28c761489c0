// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "app/page_reading.h"

#include <algorithm>

#include "app/session.h"
#include "app/wrong_use.h"
#include "host/gui/page_host.h"
#include "host/gui/page_services.h"
#include "host/project/ost_exception.h"

namespace app {

void RequirePage(const std::string& page) {
  const auto names = Framework::PageHost::Names();
  if (std::find(names.begin(), names.end(), page) != names.end()) return;
  std::string known;
  for (const std::string& name : names) known += " " + name;
  throw WrongUse("There is no page " + page + "; the pages are" + known);
}

Framework::PageServices& ReadPage(const Session& session, const std::string& page) {
  auto& services = Framework::PageHost::Services(session.Pages().Create(page));
  if (!services.ReadFromRunTimeDB()) {
    throw OstException("The data of the page " + page + " cannot be read");
  }
  return services;
}

}  // namespace app
