// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/xml/document.h"
#include "platform/xml/numeric_fields.h"

namespace Framework {

/// The project's run-time database: one XML document of fragments, shared by the tools of a
/// suite. What no tool changed keeps its bytes.
class RunTimeDB {
 public:
  /// Opens the database of a file; a missing file is an empty database. Throws OstException with
  /// one line naming the file (and line) when it is damaged. In the numeric fields a number keeps
  /// its spelling while its value stays, and a new value is written in its shortest form.
  explicit RunTimeDB(const std::filesystem::path& file, platform::xml::NumericFields numbers = {});
  ~RunTimeDB();
  RunTimeDB(const RunTimeDB&) = delete;
  RunTimeDB& operator=(const RunTimeDB&) = delete;

  /// A document of its own that holds copies of these fragments, in this order, under one
  /// document element `RunTimeDB`. A fragment that is not there is left out.
  [[nodiscard]] platform::xml::Document GetDOM(const std::vector<std::string>& fragments) const;
  /// Hands `use` what GetDOM gives, with `last` behind the fragments where there is one, but lent
  /// in place of copied: the document is good during the call only, and nothing of it may be
  /// changed. `last` belongs to another document and stands there again afterwards.
  void Lend(const std::vector<std::string>& fragments, platform::xml::Element last,
            const std::function<void(const platform::xml::Document&)>& use) const;
  /// Stores every fragment under the document's document element in place of the one of that
  /// name, or as a new one at the end. Other fragments stay. The database keeps the document: the
  /// caller changes it no more. Returns false, with nothing stored, when the document element is
  /// not `RunTimeDB`.
  bool SetDOM(const platform::xml::Document& document);

  /// True when saving would change the file's bytes.
  [[nodiscard]] bool Modified() const;
  /// The whole database as the text that saving writes.
  [[nodiscard]] std::string Text() const;
  /// Writes the file as one step when anything changed. The first save leaves what the file held
  /// before beside it, as FILE.bak. Throws OstException naming the file and the reason, also when
  /// another program changed the file since it was read; the file then stands as it was and the
  /// changes are kept.
  void Save();
  /// Whether the file's bytes are no longer those that were read or saved last.
  [[nodiscard]] bool ChangedOnDisk() const;
  /// Lets a save replace what another program wrote up to now. Throws platform::FileError when it
  /// cannot be read.
  void KeepMine();
  /// Drops unsaved changes and reads the file anew. Throws as the constructor, changing nothing.
  void Reload();

  [[nodiscard]] const std::filesystem::path& File() const noexcept;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace Framework
