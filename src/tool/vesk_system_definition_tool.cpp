// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "tool/vesk_system_definition_tool.h"

#include "framework/tool_name.h"
#include "host/gui/ost_doc_template.h"
#include "host/project/ost_project.h"
#include "tool/identity.h"

namespace ids = VeskSystemDefinition;

VeskSystemDefinitionTool::VeskSystemDefinitionTool()
    : Framework::Tool(ids::kToolName, ids::kToolTitle, false) {
  docTemplate_ =
      std::make_unique<OstDocTemplate>(this, ids::kDocumentTemplateId, ids::kDocumentClassName,
                                       ids::kFrameClassName, ids::kViewClassName);
}

void VeskSystemDefinitionTool::SetProject(OstProject* project) {
  if (!project) return;
  const bool accepted = project->AcceptsTools();
  project->OnToolAttach(this, accepted);
  if (accepted) Framework::Tool::SetProject(project);
}

int VeskSystemDefinitionTool::Save() {
  if (OstProject* project = GetProject()) project->OnBeforeSave();
  return Framework::Tool::Save();
}
