// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/ost_doc_template.h"

#include <utility>

#include "host/gui/class_registry.h"
#include "host/gui/tool_document.h"
#include "host/gui/tool_frame.h"
#include "host/gui/tool_view.h"
#include "host/project/ost_exception.h"

namespace {

template <class T>
std::unique_ptr<T> Make(const std::string& className) {
  std::unique_ptr<Framework::DynamicObject> made(
      Framework::ClassRegistry::Instance().Create(className));
  T* wanted = dynamic_cast<T*>(made.get());
  if (!wanted) throw OstException("The class " + className + " is not registered");
  static_cast<void>(made.release());
  return std::unique_ptr<T>(wanted);
}

}  // namespace

OstDocTemplate::OstDocTemplate(OstTool* tool, unsigned resourceId, std::string documentClass,
                               std::string frameClass, std::string viewClass)
    : tool_(tool),
      resourceId_(resourceId),
      documentClass_(std::move(documentClass)),
      frameClass_(std::move(frameClass)),
      viewClass_(std::move(viewClass)) {}

OstDocTemplate::~OstDocTemplate() { CloseFrame(); }

Framework::ToolFrame* OstDocTemplate::OpenFrame() {
  if (frame_) return frame_;
  auto document = Make<Framework::ToolDocument>(documentClass_);
  auto frame = Make<Framework::ToolFrame>(frameClass_);
  frame->SetView(Make<Framework::ToolView>(viewClass_).release());
  document_ = std::move(document);
  frame_ = frame.release();
  return frame_;
}

void OstDocTemplate::CloseFrame() {
  delete frame_;
  document_.reset();
}

Framework::ToolFrame* OstDocTemplate::Frame() const noexcept { return frame_; }
