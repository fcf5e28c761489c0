// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/document.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <algorithm>
#include <climits>
#include <new>

#include "platform/xml/library.h"
#include "platform/xml/limits.h"
#include "platform/xml/names.h"
#include "platform/xml/source_text.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {
namespace {

struct FreeContext {
  void operator()(xmlParserCtxt* context) const noexcept { xmlFreeParserCtxt(context); }
};

void RefuseDoctype(void* user, const xmlChar*, const xmlChar*, const xmlChar*) {
  auto* context = static_cast<xmlParserCtxt*>(user);
  if (auto* errors = ErrorCollector::Current())
    errors->Settle("a document type declaration is not allowed", xmlSAX2GetLineNumber(context));
  xmlStopParser(context);
}

std::unique_ptr<xmlParserCtxt, FreeContext> NewContext() {
  std::unique_ptr<xmlParserCtxt, FreeContext> context(xmlNewParserCtxt());
  if (context == nullptr) throw std::bad_alloc();
  context->sax->internalSubset = RefuseDoctype;
  return context;
}

xmlDoc* NewTree() {
  PrepareLibraries();
  xmlDoc* tree = xmlNewDoc(BAD_CAST "1.0");
  if (tree == nullptr) throw std::bad_alloc();
  return tree;
}

}  // namespace

Document::Document() : Document(Adopt(NewTree())) {}

Document Document::Adopt(_xmlDoc* tree) {
  return Document(std::shared_ptr<_xmlDoc>(tree, xmlFreeDoc));
}

Document Document::Parse(std::string_view bytes, const ReadLimits& limits) {
  if (bytes.size() > std::min<std::size_t>(limits.bytes, INT_MAX))
    throw XmlError("the document is longer than " + std::to_string(limits.bytes) + " bytes");
  const SourceText source(bytes);
  CheckLimits(source.View(), limits);
  ErrorCollector errors;
  const auto context = NewContext();
  xmlDoc* tree =
      xmlCtxtReadMemory(context.get(), source.View().data(), static_cast<int>(source.View().size()),
                        nullptr, nullptr, XML_PARSE_NONET | XML_PARSE_BIG_LINES);
  Document document = Adopt(tree);
  // A prefix without a namespace is reported, but the tree is returned all the same.
  if (tree == nullptr || !errors.Text().empty())
    throw XmlError(errors.Message("the document cannot be read"), errors.Line());
  return document;
}

Element Document::Root() const noexcept { return Element(xmlDocGetRootElement(tree_.get())); }

Element Document::CreateRoot(const char* name) {
  if (Root()) throw XmlError("the document has a document element already");
  CheckName(name);
  xmlNode* node = xmlNewDocNode(tree_.get(), nullptr, BAD_CAST name, nullptr);
  if (node == nullptr) throw std::bad_alloc();
  xmlDocSetRootElement(tree_.get(), node);
  return Element(node);
}

Element Document::SetRootCopy(Element source) {
  if (Root()) throw XmlError("the document has a document element already");
  xmlNode* node = xmlDocCopyNode(source.Node(), tree_.get(), 1);
  if (node == nullptr) throw std::bad_alloc();
  xmlDocSetRootElement(tree_.get(), node);
  return Element(node);
}

Document Document::Clone() const {
  xmlDoc* tree = xmlCopyDoc(tree_.get(), 1);
  if (tree == nullptr) throw std::bad_alloc();
  return Adopt(tree);
}

bool IsXmlText(std::string_view text) noexcept {
  return FirstForbidden(text) == std::string_view::npos;
}

}  // namespace platform::xml
