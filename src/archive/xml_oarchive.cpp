// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/xml_oarchive.h"

#include "archive/xml_archive_exception.h"
#include "platform/xml/xml_error.h"

namespace zel::archive {

using platform::xml::SaxWriter;

namespace {

/// Deeper than this no text is read back.
constexpr int kDeepest = 256;
/// How much of a refused text an exception says.
constexpr std::size_t kShownText = 80;

}  // namespace

xml_oarchive::xml_oarchive(platform::xml::Document target, std::uint32_t flags)
    : zel_basic_oarchive(*this, flags), writer_(std::move(target)) {
  content_.StartDocument();
  if ((flags & flags::kNoRoot) != 0) return;
  const bool is_long = (flags & flags::kLongNames) != 0;
  root_ = is_long ? "boost_serialization" : "zel_tessary_archive";
  if (is_long) {
    lexical_.StartDtd(root_);
    lexical_.EndDtd();
    pending_attributes_.push_back({"signature", "serialization::archive"});
  }
  pending_attributes_.push_back({"version", is_long ? "3" : "2"});
  save_start(root_);
}

xml_oarchive::~xml_oarchive() {
  try {
    Finish();
  } catch (...) {
    // The document ends where the fault was; whoever wants to know calls Finish.
  }
}

void xml_oarchive::Finish() {
  if (finished_) return;
  finished_ = true;
  if (root_ != nullptr) save_end(root_);
  content_.EndDocument();
}

void xml_oarchive::drop_attributes() noexcept {
  if (!keep_attributes_) pending_attributes_.clear();
  keep_attributes_ = false;
}

void xml_oarchive::save_start(const char* name) {
  flush();
  drop_attributes();
  pending_name_ = name;
  if (name != nullptr && ++depth_ > kDeepest) {
    throw xml_archive_exception(xml_archive_exception::message_in_exception,
                                "elements nested deeper than 256", writer_.OpenPath());
  }
}

void xml_oarchive::save_end(const char* name) {
  flush();
  if (name == nullptr) return;
  writer_.EndElement(name);
  --depth_;
}

void xml_oarchive::flush() {
  if (pending_name_ == nullptr) return;
  const char* name = std::exchange(pending_name_, nullptr);
  if (pending_attributes_.empty()) return writer_.StartElement(name, {});
  std::vector<platform::xml::SaxAttribute> attributes;
  for (const attribute& each : pending_attributes_) attributes.push_back({each.name, each.value});
  writer_.StartElement(name, attributes);
  pending_attributes_.clear();
}

void xml_oarchive::refuse_text(const char* name, std::string_view text) const {
  std::string where = writer_.OpenPath();
  if (name != nullptr) where.append("/").append(name);
  throw xml_archive_exception(xml_archive_exception::cannot_convert_data_to_text, {},
                              where.append(" = ").append(text.substr(0, kShownText)));
}

// The text is looked at first: of a value that is refused not even the start tag is written.
void xml_oarchive::save_text(std::string_view text) {
  if (!SaxWriter::CanCarry(text)) refuse_text(pending_name_, text);
  flush();
  writer_.Characters(text);
}

void xml_oarchive::save_leaf(const char* name, std::string_view text) {
  if (attribute_value_name_ != nullptr) {
    if (!SaxWriter::CanCarry(text)) refuse_text(attribute_value_name_, text);
    pending_attributes_.push_back({attribute_value_name_, std::string(text)});
    return;
  }
  if (name == nullptr) return save_text(text);
  flush();
  drop_attributes();
  if (!pending_attributes_.empty()) return save_first_leaf(name, text);
  try {
    writer_.TextElement(name, text);
  } catch (const platform::xml::XmlError&) {
    if (!SaxWriter::CanCarry(text)) refuse_text(name, text);
    throw;
  }
}

void xml_oarchive::save_first_leaf(const char* name, std::string_view text) {
  keep_attributes_ = true;
  save_start(name);
  save_text(text);
  save_end(name);
}

const zel_basic_pointer_oserializer& xml_oarchive::pointer_oserializer_of(
    const std::type_info& type) const {
  const exported_class* exported =
      has_class_info() ? export_registry::instance().find(type) : nullptr;
  if (exported == nullptr) {
    throw boost::archive::archive_exception(boost::archive::archive_exception::unregistered_class);
  }
  return *exported->output;
}

void xml_oarchive::save_info(class_info info, long long value) {
  if (!has_class_info()) return;
  const bool is_id = info == class_info::object_id || info == class_info::object_id_reference;
  const bool is_long = (flags() & flags::kLongNames) != 0;
  pending_attributes_.push_back(
      {attribute_name(info, flags()), (is_id && is_long ? "_" : "") + std::to_string(value)});
}

void xml_oarchive::save_class_name(const char* key) {
  if (!has_class_info()) return;
  pending_attributes_.push_back({attribute_name(class_info::class_name, flags()), key});
}

}  // namespace zel::archive
