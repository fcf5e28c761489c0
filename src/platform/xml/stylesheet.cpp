// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/stylesheet.h"

#include <libxml/tree.h>
#include <libxml/xpath.h>
#include <libxslt/imports.h>
#include <libxslt/security.h>
#include <libxslt/transform.h>
#include <libxslt/xsltInternals.h>
#include <libxslt/xsltutils.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <new>
#include <string_view>

#include "platform/xml/library.h"
#include "platform/xml/run_meter.h"
#include "platform/xml/tree.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {
namespace {

using Context = std::unique_ptr<xsltTransformContext, decltype(&xsltFreeTransformContext)>;

// What a run may use: a fixed part, and a part for each node and byte of its input. Stylesheets
// that translate a whole document need less than a tenth of it.
constexpr unsigned long kBaseSteps = 1'000'000;
constexpr unsigned long kStepsPerNode = 50;
constexpr unsigned long kXPathStepsPerStep = 10;
constexpr std::size_t kBaseBytes = 64u << 20;
constexpr std::size_t kBytesPerNode = 1024;
constexpr std::size_t kBytesPerTextByte = 8;
constexpr std::chrono::seconds kBaseWork(2);
constexpr std::chrono::microseconds kWorkPerNode(20);
constexpr int kTemplateDepth = 250;

struct Size {
  std::size_t nodes = 0;
  std::size_t textBytes = 0;
};

std::size_t CountAttributes(const xmlNode* element) {
  std::size_t count = 0;
  for (const xmlAttr* each = element->properties; each != nullptr; each = each->next) ++count;
  return count;
}

Size Measure(const xmlDoc* tree) {
  Size size;
  for (xmlNode* node = tree->children; node != nullptr; node = NextNode(node)) {
    ++size.nodes;
    // An element's content is libxslt's own and no text.
    if (node->type == XML_ELEMENT_NODE)
      size.nodes += CountAttributes(node);
    else if (node->content != nullptr)
      size.textBytes += std::strlen(reinterpret_cast<const char*>(node->content));
  }
  return size;
}

std::size_t BytesFor(const Size& size) {
  return kBaseBytes + kBytesPerNode * size.nodes + kBytesPerTextByte * size.textBytes;
}

std::chrono::nanoseconds WorkFor(const Size& size) {
  return kBaseWork + kWorkPerNode * static_cast<long long>(size.nodes);
}

Context NewContext(const Stylesheet& stylesheet, xmlDoc* input, std::size_t nodes) {
  Context context(xsltNewTransformContext(stylesheet.Handle(), input), xsltFreeTransformContext);
  if (context == nullptr) throw std::bad_alloc();
  if (xsltSetCtxtSecurityPrefs(xsltGetDefaultSecurityPrefs(), context.get()) != 0)
    throw XmlError("the stylesheet cannot be closed off");
  context->maxTemplateDepth = kTemplateDepth;
  context->opLimit = kBaseSteps + kStepsPerNode * nodes;
  context->xpathCtxt->opLimit = kXPathStepsPerStep * context->opLimit;
  return context;
}

/// Makes the run end at its next step, be it libxslt's or XPath's.
void Stop(xsltTransformContext& context, ErrorCollector& errors, const char* what) {
  errors.Settle(std::string("the stylesheet needs more ") + what + " than its input allows", 0);
  context.state = XSLT_STATE_STOPPED;
  context.opLimit = 1;
  context.xpathCtxt->opLimit = 1;
}

/// Whether the stylesheet strips white space: libxslt does that in the input itself.
bool StripsInput(xsltStylesheet* stylesheet) {
  for (; stylesheet != nullptr; stylesheet = xsltNextImport(stylesheet))
    if (stylesheet->stripSpaces != nullptr || stylesheet->stripAll != 0) return true;
  return false;
}

constexpr std::array kInstructions{"apply-imports",
                                   "apply-templates",
                                   "attribute",
                                   "attribute-set",
                                   "call-template",
                                   "choose",
                                   "comment",
                                   "copy",
                                   "copy-of",
                                   "decimal-format",
                                   "element",
                                   "fallback",
                                   "for-each",
                                   "if",
                                   "import",
                                   "include",
                                   "key",
                                   "message",
                                   "namespace-alias",
                                   "number",
                                   "otherwise",
                                   "output",
                                   "param",
                                   "preserve-space",
                                   "processing-instruction",
                                   "sort",
                                   "strip-space",
                                   "stylesheet",
                                   "template",
                                   "text",
                                   "transform",
                                   "value-of",
                                   "variable",
                                   "when",
                                   "with-param"};

/// libxslt finds an element of its own name space that there is none of only when it is run, or
/// without saying where it stands.
void RefuseUnknownInstructions(const xmlNode* node) {
  for (; node != nullptr; node = node->next) {
    if (node->type != XML_ELEMENT_NODE) continue;
    const bool isInstruction = node->ns != nullptr && xmlStrEqual(node->ns->href, XSLT_NAMESPACE);
    const std::string_view name(reinterpret_cast<const char*>(node->name));
    if (isInstruction &&
        std::find(kInstructions.begin(), kInstructions.end(), name) == kInstructions.end()) {
      const long line = xmlGetLineNo(node);
      throw XmlError(std::to_string(line) + ": unknown instruction xsl:" + std::string(name), line);
    }
    RefuseUnknownInstructions(node->children);
  }
}

}  // namespace

Stylesheet Stylesheet::Compile(const Document& source, const std::string& name) {
  ErrorCollector errors;
  try {
    RefuseUnknownInstructions(source.Handle()->children);
  } catch (const XmlError& error) {
    throw XmlError(Located(name, error), error.Line());
  }
  xmlDoc* tree = xmlCopyDoc(source.Handle(), 1);
  if (tree == nullptr) throw std::bad_alloc();
  // Without one libxslt tells no line.
  tree->URL = xmlStrdup(BAD_CAST "stylesheet");
  std::shared_ptr<_xsltStylesheet> compiled(xsltParseStylesheetDoc(tree), [](xsltStylesheet* s) {
    if (s != nullptr) xsltFreeStylesheet(s);
  });
  if (compiled == nullptr) xmlFreeDoc(tree);
  if (compiled == nullptr || compiled->errors != 0 || !errors.Text().empty())
    throw XmlError(OneLine(name) + (errors.Line() > 0 ? ":" : ": ") +
                       errors.Message("the stylesheet cannot be read"),
                   errors.Line());
  return Stylesheet(std::move(compiled));
}

bool Processor::Transform() {
  const Document input = StripsInput(stylesheet_.Handle()) ? input_.Clone() : input_;
  Document result = Run(input);
  if (result.Handle() == nullptr) return false;
  if (output_ != nullptr) *output_ = std::move(result);
  return true;
}

Document Processor::Run(const Document& input) {
  ErrorCollector errors;
  error_.clear();
  const Size size = Measure(input.Handle());
  const Context context = NewContext(stylesheet_, input.Handle(), size.nodes);
  const RunMeter meter(BytesFor(size), WorkFor(size),
                       [&](const char* what) { Stop(*context, errors, what); });
  Document result = Document::Adopt(xsltApplyStylesheetUser(
      stylesheet_.Handle(), input.Handle(), nullptr, nullptr, nullptr, context.get()));
  if (result.Handle() != nullptr && context->state == XSLT_STATE_OK) return result;
  error_ = errors.Message("the stylesheet failed");
  return Document::Adopt(nullptr);
}

}  // namespace platform::xml
