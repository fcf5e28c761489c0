// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

namespace VeskSystemDefinition {

inline constexpr const char* kToolClassName = "VeskSystemDefinitionTool";
inline constexpr const char* kDocumentClassName = "VeskSystemDefinitionToolDoc";
inline constexpr const char* kFrameClassName = "VeskSysDefToolFrame";
inline constexpr const char* kViewClassName = "VeskSysDefToolView";
inline constexpr const char* kToolTitle = "System Definition";
inline constexpr const char* kDocumentType = "veskdef";
inline constexpr unsigned kDocumentTemplateId = 18001;

}  // namespace VeskSystemDefinition
