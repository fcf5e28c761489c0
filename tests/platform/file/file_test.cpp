// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/file/file.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "platform/file/file_error.h"
#include "support/fault_of.h"
#include "support/temp_folder.h"

namespace {

namespace fs = std::filesystem;
using platform::FileError;
using platform::ReadFile;
using platform::WriteFileAtomically;
using test::TempFolder;
using testing::HasSubstr;

std::string FaultOf(auto&& act) { return test::FaultOf<FileError>(act); }

std::size_t FilesIn(const fs::path& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
}

mode_t ModeOf(const fs::path& path) {
  struct stat status = {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0);
  return status.st_mode & 07777;
}

/// An ordinary user, also where the tests run as root: nothing is read-only to root.
class OrdinaryUser {
 public:
  OrdinaryUser() : root_(::geteuid() == 0 && ::seteuid(65534) == 0) {}
  ~OrdinaryUser() {
    if (root_ && ::seteuid(0) != 0) std::abort();
  }

 private:
  bool root_;
};

/// A disk that is full after so many bytes of a file.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_ = {};
};

TEST(ReadFile, TakesRegularFilesUpToTheLimit) {
  const TempFolder folder;
  EXPECT_EQ(ReadFile(folder.Path() / "none"), std::nullopt);
  EXPECT_EQ(ReadFile(folder.Path() / "none/none"), std::nullopt);
  EXPECT_EQ(ReadFile(folder.Write("empty", "")), "");
  const std::string bytes("a\0\n\xFF", 4);
  EXPECT_EQ(ReadFile(folder.Write("bytes", bytes), 4), bytes);
  EXPECT_THAT(FaultOf([&] { (void)ReadFile(folder.Path() / "bytes", 3); }),
              HasSubstr("bytes: it is longer than 3 bytes"));
  // Its size says 0, so the limit must hold while it is read.
  EXPECT_GT(ReadFile("/proc/self/maps")->size(), 100u);
  EXPECT_THAT(FaultOf([] { (void)ReadFile("/proc/self/maps", 100); }),
              HasSubstr("longer than 100"));
}

TEST(ReadFile, RefusesWhatIsNoRegularFileAndNamesIt) {
  const TempFolder folder;
  ASSERT_EQ(::mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
  for (const auto& path : {folder.Path(), folder.Path() / "pipe", fs::path("/dev/zero")})
    EXPECT_EQ(FaultOf([&] { (void)ReadFile(path); }),
              "Cannot read " + path.string() + ": it is not a regular file");
  const auto secret = folder.Write("secret", "x");
  fs::permissions(secret, fs::perms::none);
  fs::permissions(folder.Path(), fs::perms(0755));
  const OrdinaryUser user;
  EXPECT_EQ(FaultOf([&] { (void)ReadFile(secret); }),
            "Cannot read " + secret.string() + ": Permission denied");
}

TEST(WriteFileAtomically, ReplacesTheBytesAndKeepsTheModeAndTheLink) {
  const TempFolder folder;
  const auto file = folder.Write("data/file", "old");
  fs::permissions(file, fs::perms(0640));
  WriteFileAtomically(file, "new");
  EXPECT_EQ(folder.Read("data/file"), "new");
  EXPECT_EQ(ModeOf(file), 0640u);

  fs::create_symlink("data/file", folder.Path() / "near");
  fs::create_symlink(folder.Path() / "near", folder.Path() / "far");
  const std::string large(3 << 20, 'x');
  WriteFileAtomically(folder.Path() / "far", large);
  EXPECT_EQ(folder.Read("data/file"), large);
  EXPECT_EQ(fs::read_symlink(folder.Path() / "near"), "data/file");
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "far"));
  EXPECT_EQ(FilesIn(folder.Path() / "data"), 1u);
}

TEST(WriteFileAtomically, MakesANewFileAsAnyProgramDoes) {
  const TempFolder folder;
  const mode_t mask = ::umask(027);
  WriteFileAtomically(folder.Path() / std::string(255, 'n'), "");
  ::umask(mask);
  EXPECT_EQ(ModeOf(folder.Path() / std::string(255, 'n')), 0640u);
  fs::create_symlink("behind", folder.Path() / "link");
  WriteFileAtomically(folder.Path() / "link", "x");
  EXPECT_EQ(folder.Read("behind"), "x");
  EXPECT_EQ(FilesIn(folder.Path()), 3u);
}

TEST(WriteFileAtomically, LeavesTheOldFileWhateverFails) {
  const TempFolder folder;
  const auto file = folder.Write("file", "old");
  const std::string large(1 << 20, 'x');
  const std::string start = "Cannot write " + file.string() + ": ";
  {
    // The signal of that limit must not end the process either, now or later.
    const FileSizeLimit full(100'000);
    EXPECT_EQ(FaultOf([&] { WriteFileAtomically(file, large); }), start + "File too large");
  }
  EXPECT_EQ(FilesIn(folder.Path()), 1u);
  for (const auto& [folderMode, fileMode] : {std::pair{0555, 0666}, {0777, 0444}}) {
    fs::permissions(folder.Path(), fs::perms(folderMode));
    fs::permissions(file, fs::perms(fileMode));
    const OrdinaryUser user;
    EXPECT_EQ(FaultOf([&] { WriteFileAtomically(file, "x"); }), start + "Permission denied");
  }
  EXPECT_EQ(folder.Read("file"), "old");
  EXPECT_EQ(FilesIn(folder.Path()), 1u);
}

TEST(WriteFileAtomically, RefusesTargetsThatAreNoFile) {
  const TempFolder folder;
  ASSERT_EQ(::mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
  fs::create_symlink("loop", folder.Path() / "loop");
  const std::pair<fs::path, std::string> cases[] = {
      {folder.Path(), "it is not a regular file"},
      {folder.Path() / "pipe", "it is not a regular file"},
      {folder.Path() / "loop", "Too many levels of symbolic links"},
      {folder.Path() / "none/file", "No such file or directory"},
  };
  for (const auto& [path, reason] : cases)
    EXPECT_THAT(FaultOf([&, at = path] { WriteFileAtomically(at, "x"); }), HasSubstr(reason))
        << path;
  EXPECT_EQ(FilesIn(folder.Path()), 2u);
}

}  // namespace
