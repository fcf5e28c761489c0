// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_optics/rules/spectrum_files.h"

#include <set>
#include <string>
#include <string_view>

#include "host/text/leading_number.h"
#include "pages/lamp_optics/rules/library.h"
#include "pages/lamp_optics/rules/name_limit.h"
#include "pages/lamp_optics/rules/point_collector.h"

namespace lamp_optics {
namespace {

/// A file's lines, split, and the report they are read for.
class Reader {
 public:
  Reader(Parse& lines, LoadReport& report) : lines_(lines), report_(report) {
    lines_.removeComments();
    lines_.removeBlankLines();
  }

  /// Goes to the next line; false at the end.
  bool Next() {
    if (!lines_.getNextLine(line_)) {
      report_.fault = lines_.fault();
      return false;
    }
    Parse::stripFirstWord(line_, word_, rest_);
    return true;
  }
  [[nodiscard]] std::string_view Word() const noexcept { return word_; }

  void TakeName(std::string& name) {
    NoteAgain();
    std::string whole(rest_);
    if (DropUnstorable(whole)) Note("characters that cannot be stored are left out of the name");
    name = CutName(whole);
    if (name.size() < whole.size()) {
      Note("the name is cut after " + std::to_string(kMaxNameCharacters) + " of " +
           std::to_string(CharacterCount(whole)) + " characters");
    }
  }

  void TakeNumber(double& value) { Take(leading_number::LeadingDouble(rest_), value); }
  void TakeInteger(int& value) { Take(leading_number::LeadingInt(rest_), value); }

  /// Gives every line up to the end keyword to `take`.
  template <class Take>
  void TakeBlock(std::string_view endKeyword, Take take) {
    while (Next()) {
      if (word_ == endKeyword) return;
      take(FileLine{lines_.lineNumber(), line_, word_, rest_});
    }
    report_.AddAlways(
        lines_.lineNumber(),
        std::string(endKeyword) + " is missing; its block runs to the end of the file");
  }

  void NoteUnknown() { Note("unknown keyword " + Quoted(word_)); }
  void Note(std::string text) { report_.Add(lines_.lineNumber(), std::move(text)); }

 private:
  /// Of a value that is given more than once the last one stands.
  void NoteAgain() {
    if (!given_.emplace(word_).second) Note(std::string(word_) + " occurs again");
  }

  template <class T>
  void Take(const std::optional<leading_number::Field<T>>& field, T& value) {
    NoteAgain();
    if (field) value = field->value;
    if (field && field->whole) return;
    Note(std::string(word_) + (field ? ": only the beginning of its text is a number"
                                     : ": its text is no number and is left out"));
  }

  Parse& lines_;
  LoadReport& report_;
  std::set<std::string, std::less<>> given_;
  std::string_view line_;
  std::string_view word_;
  std::string_view rest_;
};

void TakeAperture(LoadReport& report, std::vector<ApertureLumens>& table, const FileLine& line) {
  const auto aperture = leading_number::LeadingDouble(line.first);
  const auto lumens = leading_number::LeadingDouble(line.rest);
  if (!aperture || !lumens) {
    report.Add(line.number, "no data line, left out: " + Quoted(line.text));
    return;
  }
  if (!aperture->whole || !lumens->whole) {
    report.Add(line.number, "only the beginning of the numbers was taken: " + Quoted(line.text));
  }
  table.push_back({aperture->value, lumens->value});
}

void TakeLampLine(Reader& reader, PointCollector& points, LampFile& file) {
  const std::string_view word = reader.Word();
  if (word == "LAMP_NAME") {
    reader.TakeName(file.record.Name);
  } else if (word == "TOTAL_LUMENS") {
    reader.TakeNumber(file.record.TotalLumens);
    if (!IsTotalLumens(file.record.TotalLumens)) {
      reader.Note("TOTAL_LUMENS is outside what the page takes");
    }
  } else if (word == "LAMP_POWER") {
    reader.TakeNumber(file.record.LampPower);
  } else if (word == "OPTICS_FLAG") {
    reader.TakeInteger(file.record.OpticsFlag);
  } else if (word == "RESPONSE_DATA_START") {
    reader.TakeBlock("RESPONSE_DATA_END", [&](const FileLine& line) { points.TakeLine(line); });
  } else if (word == "LUMENS_VS_APERTURE_START") {
    reader.TakeBlock("LUMENS_VS_APERTURE_END", [&](const FileLine& line) {
      TakeAperture(file.report, file.record.LumensVsAperture, line);
    });
  } else {
    reader.NoteUnknown();
  }
}

}  // namespace

LampFile ReadLamp(Parse& lines) {
  LampFile file;
  Reader reader(lines, file.report);
  PointCollector points(file.record.Response, file.report);
  while (reader.Next()) TakeLampLine(reader, points, file);
  return file;
}

OpticsFile ReadOptics(Parse& lines) {
  OpticsFile file;
  Reader reader(lines, file.report);
  PointCollector points(file.record.Response, file.report);
  while (reader.Next()) {
    if (reader.Word() == "OPTICS_NAME") {
      reader.TakeName(file.record.Name);
    } else if (reader.Word() == "OPTICS_DATA_START") {
      reader.TakeBlock("OPTICS_DATA_END", [&](const FileLine& line) { points.TakeLine(line); });
    } else {
      reader.NoteUnknown();
    }
  }
  return file;
}

RecyclingFile ReadRecycling(Parse& lines) {
  RecyclingFile file;
  Reader reader(lines, file.report);
  PointCollector points(file.points, file.report);
  while (reader.Next()) {
    if (reader.Word() == "FILTER_DATA_START") {
      reader.TakeBlock("FILTER_DATA_END", [&](const FileLine& line) { points.TakeLine(line); });
    } else {
      reader.NoteUnknown();
    }
  }
  return file;
}

LampFile ReadLampFile(const std::filesystem::path& file) {
  Parse lines(file);
  return ReadLamp(lines);
}

OpticsFile ReadOpticsFile(const std::filesystem::path& file) {
  Parse lines(file);
  return ReadOptics(lines);
}

RecyclingFile ReadRecyclingFile(const std::filesystem::path& file) {
  Parse lines(file);
  return ReadRecycling(lines);
}

}  // namespace lamp_optics
