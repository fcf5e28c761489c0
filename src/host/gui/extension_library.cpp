// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "host/gui/extension_library.h"

#include "host/gui/extension_module.h"
#include "host/project/ost_exception.h"

namespace Framework {

ExtensionLibrary::ExtensionLibrary(const std::filesystem::path& file) : file_(file) {
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored)) {
    throw OstException(file.string() + ": the library is missing");
  }
  library_.setFileName(QString::fromStdString(file.string()));
  // Its exceptions and type information must be one with the host's.
  library_.setLoadHints(QLibrary::ExportExternalSymbolsHint | QLibrary::ResolveAllSymbolsHint);
  if (!library_.load()) {
    throw OstException(file.string() + ": " + library_.errorString().toStdString());
  }
  const auto interface = reinterpret_cast<int (*)()>(Resolve(kExtensionInterfaceFunction));
  if (const int version = interface(); version != kExtensionInterface) {
    throw OstException(file.string() + ": built for interface " + std::to_string(version) +
                       " of the host, which is " + std::to_string(kExtensionInterface));
  }
  const auto attach = reinterpret_cast<bool (*)()>(Resolve(kExtensionAttachFunction));
  if (!attach()) throw OstException(file.string() + ": the library refused to attach");
}

ExtensionLibrary::~ExtensionLibrary() {
  const auto detach = reinterpret_cast<void (*)()>(library_.resolve(kExtensionDetachFunction));
  if (detach) detach();
}

QFunctionPointer ExtensionLibrary::Resolve(const char* function) {
  const QFunctionPointer found = library_.resolve(function);
  if (!found)
    throw OstException(file_.string() + ": not an extension, " + function + " is missing");
  return found;
}

}  // namespace Framework
