// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>

#include "archive/nvp.h"
#include "archive/xml_iarchive.h"
#include "automation/form.h"
#include "automation/interaction.h"
#include "host/gui/page_host.h"
#include "host/gui/page_services.h"
#include "host/gui/tool.h"
#include "host/gui/tool_property_page.h"
#include "host/project/run_time_db.h"
#include "support/open_project.h"

namespace test {

/// A page of a project of its own, worked through its controls; message boxes and dialogs are
/// answered by `interaction`. Data is the page's data class.
template <class Data>
class PageForm {
 public:
  PageForm(const char* page, const std::string& database, const std::string& keys = {})
      : project(database, keys), name_(page) {}

  [[nodiscard]] automation::Form Form() {
    QWidget& window = *Page().Window();
    if (!window.isVisible()) window.show();
    return automation::Form(window);
  }
  [[nodiscard]] automation::Control Control(const char* name) { return Form().GetControl(name); }
  [[nodiscard]] automation::Table Table(const char* name) { return Form().GetTable(name); }
  [[nodiscard]] std::string Text(const char* name) { return Control(name).Text().toStdString(); }

  /// The data object as it is now.
  [[nodiscard]] Data Now() {
    Data data;
    zel::archive::xml_iarchive archive(Framework::PageHost::Services(Page()).ExportData(),
                                       0x78000001);
    archive >> zel::archive::nvp("ModuleOutputs", data);
    return data;
  }
  bool Apply() { return project.Session().Pages().Apply(name_); }
  void Reopen() { project.Session().Pages().Reopen(name_); }
  [[nodiscard]] std::string Database() { return project.Session().Database().Text(); }
  /// Whether the page asked for a save since the last call.
  bool TakeChanged() {
    const bool changed = project.Session().Tool().NeedToSave();
    project.Session().Tool().SetNeedToSave(0);
    return changed;
  }

  OpenProject project;
  automation::Interaction interaction;

 private:
  Framework::ToolPropertyPage& Page() { return project.Session().Pages().Open(name_); }

  std::string name_;
};

}  // namespace test
