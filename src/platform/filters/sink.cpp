// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/filters/sink.h"

#include "platform/filters/filter_error.h"

namespace platform::filters {
namespace {

class StreamSink final : public Sink {
 public:
  explicit StreamSink(std::ostream& to) : to_(to) {}

  void Write(std::string_view bytes) override {
    to_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    Check();
  }

  void Finish() override {
    to_.flush();
    Check();
  }

 private:
  void Check() const {
    if (!to_) throw FilterError("the container cannot be written");
  }

  std::ostream& to_;
};

}  // namespace

std::unique_ptr<Sink> MakeStreamSink(std::ostream& to) { return std::make_unique<StreamSink>(to); }

}  // namespace platform::filters
