// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <type_traits>

namespace zel::archive {

/// Whether objects of a class are told apart by address, so that one that is met again is written
/// as a reference: never, once the program serializes the class through pointers, or always.
enum class tracking_type { track_never, track_selectively, track_always };

/// What a class keeps private for the archives: it names this class a friend.
class access {
 public:
  template <class Archive, class T>
  static void serialize(Archive& archive, T& object, unsigned version) {
    static_assert(
        requires { object.serialize(archive, version); },
        "This class needs: template <class Archive> void serialize(Archive& ar, unsigned version) "
        "with one line ar & zel::archive::nvp(\"Name\", member) a member.");
    object.serialize(archive, version);
  }

  template <class T>
  static constexpr unsigned version_of() {
    if constexpr (requires { T::class_version; }) {
      return T::class_version;
    } else {
      return 0;
    }
  }

  template <class T>
  static constexpr tracking_type tracking_of() {
    if constexpr (requires { T::tracking; }) {
      return T::tracking;
    } else {
      return tracking_type::track_selectively;
    }
  }

  /// Null for a class without a default constructor, which no pointer can be read to.
  template <class T>
  static T* create() {
    if constexpr (requires { new T(); }) {
      return new T();
    } else {
      return nullptr;
    }
  }
};

/// The class's version as the class declares it (`static constexpr unsigned class_version`), else
/// 0.
template <class T>
inline constexpr unsigned class_version_of = access::version_of<T>();

/// As the class declares it (`static constexpr tracking_type tracking`).
template <class T>
inline constexpr tracking_type tracking_of = access::tracking_of<T>();

/// How the archives write and read a type that is neither a number nor a text: by its own
/// `serialize`. Collections specialize it; a specialization has the two functions and may be
/// of another version.
template <class T>
struct serialization {
  static constexpr unsigned version = class_version_of<T>;

  template <class Archive>
  static void save(Archive& archive, T& object, unsigned file_version) {
    access::serialize(archive, object, file_version);
  }
  template <class Archive>
  static void load(Archive& archive, T& object, unsigned file_version) {
    access::serialize(archive, object, file_version);
  }
};

}  // namespace zel::archive
