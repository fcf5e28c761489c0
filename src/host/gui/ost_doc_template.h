// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <QPointer>
#include <memory>
#include <string>

class OstTool;

namespace Framework {
class ToolDocument;
class ToolFrame;
class ToolView;
}  // namespace Framework

/// Binds the document, frame and view class of a tool, by their names in the class registry, and
/// makes one of each when the tool's window opens.
class OstDocTemplate {
 public:
  OstDocTemplate(OstTool* tool, unsigned resourceId, std::string documentClass,
                 std::string frameClass, std::string viewClass);
  ~OstDocTemplate();
  OstDocTemplate(const OstDocTemplate&) = delete;
  OstDocTemplate& operator=(const OstDocTemplate&) = delete;

  /// The frame with its view, made at the first call. Throws OstException naming the class that is
  /// not registered, or is of another kind.
  Framework::ToolFrame* OpenFrame();
  void CloseFrame();

  [[nodiscard]] OstTool* Tool() const noexcept { return tool_; }
  [[nodiscard]] unsigned ResourceId() const noexcept { return resourceId_; }
  [[nodiscard]] Framework::ToolDocument* Document() const noexcept { return document_.get(); }
  [[nodiscard]] Framework::ToolFrame* Frame() const noexcept;

 private:
  OstTool* tool_;
  unsigned resourceId_;
  std::string documentClass_, frameClass_, viewClass_;
  std::unique_ptr<Framework::ToolDocument> document_;
  QPointer<Framework::ToolFrame> frame_;
};
