// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/project/run_time_db.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

#include "host/project/ost_exception.h"
#include "platform/file/file.h"
#include "platform/file/file_error.h"
#include "platform/xml/composed_document.h"
#include "platform/xml/source_map.h"
#include "platform/xml/source_merge.h"
#include "platform/xml/xml_error.h"

namespace Framework {

namespace {

using platform::xml::Document;
using platform::xml::Element;
using platform::xml::SourceElement;

constexpr const char* kRoot = "RunTimeDB";
constexpr std::string_view kEmptyDatabase =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<RunTimeDB/>\n";

/// One child element of the document element.
struct Fragment {
  std::string name;
  Element before;   ///< as the file has it; null when the file has none
  Document keeper;  ///< holds the tree of `now`
  Element now;      ///< what was stored since; null when nothing was

  [[nodiscard]] Element Current() const { return now ? now : before; }
};

}  // namespace

struct RunTimeDB::State {
  std::filesystem::path file;
  platform::xml::NumericFields numbers;
  std::string text;  ///< UTF-8, what `tree` was read from; the file's bytes unless it is missing
  Document tree;
  std::vector<Fragment> fragments;
  std::optional<std::string> raw;  ///< the file's bytes where `text` is not the same
  bool existed = false;            ///< whether there was a file to read
  bool backedUp = false;
  std::optional<std::size_t> mayReplace;  ///< digest of another program's bytes, given up

  Fragment* Find(std::string_view name) {
    const auto found = std::find_if(fragments.begin(), fragments.end(),
                                    [&](const Fragment& each) { return each.name == name; });
    return found == fragments.end() ? nullptr : &*found;
  }

