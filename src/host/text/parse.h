// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

/// Reads a text file line by line in one pass, keeping no more of it than the line at hand.
///
/// Lines end at LF or CR LF; the last one needs no end. A byte-order mark is dropped. A line that
/// is not valid UTF-8 is read as Windows-1252, so lines are always UTF-8.
class Parse {
 public:
  /// A longer line ends the reading.
  static constexpr std::size_t kMaxLineBytes = std::size_t{1} << 20;

  /// Only a regular file is opened; fault() says when this one was not.
  explicit Parse(const std::filesystem::path& file);
  /// Reads the stream from where it stands; getFirstLine comes back there.
  explicit Parse(std::unique_ptr<std::istream> text);
  ~Parse();
  Parse(const Parse&) = delete;
  Parse& operator=(const Parse&) = delete;

  /// From now on lines come without comments: `#` or `//` to the end of the line.
  void removeComments() noexcept { remove_comments_ = true; }
  /// From now on lines that hold only blanks and tabs are passed over.
  void removeBlankLines() noexcept { remove_blank_lines_ = true; }
  /// From now on every line that is delivered is also written to `output`, which outlives this.
  void trace(std::ostream& output) noexcept { trace_ = &output; }

  /// The first line, from wherever the reading was. False at the end, `line` is then unchanged.
  bool getFirstLine(std::string_view& line);
  /// The line after the last one. `line` stands until the next call. False at the end.
  bool getNextLine(std::string_view& line);

  /// The number, from 1, of the line delivered last; lines passed over are counted.
  [[nodiscard]] std::size_t lineNumber() const noexcept { return line_number_; }
  /// Why there are no more lines though the text may have some; empty while all is well.
  [[nodiscard]] const std::string& fault() const noexcept { return fault_; }

  /// Splits a line: blanks and tabs before the first word are skipped; the word ends at a blank,
  /// tab, comma, semicolon or `=`; the rest begins behind the run of these and ends before the
  /// line's last blanks and tabs.
  static void stripFirstWord(std::string_view line, std::string_view& firstWord,
                             std::string_view& rest) noexcept;

 private:
  bool NextRawLine(std::string_view& line);
  bool FillBuffer();
  [[nodiscard]] std::string_view Clean(std::string_view raw);

  std::unique_ptr<std::istream> input_;
  std::streamoff origin_ = 0;
  std::string buffer_;
  std::size_t begin_ = 0;  ///< of what is not delivered yet
  std::size_t end_ = 0;    ///< of what was read
  /// Nothing in the buffer but ASCII without a sign of a comment: its lines need no second look.
  bool plain_ = false;
  std::string converted_;
  std::string fault_;
  std::ostream* trace_ = nullptr;
  std::size_t line_number_ = 0;
  bool remove_comments_ = false;
  bool remove_blank_lines_ = false;
};
