// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/relax_ng.h"

#include <libxml/relaxng.h>
#include <libxml/tree.h>

#include <new>

#include "platform/xml/library.h"
#include "platform/xml/tree.h"
#include "platform/xml/xml_error.h"

namespace platform::xml {
namespace {

template <class T, void (*kFree)(T*)>
struct Free {
  void operator()(T* object) const noexcept { kFree(object); }
};
template <class T, void (*kFree)(T*)>
using Owned = std::unique_ptr<T, Free<T, kFree>>;

void RefuseReferences(xmlDoc* schema) {
  for (xmlNode* node = xmlDocGetRootElement(schema); node != nullptr; node = NextNode(node))
    if (node->type == XML_ELEMENT_NODE && (xmlStrEqual(node->name, BAD_CAST "externalRef") ||
                                           xmlStrEqual(node->name, BAD_CAST "include"))) {
      const long line = xmlGetLineNo(node);
      throw XmlError(std::to_string(line) + ": a schema may not include another file", line);
    }
}

void AddFault(void* faults, xmlErrorPtr error) {
  static_cast<std::vector<SchemaFault>*>(faults)->push_back(
      {error->line, OneLine(error->message != nullptr ? error->message : "invalid")});
}

}  // namespace

RelaxNgSchema RelaxNgSchema::Compile(const Document& source) {
  ErrorCollector errors;
  RefuseReferences(source.Handle());
  const Owned<xmlRelaxNGParserCtxt, xmlRelaxNGFreeParserCtxt> context(
      xmlRelaxNGNewDocParserCtxt(source.Handle()));
  if (context == nullptr) throw std::bad_alloc();
  std::shared_ptr<_xmlRelaxNG> compiled(xmlRelaxNGParse(context.get()), xmlRelaxNGFree);
  if (compiled == nullptr || !errors.Text().empty())
    throw XmlError(errors.Message("the schema cannot be read"), errors.Line());
  return RelaxNgSchema(std::move(compiled));
}

std::vector<SchemaFault> RelaxNgSchema::Validate(const Document& document) const {
  const ErrorCollector silence;
  const Owned<xmlRelaxNGValidCtxt, xmlRelaxNGFreeValidCtxt> context(
      xmlRelaxNGNewValidCtxt(compiled_.get()));
  if (context == nullptr) throw std::bad_alloc();
  std::vector<SchemaFault> faults;
  xmlRelaxNGSetValidStructuredErrors(context.get(), AddFault, &faults);
  const int result = xmlRelaxNGValidateDoc(context.get(), document.Handle());
  if (result < 0) throw XmlError("the document cannot be validated");
  if (result > 0 && faults.empty()) faults.push_back({0, "the document does not fit the schema"});
  return faults;
}

}  // namespace platform::xml
