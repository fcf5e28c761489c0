// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace Framework {

/// Anything the host creates by class name.
class DynamicObject {
 public:
  virtual ~DynamicObject() = default;
};

/// Factories of the classes that libraries contribute, by class name.
class ClassRegistry {
 public:
  using Factory = std::function<DynamicObject*()>;
  static ClassRegistry& Instance();

  void Add(const std::string& className, Factory factory);
  void Remove(const std::string& className);
  /// A new object, owned by the caller; null when no such class is registered.
  [[nodiscard]] DynamicObject* Create(const std::string& className) const;
  [[nodiscard]] std::vector<std::string> Names() const;

 private:
  std::vector<std::pair<std::string, Factory>> factories_;
};

/// Registers a class while it lives; one static object a class.
template <class T>
class ClassRegistration {
 public:
  explicit ClassRegistration(const char* className) : name_(className) {
    ClassRegistry::Instance().Add(name_, [] { return static_cast<DynamicObject*>(new T); });
  }
  ~ClassRegistration() { ClassRegistry::Instance().Remove(name_); }
  ClassRegistration(const ClassRegistration&) = delete;
  ClassRegistration& operator=(const ClassRegistration&) = delete;

 private:
  std::string name_;
};

}  // namespace Framework
