// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "archive/archive_exception.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <exception>
#include <optional>
#include <string>

#include "archive/xml_archive_exception.h"

namespace {

using boost::archive::archive_exception;
using zel::archive::xml_archive_exception;

/// A library that is loaded while this lives.
class Library {
 public:
  Library() : handle_(dlopen(SYSDEF_BINARY_DIR "/tests/plugins/archive_faults.so", RTLD_NOW)) {}
  ~Library() {
    if (handle_ != nullptr) dlclose(handle_);
  }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  template <class Function>
  Function* Find(const char* name) const {
    return handle_ == nullptr ? nullptr : reinterpret_cast<Function*>(dlsym(handle_, name));
  }

 private:
  void* handle_;
};

TEST(ArchiveException, CrossesTheBorderOfALibrary) {
  const Library library;
  auto* throwXml = library.Find<void()>("ThrowXmlFault");
  auto* throwArchive = library.Find<void()>("ThrowArchiveFault");
  ASSERT_TRUE(throwXml != nullptr && throwArchive != nullptr) << dlerror();
  std::exception_ptr kept;
  std::optional<xml_archive_exception> copy;
  try {
    throwXml();
    FAIL();
  } catch (const xml_archive_exception& fault) {
    kept = std::current_exception();
    copy = fault;
  }
  EXPECT_THROW(throwArchive(), archive_exception);
  EXPECT_STREQ(copy->what(), "from the library");
  EXPECT_STREQ(copy->where(), "a/b");
  try {
    std::rethrow_exception(kept);
  } catch (const archive_exception& fault) {
    EXPECT_STREQ(fault.what(), "from the library");
    EXPECT_EQ(fault.code(), archive_exception::other_exception);
    EXPECT_NE(dynamic_cast<const xml_archive_exception*>(&fault), nullptr);
  }
}

TEST(ExportRegistry, ALibraryExportsWhenItIsLoaded) {
  const Library library;
  auto* count = library.Find<unsigned()>("CountExported");
  ASSERT_NE(count, nullptr) << dlerror();
  EXPECT_EQ(count(), 1u);
}

}  // namespace
