// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/xml/run_meter.h"

#include <libxml/xmlmemory.h>
#include <time.h>

#include <cstring>
#include <utility>

#include "platform/xml/node_pool.h"

namespace platform::xml {
namespace {

// Every allocation asks for it: the quickest kind of thread storage.
__attribute__((tls_model("initial-exec"))) thread_local RunMeter* meter = nullptr;

// The clock is read once in so many allocations, large ones counting as many.
constexpr std::size_t kTicksPerReading = 512;
constexpr std::size_t kBytesPerTick = 1024;

/// The processor's time, not the wall's: a busy machine refuses nothing that a quiet one takes.
std::chrono::nanoseconds ThreadTime() {
  timespec now = {};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

long long SizeOf(void* block) { return static_cast<long long>(node_pool::SizeOf(block)); }

}  // namespace

void RunMeter::Install() {
  node_pool::Prepare();
  xmlMemSetup(Free, Allocate, Reallocate, Duplicate);
}

RunMeter::RunMeter(std::size_t bytes, std::chrono::nanoseconds work,
                   std::function<void(const char*)> stop)
    : limit_(static_cast<long long>(bytes)), end_(ThreadTime() + work), stop_(std::move(stop)) {
  meter = this;
}

RunMeter::~RunMeter() { meter = nullptr; }

bool RunMeter::Admit(std::size_t size) {
  ticks_ += 1 + size / kBytesPerTick;
  if (ticks_ >= kTicksPerReading) CheckTime();
  const long long wanted = held_ + static_cast<long long>(size);
  if (wanted <= limit_) return true;
  Stop("memory");
  return wanted <= 2 * limit_;
}

void RunMeter::CheckTime() {
  ticks_ = 0;
  if (ThreadTime() > end_) Stop("time");
}

void RunMeter::Stop(const char* what) {
  if (stop_ != nullptr) std::exchange(stop_, nullptr)(what);
}

void* RunMeter::Allocate(std::size_t size) {
  if (meter == nullptr) return node_pool::Allocate(size);
  if (!meter->Admit(size)) return nullptr;
  void* block = node_pool::Allocate(size);
  meter->held_ += SizeOf(block);
  return block;
}

void* RunMeter::Reallocate(void* block, std::size_t size) {
  if (meter == nullptr) return node_pool::Reallocate(block, size);
  if (!meter->Admit(size)) return nullptr;
  const long long before = SizeOf(block);
  void* moved = node_pool::Reallocate(block, size);
  if (moved != nullptr) meter->held_ += SizeOf(moved) - before;
  return moved;
}

void RunMeter::Free(void* block) {
  if (meter != nullptr) meter->held_ -= SizeOf(block);
  node_pool::Free(block);
}

char* RunMeter::Duplicate(const char* text) {
  const std::size_t size = std::strlen(text) + 1;
  void* copy = Allocate(size);
  return copy == nullptr ? nullptr : static_cast<char*>(std::memcpy(copy, text, size));
}

}  // namespace platform::xml
