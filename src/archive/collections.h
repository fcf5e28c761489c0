// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <array>
#include <cstddef>
#include <set>
#include <utility>
#include <vector>

#include "archive/archive_exception.h"
#include "archive/nvp.h"
#include "archive/serialization.h"

/// How the archives write and read collections: "count", then one "item" an entry, in order.
/// Reading replaces what the collection held; the entries of a fixed array that are not read keep
/// their values.
namespace zel::archive {

template <class Archive, class Collection>
void save_items(Archive& archive, Collection& collection, std::size_t count) {
  archive << nvp("count", count);
  for (auto& item : collection) archive << nvp("item", item);
}

template <class Archive, class Item>
void load_fixed_items(Archive& archive, Item* first, std::size_t capacity) {
  const std::size_t count = archive.load_count();
  if (count > capacity) {
    throw boost::archive::archive_exception(
        boost::archive::archive_exception::array_size_too_short);
  }
  for (std::size_t i = 0; i < count; ++i) archive >> nvp("item", first[i]);
}

template <class T, class Allocator>
struct serialization<std::vector<T, Allocator>> {
  static constexpr unsigned version = 0;

  template <class Archive>
  static void save(Archive& archive, std::vector<T, Allocator>& items, unsigned) {
    save_items(archive, items, items.size());
  }
  template <class Archive>
  static void load(Archive& archive, std::vector<T, Allocator>& items, unsigned) {
    const std::size_t count = archive.load_count();
    items.clear();
    items.resize(count);  // all at once: objects that are referred to must not move afterwards
    for (T& item : items) archive >> nvp("item", item);
  }
};

template <class Allocator>
struct serialization<std::vector<bool, Allocator>> {
  static constexpr unsigned version = 0;

  template <class Archive>
  static void save(Archive& archive, std::vector<bool, Allocator>& items, unsigned) {
    const std::size_t count = items.size();
    archive << nvp("count", count);
    for (const bool item : items) archive << nvp("item", item);
  }
  template <class Archive>
  static void load(Archive& archive, std::vector<bool, Allocator>& items, unsigned) {
    items.assign(archive.load_count(), false);
    for (std::size_t i = 0; i < items.size(); ++i) {
      bool item = false;
      archive >> nvp("item", item);
      items[i] = item;
    }
  }
};

template <class T, class Compare, class Allocator>
struct serialization<std::set<T, Compare, Allocator>> {
  static constexpr unsigned version = 0;

  template <class Archive>
  static void save(Archive& archive, std::set<T, Compare, Allocator>& items, unsigned) {
    save_items(archive, items, items.size());
  }
  template <class Archive>
  static void load(Archive& archive, std::set<T, Compare, Allocator>& items, unsigned) {
    std::size_t count = archive.load_count();
    items.clear();
    for (; count > 0; --count) {
      // Read in the node it is going to stand in, so that its address holds.
      std::set<T, Compare, Allocator> one;
      one.emplace();
      auto node = one.extract(one.begin());
      archive >> nvp("item", node.value());
      if (!items.insert(std::move(node)).inserted) archive.refuse_repeated_entry();
    }
  }
};

template <class T, std::size_t N>
struct serialization<T[N]> {
  template <class Archive>
  static void save(Archive& archive, T (&items)[N], unsigned) {
    save_items(archive, items, N);
  }
  template <class Archive>
  static void load(Archive& archive, T (&items)[N], unsigned) {
    load_fixed_items(archive, items, N);
  }
};

template <class T, std::size_t N>
struct serialization<std::array<T, N>> {
  static constexpr unsigned version = 0;

  template <class Archive>
  static void save(Archive& archive, std::array<T, N>& items, unsigned) {
    save_items(archive, items, N);
  }
  template <class Archive>
  static void load(Archive& archive, std::array<T, N>& items, unsigned) {
    load_fixed_items(archive, items.data(), N);
  }
};

}  // namespace zel::archive
