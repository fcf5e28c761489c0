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
#include <new>
#include <string_view>

#include "platform/xml/library.h"
#include "platform/xml/tree.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {
namespace {

using Context = std::unique_ptr<xsltTransformContext, decltype(&xsltFreeTransformContext)>;

// Work a stylesheet may do: a fixed part, and a part for each node of the input.
constexpr unsigned long kBaseSteps = 1'000'000;
constexpr unsigned long kStepsPerNode = 200;
constexpr int kTemplateDepth = 250;

unsigned long CountNodes(const xmlDoc* tree) {
  unsigned long count = 0;
  for (xmlNode* node = tree->children; node != nullptr; node = NextNode(node)) ++count;
  return count;
}

void Bound(xsltTransformContext& context, unsigned long nodes) {
  context.maxTemplateDepth = kTemplateDepth;
  context.opLimit = kBaseSteps + kStepsPerNode * nodes;
  context.xpathCtxt->opLimit = 10 * context.opLimit;
}

Context NewContext(const Stylesheet& stylesheet, xmlDoc* input) {
  Context context(xsltNewTransformContext(stylesheet.Handle(), input), xsltFreeTransformContext);
  if (context == nullptr) throw std::bad_alloc();
  if (xsltSetCtxtSecurityPrefs(xsltGetDefaultSecurityPrefs(), context.get()) != 0)
    throw XmlError("the stylesheet cannot be closed off");
  Bound(*context, CountNodes(input));
  return context;
}

/// Whether the stylesheet strips white space: libxslt does that in the input itself.
bool StripsInput(xsltStylesheet* stylesheet) {
  for (; stylesheet != nullptr; stylesheet = xsltNextImport(stylesheet))
    if (stylesheet->stripSpaces != nullptr || stylesheet->stripAll != 0) return true;
  return false;
}

void Clear(xmlDoc* tree) {
  xmlFreeNodeList(tree->children);
  tree->children = tree->last = nullptr;
  tree->intSubset = nullptr;
}

void SetOwner(xmlNode* node, xmlDoc* owner) {
  node->doc = owner;
  if (node->type != XML_ELEMENT_NODE) return;
  for (xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next) {
    attribute->doc = owner;
    for (xmlNode* part = attribute->children; part != nullptr; part = part->next) part->doc = owner;
  }
}

/// Moves what `from` holds to `to`, its table of shared names included, and leaves `from` empty.
/// Nothing is copied: large results are the rule.
void Move(xmlDoc* from, xmlDoc* to) {
  Clear(to);
  const _xmlDoc emptied = *to;
  *to = *from;
  *from = emptied;
  to->doc = to;
  from->doc = from;
  for (xmlNode* node = to->children; node != nullptr; node = node->next)
    node->parent = reinterpret_cast<xmlNode*>(to);
  for (xmlNode* node = to->children; node != nullptr; node = NextNode(node)) SetOwner(node, to);
}

constexpr std::array kInstructions{
    "apply-imports", "apply-templates", "attribute", "attribute-set", "call-template", "choose",
    "comment", "copy", "copy-of", "decimal-format", "element", "fallback", "for-each", "if",
    "import", "include", "key", "message", "namespace-alias", "number", "otherwise", "output",
    "param", "preserve-space", "processing-instruction", "sort", "strip-space", "stylesheet",
    "template", "text", "transform", "value-of", "variable", "when", "with-param"};

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
  std::shared_ptr<_xsltStylesheet> compiled(xsltParseStylesheetDoc(tree), [](xsltStylesheet* s) {
    if (s != nullptr) xsltFreeStylesheet(s);
  });
  if (compiled == nullptr) xmlFreeDoc(tree);
  if (compiled == nullptr || compiled->errors != 0)
    throw XmlError(name + (errors.Line() > 0 ? ":" : ": ") +
                       errors.Message("the stylesheet cannot be read"),
                   errors.Line());
  return Stylesheet(std::move(compiled));
}

bool Processor::Transform() {
  ErrorCollector errors;
  error_.clear();
  const Document input = StripsInput(stylesheet_.Handle()) ? input_.Clone() : input_;
  const Context context = NewContext(stylesheet_, input.Handle());
  xmlDoc* result = xsltApplyStylesheetUser(stylesheet_.Handle(), input.Handle(), nullptr, nullptr,
                                           nullptr, context.get());
  const Document owned = Document::Adopt(result);
  if (result == nullptr || context->state != XSLT_STATE_OK) {
    error_ = errors.Message("the stylesheet failed");
    return false;
  }
  Move(result, output_.Handle());
  return true;
}

}  // namespace platform::xml
