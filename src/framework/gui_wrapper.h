// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <memory>
#include <string>

#include "archive/xml_iarchive.h"
#include "archive/xml_oarchive.h"
#include "framework/gui_wrapper_no_op.h"
#include "host/project/run_time_db.h"

namespace Framework {

/// Binds a page to its data object and to the policies that move the object between the run-time
/// database and the page. A page offers SetData(Data*) and a static CheckData(const Data&,
/// const OstProject*), and may offer a static Explain(const Data&, const OstProject*, what). A page
/// that shows what another page edits names those fragments, as a static ForeignFragments(), and
/// offers TakeForeign(const Data&): it is handed them, read anew, whenever it is activated.
template <class Page, class In, class Out>
class GUIWrapper : public GUIWrapperNoOp<Page> {
 public:
  using Data = typename In::Data;

  GUIWrapper()
      : data_(std::make_unique<Data>()),
        in_(std::make_unique<In>(this->page_->ToolName())),
        out_(std::make_unique<Out>(this->page_->ToolName())) {}
  /// The window goes first: its controls work on the page and its data.
  ~GUIWrapper() override { this->CloseWindow(); }

  bool ConfigureInTransform(const std::vector<const char*>& names) override {
    return in_->LoadTransform(names);
  }
  bool ConfigureOutTransform(const std::vector<const char*>& names) override {
    return out_->LoadTransform(names);
  }
  void HandDataToPage() override { this->WrappedAs().SetData(data_.get()); }
  bool ReadFromRunTimeDB() override {
    const RunTimeDB* database = this->Database();
    return database && in_ && in_->Transform(*database, *data_);
  }
  bool WriteToRunTimeDB() override {
    RunTimeDB* database = this->Database();
    return database && out_ && data_ && out_->Transform(*database, *data_);
  }

  int OnSetActive() override {
    if constexpr (requires { Page::ForeignFragments(); }) {
      const RunTimeDB* database = this->Database();
      Data foreign;
      if (database && this->loaded_ && InTransformLoaded() &&
          in_->Transform(*database, Page::ForeignFragments(), foreign)) {
        this->WrappedAs().TakeForeign(foreign);
      }
    }
    return this->page_->OnSetActive();
  }

  [[nodiscard]] bool InTransformLoaded() const override { return in_->StylesheetLoaded(); }
  [[nodiscard]] bool OutTransformLoaded() const override { return out_->StylesheetLoaded(); }

  [[nodiscard]] platform::xml::Document ExportData() const override {
    platform::xml::Document document;
    zel::archive::xml_oarchive archive(document, kFlags);
    archive << zel::archive::nvp("ModuleOutputs", *data_);
    archive.Finish();
    return document;
  }

  void ImportData(const platform::xml::Document& document) override {
    const auto root = document.Root() ? document.Root().BaseName() : std::string_view();
    if (root != "Inputs" && root != "ModuleOutputs") {
      throw OstException("The document element is neither Inputs nor ModuleOutputs");
    }
    // A refused document must not leave half of itself behind.
    Data fresh(*data_);
    zel::archive::xml_iarchive archive(document, kFlags);
    archive >> zel::archive::nvp(root == "Inputs" ? "Inputs" : "ModuleOutputs", fresh);
    *data_ = std::move(fresh);
    if (!this->loaded_) return;
    HandDataToPage();
    this->page_->DropEdits();
    this->page_->InitDialog();
  }

  [[nodiscard]] Findings CheckData() const override {
    return Page::CheckData(*data_, this->Project());
  }
  [[nodiscard]] std::optional<std::string> Explain(const std::string& what) const override {
    if constexpr (requires { Page::Explain(*data_, this->Project(), what); }) {
      return Page::Explain(*data_, this->Project(), what);
    } else {
      return std::nullopt;
    }
  }

 private:
  static constexpr unsigned kFlags = 0x78000001;

  std::unique_ptr<Data> data_;
  std::unique_ptr<In> in_;
  std::unique_ptr<Out> out_;
};

}  // namespace Framework