  [[nodiscard]] Document Home(const std::vector<const Fragment*>& lent) const;
  void Take(std::string bytes);
  void Load();
  void Write();
  [[nodiscard]] std::optional<std::string> OnDisk() const {
    return platform::ReadFile(file, platform::xml::ReadLimits().bytes);
  }
  [[nodiscard]] bool Known(const std::optional<std::string>& bytes) const;
  void Store(const Document& document, Element fragment);
  [[nodiscard]] std::string Merged() const;
  [[nodiscard]] std::string NewFragments() const;
};

/// The document to lend fragments in: that of the largest, which then need not be walked over.
Document RunTimeDB::State::Home(const std::vector<const Fragment*>& lent) const {
  constexpr std::size_t kLarge = 10'000;
  Document home;
  if (lent.empty()) {
    home.CreateRoot(kRoot);
    return home;
  }
  std::size_t most = 0;
  for (const Fragment* fragment : lent) {
    const std::size_t count = platform::xml::CountNodes(fragment->Current(), kLarge);
    if (count <= most) continue;
    most = count;
    home = fragment->now ? fragment->keeper : tree;
  }
  return home;
}

void RunTimeDB::State::Take(std::string bytes) {
  Document read = Document::Parse(bytes);
  if (read.Root().BaseName() != kRoot) {
    throw platform::xml::XmlError("the document element is not RunTimeDB");
  }
  raw.reset();
  if (platform::xml::IsUtf8Source(bytes)) {
    text = std::move(bytes);
  } else {
    // Bytes in another encoding are carried on as UTF-8.
    text = read.ToText(platform::xml::TextForm::kIndented);
    raw = std::move(bytes);
  }
  tree = std::move(read);
  fragments.clear();
  for (Element each = tree.Root().FirstChild(); each; each = each.NextSibling()) {
    fragments.push_back({std::string(each.BaseName()), each, Document(), Element()});
  }
}

void RunTimeDB::State::Load() {
  try {
    auto bytes = OnDisk();
    existed = bytes.has_value();
    Take(bytes ? std::move(*bytes) : std::string(kEmptyDatabase));
  } catch (const platform::FileError& error) {
    throw OstException(error.what());
  } catch (const platform::xml::XmlError& error) {
    throw OstException(Located(file.string(), error));
  }
}

bool RunTimeDB::State::Known(const std::optional<std::string>& bytes) const {
  if (!bytes) return !existed;
  if (mayReplace == std::hash<std::string>()(*bytes)) return true;
  return existed && *bytes == (raw ? *raw : text);
}

void RunTimeDB::State::Write() {
  const auto before = OnDisk();
  if (!Known(before)) {
    throw OstException(file.string() + ": not saved: another program changed the file");
  }
  // The bytes are read back before they are written, so that what stands in the file opens.
  State saved;
  saved.file = file;
  saved.numbers = numbers;
  saved.Take(Merged());
  if (before && !backedUp) platform::WriteFileAtomically(file.string() + ".bak", *before);
  platform::WriteFileAtomically(file, saved.text);
  saved.existed = saved.backedUp = true;
  *this = std::move(saved);
}

void RunTimeDB::State::Store(const Document& document, Element fragment) {
  Fragment* row = Find(fragment.BaseName());
  if (!row) {
    fragments.push_back({std::string(fragment.BaseName()), Element(), document, fragment});
    return;
  }
  if (row->before && platform::xml::SameContent(fragment, row->before, numbers)) {
    row->now = Element();
    row->keeper = Document();
    return;
  }
  row->now = fragment;
  row->keeper = document;
}

std::string RunTimeDB::State::NewFragments() const {
  std::string added;
  for (const Fragment& fragment : fragments) {
    if (fragment.before) continue;
    added += "\n  " + platform::xml::NewSource(fragment.now, 1, numbers);
  }
  return added;
}

std::string RunTimeDB::State::Merged() const {
  const SourceElement root = platform::xml::MapSource(text, 0, 1);
  std::string merged;
  std::size_t done = 0;
  std::size_t index = 0;
  for (const Fragment& fragment : fragments) {
    if (!fragment.before) continue;
    const SourceElement& place = root.children[index++];
    if (!fragment.now) continue;
    merged.append(text, done, place.begin - done);
    const SourceElement deep = platform::xml::MapSource(text, place.begin, 256);
    merged += platform::xml::MergeSource(fragment.now, fragment.before, deep, text, numbers);
    done = place.end;
  }
  const std::string added = NewFragments();
  if (added.empty()) return merged.append(text, done);
  if (root.EmptyTag()) {
    const std::size_t slash = text.rfind('/', root.end);
    return text.substr(0, slash) + ">" + added + "\n</RunTimeDB>" + text.substr(root.end);
  }
  const std::size_t last = root.children.empty() ? root.contentBegin : root.children.back().end;
  merged.append(text, done, last - done);
  merged += added;
  if (text[last] != '\n') merged += '\n';
  return merged.append(text, last);
}

RunTimeDB::RunTimeDB(const std::filesystem::path& file, platform::xml::NumericFields numbers)
    : state_(std::make_unique<State>()) {
  state_->file = file;
  state_->numbers = std::move(numbers);
  state_->Load();
}

RunTimeDB::~RunTimeDB() = default;

Document RunTimeDB::GetDOM(const std::vector<std::string>& fragments) const {
  Document document;
  Element root = document.CreateRoot(kRoot);
  for (const std::string& name : fragments) {
    if (const Fragment* fragment = state_->Find(name)) root.AppendCopy(fragment->Current());
  }
  return document;
}

void RunTimeDB::Lend(const std::vector<std::string>& fragments, Element last,
                     const std::function<void(const Document&)>& use) const {
  std::vector<const Fragment*> lent;
  for (const std::string& name : fragments) {
    const Fragment* fragment = state_->Find(name);
    if (fragment && std::find(lent.begin(), lent.end(), fragment) == lent.end())
      lent.push_back(fragment);
  }
  std::vector<Element> elements;
  for (const Fragment* fragment : lent) elements.push_back(fragment->Current());
  if (last) elements.push_back(last);
  use(platform::xml::ComposedDocument(state_->Home(lent), elements).Get());
}

bool RunTimeDB::SetDOM(const Document& document) {
  const Element root = document.Root();
  if (!root || root.BaseName() != kRoot) return false;
  for (Element each = root.FirstChild(); each; each = each.NextSibling()) {
    state_->Store(document, each);
  }
  return true;
}

bool RunTimeDB::Modified() const {
  return std::any_of(state_->fragments.begin(), state_->fragments.end(),
                     [](const Fragment& fragment) { return static_cast<bool>(fragment.now); });
}

std::string RunTimeDB::Text() const { return Modified() ? state_->Merged() : state_->text; }

void RunTimeDB::Save() {
  if (!Modified()) return;
  try {
    state_->Write();
  } catch (const platform::FileError& error) {
    throw OstException(error.what());
  } catch (const platform::xml::XmlError& error) {
    throw OstException(state_->file.string() + ": not saved: " + error.what());
  }
}

void RunTimeDB::Reload() {
  State fresh;
  fresh.file = state_->file;
  fresh.numbers = state_->numbers;
  fresh.backedUp = state_->backedUp;
  fresh.Load();
  *state_ = std::move(fresh);
}

bool RunTimeDB::ChangedOnDisk() const {
  try {
    return !state_->Known(state_->OnDisk());
  } catch (const platform::FileError&) {
    return true;
  }
}

void RunTimeDB::KeepMine() {
  if (const auto bytes = state_->OnDisk()) {
    state_->mayReplace = std::hash<std::string>()(*bytes);
  } else {
    state_->existed = false;
  }
}

const std::filesystem::path& RunTimeDB::File() const noexcept { return state_->file; }

}  // namespace Framework
