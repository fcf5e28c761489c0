// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include "framework/tool_name.h"
#include "host/gui/tool_document.h"
#include "tool/identity.h"

/// The tool's document. Page data never stand in it: they live in the run-time database.
class VeskSystemDefinitionToolDoc : public Framework::ToolDocument {
 public:
  VeskSystemDefinitionToolDoc()
      : ToolDocument(VeskSystemDefinition::kToolName, VeskSystemDefinition::kDocumentType) {}
};
