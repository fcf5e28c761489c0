// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/xml_iarchive.h"

#include "archive/xml_archive_exception.h"
#include "platform/xml/tree_cursor.h"

namespace zel::archive {

namespace cursor = platform::xml::cursor;
using fault = xml_archive_exception;

namespace {

constexpr std::size_t kDeepest = 256;
/// How much of a refused text an exception says.
constexpr std::size_t kShownText = 80;
/// So much text costs as much as one child that is looked at.
constexpr std::size_t kTextPerStep = 64;

/// Once a collection counts more entries than it has elements, all that is still read is bounded:
/// by so many steps for what the document holds, and so many besides.
std::size_t most_work(_xmlNode* root) {
  constexpr std::size_t kStepsPerElement = 32;
  constexpr std::size_t kStepsBesides = 65'536;
  const cursor::Extent extent = cursor::ExtentOf(root);
  return extent.elements * kStepsPerElement + extent.textBytes / kTextPerStep + kStepsBesides;
}

}  // namespace

xml_iarchive::xml_iarchive(platform::xml::Document source, std::uint32_t flags)
    : zel_basic_iarchive(*this, flags), source_(std::move(source)) {
  if ((flags & flags::kNoRoot) == 0) find_root();
}

xml_iarchive::~xml_iarchive() = default;

void xml_iarchive::find_root() {
  _xmlNode* root = cursor::Root(source_.Handle());
  const char* name =
      (flags() & flags::kLongNames) != 0 ? "boost_serialization" : "zel_tessary_archive";
  if (root == nullptr ||
      !(cursor::HasBaseName(root, name) || cursor::HasBaseName(root, "ZELTessary_Serialization"))) {
    throw fault(fault::missing_element, {}, name);
  }
  push(root);
  if (const auto version = platform::xml::Element(root).Attribute("version")) {
    library_version_ = number<unsigned>(root, *version);
  }
}

void xml_iarchive::push(_xmlNode* element) {
  if (stack_.size() >= kDeepest) {
    throw fault(fault::message_in_exception, "elements nested deeper than 256");
  }
  stack_.push_back({element, nullptr});
}

void xml_iarchive::load_start(const char* name) {
  if (name != nullptr) push(enter(name));
}

void xml_iarchive::load_end(const char* name) {
  if (name == nullptr) return;
  const _xmlNode* element = current();
  if (element != nullptr && !cursor::HasBaseName(element, name)) {
    throw fault(fault::element_mismatch, {}, cursor::Path(element));
  }
  stack_.pop_back();
}

_xmlNode* xml_iarchive::enter(const char* name) {
  if (stack_.empty()) return enter_document(name);
  frame& top = stack_.back();
  if (top.element == nullptr) return missing(name);
  const cursor::Found found = cursor::FindChild(top.element, top.last_matched, name);
  steps_ += found.steps;
  if (steps_ > most_steps_) refuse_text(top.element, {});
  if (found.child == nullptr) return missing(name);
  top.last_matched = found.child;
  return found.child;
}

_xmlNode* xml_iarchive::enter_document(const char* name) {
  if ((flags() & flags::kNoRoot) == 0) throw fault(fault::missing_curnode);
  _xmlNode* root = cursor::Root(source_.Handle());
  return root != nullptr && cursor::HasBaseName(root, name) ? root : missing(name);
}

_xmlNode* xml_iarchive::missing(const char* name) const {
  if ((flags() & flags::kTolerateMissing) != 0) return nullptr;
  std::string where = stack_.empty() ? std::string() : cursor::Path(stack_.back().element) + '/';
  throw fault(fault::missing_element, {}, where.append(name));
}

_xmlNode* xml_iarchive::current() const {
  if (stack_.empty()) throw fault(fault::missing_curnode);
  return stack_.back().element;
}

bool xml_iarchive::has_element() const noexcept {
  return !stack_.empty() && stack_.back().element != nullptr;
}

std::string_view xml_iarchive::text() {
  _xmlNode* element = current();
  return element != nullptr ? text_of(element) : std::string_view();
}

std::string_view xml_iarchive::text_of(_xmlNode* element) {
  const std::string_view text = cursor::Text(element, scratch_);
  steps_ += text.size() / kTextPerStep;
  return text;
}

std::size_t xml_iarchive::load_count() {
  unsigned long long count = 0;
  *this >> nvp("count", count);
  if (!has_element() || count == 0) return count;
  const std::size_t present = cursor::CountChildren(stack_.back().element, count);
  if (count > present) borrow(count - present);
  return count;
}

// Entries without an element of their own are legal: the search wraps around, so they repeat the
// first ones. A forged count must not turn that into endless work or memory.
void xml_iarchive::borrow(unsigned long long entries) {
  if (most_steps_ == std::numeric_limits<std::size_t>::max()) {
    most_steps_ = steps_ + most_work(cursor::Root(source_.Handle()));
  }
  if (steps_ > most_steps_ || entries > most_steps_ - steps_) {
    refuse_text(stack_.back().element, "count " + std::to_string(entries));
  }
  steps_ += entries;
}

void xml_iarchive::refuse_repeated_entry() const {
  if (!has_class_info()) return;
  throw boost::archive::archive_exception(boost::archive::archive_exception::pointer_conflict);
}

void xml_iarchive::refuse_text(_xmlNode* element, std::string_view text) const {
  throw fault(fault::cannot_convert_text_to_data, {},
              cursor::Path(element).append(" = ").append(text.substr(0, kShownText)));
}

bool xml_iarchive::has_info(class_info info) const {
  if (!has_class_info()) return false;
  _xmlNode* element = current();
  return element != nullptr &&
         platform::xml::Element(element).Attribute(attribute_name(info, flags())).has_value();
}

long long xml_iarchive::load_info(class_info info) {
  if (!has_class_info()) return 0;
  _xmlNode* element = current();
  if (element == nullptr) return 0;
  const auto text = platform::xml::Element(element).Attribute(attribute_name(info, flags()));
  if (!text && info == class_info::version) {
    throw fault(fault::missing_attribute, {}, cursor::Path(element));
  }
  if (!text) return 0;
  std::string_view digits = *text;
  if ((flags() & flags::kLongNames) != 0 && digits.starts_with('_')) digits.remove_prefix(1);
  return number<long long>(element, digits);
}

std::string xml_iarchive::load_class_name() {
  if (!has_info(class_info::class_name)) return {};
  return platform::xml::Element(current()).Attribute(
      attribute_name(class_info::class_name, flags()), {});
}

}  // namespace zel::archive
