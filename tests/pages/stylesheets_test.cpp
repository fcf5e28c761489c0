// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "app/session.h"
#include "host/gui/page_host.h"
#include "host/gui/page_services.h"
#include "host/project/ost_project.h"
#include "host/project/page_table.h"
#include "host/project/run_time_db.h"
#include "host/project/stylesheet_file.h"
#include "host/project/support_files.h"
#include "platform/file/file.h"
#include "platform/xml/document.h"
#include "platform/xml/stylesheet.h"
#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;
using platform::xml::Document;
using platform::xml::TextForm;

const fs::path kSource = SYSDEF_SOURCE_DIR;
const fs::path kSupport = fs::path(SYSDEF_BINARY_DIR) / "share/sysdef/support";

std::string Read(const fs::path& file) { return platform::ReadFile(file).value_or("(no file)"); }

/// What a stylesheet makes of a document, or why it does not.
std::string Transformed(const fs::path& sheet, const Document& input) {
  const auto source = Framework::ReadStylesheetFile(sheet.string(), nullptr);
  platform::xml::Processor processor(
      platform::xml::Stylesheet::Compile(source, sheet.filename().string()));
  Document output;
  processor.SetInput(input);
  processor.SetOutput(output);
  if (!processor.Transform()) return processor.Error() + "\n";
  return output.ToText(TextForm::kIndented);
}

/// What the stylesheet processor of the command line makes of a file.
std::string TransformedByXsltproc(const fs::path& sheet, const fs::path& input) {
  const test::TempFolder folder;
  const fs::path output = folder.Path() / "out.xml";
  const std::string command = "xsltproc --nonet -o '" + output.string() + "' '" + sheet.string() +
                              "' '" + input.string() + "'";
  EXPECT_EQ(std::system(command.c_str()), 0) << command;
  return Document::Parse(Read(output)).ToText(TextForm::kIndented);
}

// Every tests/pages/SUBJECT/stylesheets/SHEET.CASE.in.xml goes through SHEET.xsl and must give
// SHEET.CASE.out.xml. With SYSDEF_UPDATE set the latter are written instead, for a look at the
// difference.
TEST(Stylesheets, MakeWhatTheirFileSetsSay) {
  const bool update = std::getenv("SYSDEF_UPDATE") != nullptr;
  std::size_t cases = 0;
  for (const auto& entry : fs::recursive_directory_iterator(kSource / "tests/pages")) {
    std::string name = entry.path().filename().string();
    if (!name.ends_with(".in.xml")) continue;
    ++cases;
    const std::string sheet = name.substr(0, name.find('.')) + ".xsl";
    const auto made = Transformed(kSupport / sheet, Document::Parse(Read(entry.path())));
    name.replace(name.size() - 7, 7, ".out.xml");
    const fs::path expected = entry.path().parent_path() / name;
    if (update) platform::WriteFileAtomically(expected, made);
    EXPECT_EQ(made, Read(expected)) << expected;
  }
  EXPECT_GE(cases, 10u);
}

class StylesheetsOfSample : public testing::TestWithParam<const char*> {
 protected:
  StylesheetsOfSample() {
    fs::copy(kSource / "samples" / GetParam(), folder_.Path(), fs::copy_options::recursive);
    session_ = std::make_unique<app::Session>(folder_.Path());
    table_ = ReadPageTable(session_->Project());
  }
  [[nodiscard]] fs::path Sheet(const std::string& name) const {
    return Framework::GetToolFilePath(&session_->Project(), name.c_str());
  }
  [[nodiscard]] Document Fragments(const std::string& sheet) const {
    const auto source = Framework::ReadStylesheetFile(Sheet(sheet).string(), nullptr);
    return session_->Database().GetDOM(ExtractNeededDBFragmentNames(source));
  }

  test::TempFolder folder_;
  std::unique_ptr<app::Session> session_;
  std::vector<PageTableRow> table_;
};

TEST_P(StylesheetsOfSample, GiveThePagesWhatXsltprocGives) {
  for (const auto& row : table_) {
    EXPECT_EQ(Transformed(Sheet(row.inStylesheet), Fragments(row.inStylesheet)),
              TransformedByXsltproc(Sheet(row.inStylesheet), session_->Database().File()))
        << row.page;
  }
}

TEST_P(StylesheetsOfSample, StoreThePagesAsXsltprocDoes) {
  for (const auto& row : table_) {
    Document combined = Fragments(row.outStylesheet);
    auto& page = session_->Pages().Open(row.page);
    combined.Root().AppendCopy(Framework::PageHost::Services(page).ExportData().Root());
    const auto file = folder_.Write("combined.xml", combined.ToText(TextForm::kBare));
    const std::string made = Transformed(Sheet(row.outStylesheet), combined);
    EXPECT_EQ(made, TransformedByXsltproc(Sheet(row.outStylesheet), file)) << row.page;
    EXPECT_TRUE(session_->Database().SetDOM(Document::Parse(made)));
    EXPECT_FALSE(session_->Database().Modified()) << row.page;
  }
}

INSTANTIATE_TEST_SUITE_P(All, StylesheetsOfSample,
                         testing::Values("three-color-lamp", "six-color-led-laser"));

}  // namespace
