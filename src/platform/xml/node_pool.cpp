// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/node_pool.h"

#include <libxml/tree.h>
#include <malloc.h>
#include <sys/mman.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <mutex>
#include <thread>

namespace platform::xml::node_pool {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kIsSanitized = true;
#elif defined(__has_feature)
constexpr bool kIsSanitized = __has_feature(address_sanitizer);
#else
constexpr bool kIsSanitized = false;
#endif

constexpr std::size_t kSlotBytes = 128;
constexpr std::size_t kBlockBytes = 2u << 20;
constexpr std::size_t kSlotsPerBlock = kBlockBytes / kSlotBytes;
constexpr std::size_t kBlocks = 8192;
constexpr std::size_t kReserved = kBlocks * kBlockBytes;
/// A large page at hand takes a quarter of a millisecond, a block in small pages one.
constexpr double kSlowSeconds = 0.002;
constexpr std::size_t kBlocksAfterSlow = 64;

static_assert(sizeof(xmlNode) <= kSlotBytes && sizeof(xmlNode) > kSlotBytes - 16);

/// Held for a few instructions, and nearly always by the only thread there is.
class SpinLock {
 public:
  void lock() noexcept {
    while (flag_.test_and_set(std::memory_order_acquire)) std::this_thread::yield();
  }
  void unlock() noexcept { flag_.clear(std::memory_order_release); }

 private:
  std::atomic_flag flag_;
};

struct FreeSlot {
  FreeSlot* next;
};

struct Block {
  FreeSlot* free = nullptr;  // slots that were given back
  std::uint32_t used = 0;    // slots that are taken
  std::uint32_t fresh = 0;   // slots from this one on were never taken
  Block* nextWithRoom = nullptr;
};

double ThreadSeconds() noexcept {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

/// Slots of one size in blocks of one reserved range of addresses, so that the address alone says
/// whether a slot is the pool's.
class Pool {
 public:
  /// Where the system refuses the addresses, the pool stays empty.
  void Reserve() noexcept {
    void* range = mmap(nullptr, kReserved + kBlockBytes, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (range == MAP_FAILED) return;
    const auto address = reinterpret_cast<std::uintptr_t>(range);
    first_ = (address + kBlockBytes - 1) / kBlockBytes * kBlockBytes;
    reserved_ = kReserved;
  }

  [[nodiscard]] bool Owns(const void* memory) const noexcept {
    return reinterpret_cast<std::uintptr_t>(memory) - first_ < reserved_;
  }

  /// Null when all blocks are full.
  void* Take() noexcept {
    const std::lock_guard guard(lock_);
    Block* block = withRoom_ != nullptr ? withRoom_ : NextBlock();
    if (block == nullptr) return nullptr;
    FreeSlot* slot = block->free;
    if (slot != nullptr) {
      block->free = slot->next;
    } else {
      if (block->fresh == 0) Populate(*block);
      slot = reinterpret_cast<FreeSlot*>(AddressOf(*block) + block->fresh++ * kSlotBytes);
    }
    if (++block->used == kSlotsPerBlock) withRoom_ = block->nextWithRoom;
    return slot;
  }

  void GiveBack(void* memory) noexcept {
    const std::lock_guard guard(lock_);
    Block& block = blocks_[(reinterpret_cast<std::uintptr_t>(memory) - first_) / kBlockBytes];
    block.free = new (memory) FreeSlot{block.free};
    if (block.used-- == kSlotsPerBlock) {
      block.nextWithRoom = withRoom_;
      withRoom_ = &block;
    }
    if (block.used == 0) Empty(block);
  }

 private:
  [[nodiscard]] std::uintptr_t AddressOf(const Block& block) const noexcept {
    return first_ + static_cast<std::size_t>(&block - blocks_.data()) * kBlockBytes;
  }

  Block* NextBlock() noexcept {
    if (reserved_ == 0 || begun_ == kBlocks) return nullptr;
    withRoom_ = &blocks_[begun_++];
    return withRoom_;
  }

  /// The first block fills page by page: most programs never need a second one. The others come at
  /// once, in a large page as long as the system has those at hand. Where it must make room for
  /// one first, that costs more than it saves, and the next blocks do without.
  void Populate(const Block& block) noexcept {
    if (&block == blocks_.data()) return;
    void* memory = reinterpret_cast<void*>(AddressOf(block));
    const double start = ThreadSeconds();
    if (inSmallPages_ == 0) madvise(memory, kBlockBytes, MADV_HUGEPAGE);
    madvise(memory, kBlockBytes, MADV_POPULATE_WRITE);
    if (inSmallPages_ > 0) {
      --inSmallPages_;
    } else if (ThreadSeconds() - start > kSlowSeconds) {
      inSmallPages_ = kBlocksAfterSlow;
    }
  }

  /// A block that had been used in large part goes back to the system; its addresses stay.
  void Empty(Block& block) noexcept {
    if (block.fresh > kSlotsPerBlock / 2) {
      madvise(reinterpret_cast<void*>(AddressOf(block)), kBlockBytes, MADV_DONTNEED);
    }
    block.free = nullptr;
    block.fresh = 0;
  }

  SpinLock lock_;
  std::uintptr_t first_ = 0;
  std::size_t reserved_ = 0;
  std::size_t begun_ = 0;
  std::size_t inSmallPages_ = 0;  // so many blocks more
  Block* withRoom_ = nullptr;
  std::array<Block, kBlocks> blocks_;
};

constinit Pool pool;

bool IsNodeSized(std::size_t bytes) noexcept {
  return bytes <= kSlotBytes && bytes > kSlotBytes - 16;
}

}  // namespace

void Prepare() noexcept {
  // The address sanitizer sees what malloc hands out, and nothing smaller.
  if (!kIsSanitized) pool.Reserve();
}

void* Allocate(std::size_t bytes) noexcept {
  void* memory = IsNodeSized(bytes) ? pool.Take() : nullptr;
  return memory != nullptr ? memory : std::malloc(bytes);
}

void* Reallocate(void* memory, std::size_t bytes) noexcept {
  if (!pool.Owns(memory)) return std::realloc(memory, bytes);
  void* moved = std::malloc(bytes);
  if (moved == nullptr) return nullptr;
  std::memcpy(moved, memory, std::min(bytes, kSlotBytes));
  pool.GiveBack(memory);
  return moved;
}

void Free(void* memory) noexcept {
  if (pool.Owns(memory)) return pool.GiveBack(memory);
  std::free(memory);
}

std::size_t SizeOf(void* memory) noexcept {
  return pool.Owns(memory) ? kSlotBytes : malloc_usable_size(memory);
}

}  // namespace platform::xml::node_pool
