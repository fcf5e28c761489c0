// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "platform/filters/container.h"

#include <gmock/gmock.h>

#include <iterator>
#include <random>
#include <sstream>

#include "platform/filters/compression_extractor.h"
#include "platform/filters/encryption_extractor.h"
#include "platform/filters/filter_error.h"
#include "platform/filters/filtering_istream.h"
#include "platform/filters/sink.h"
#include "support/fault_of.h"

namespace {

using namespace platform::filters;
using namespace std::string_literals;
using testing::HasSubstr;

const Key& TheKey() {
  static const Key key = Key::FromText(std::string(64, '7'));
  return key;
}

std::optional<Key> KeyFor(const ContainerForm& form) {
  return form.isEnciphered ? std::optional(TheKey()) : std::nullopt;
}

constexpr ContainerForm kForms[] = {{true, false}, {false, true}, {true, true}};

std::string Packed(const std::string& plain, const ContainerForm& form) {
  std::istringstream in(plain);
  std::ostringstream out;
  PackContainer(in, out, form.isCompressed, KeyFor(form));
  return out.str();
}

std::string Unpacked(const std::string& bytes, const std::optional<Key>& key,
                     std::size_t limit = kContentLimit) {
  std::istringstream in(bytes);
  std::ostringstream out;
  UnpackContainer(in, out, key, limit);
  return out.str();
}

/// Why the bytes are refused, "no fault" when they are not.
std::string FaultOf(const std::string& bytes, const std::optional<Key>& key,
                    std::size_t limit = kContentLimit) {
  return test::FaultOf<FilterError>([&] { Unpacked(bytes, key, limit); });
}

/// Text of some entropy: neither one byte again and again nor noise.
std::string Sample(std::size_t size) {
  std::mt19937 random(1);
  std::string text;
  while (text.size() < size)
    text += "<lamp watts=\"" + std::to_string(random() % 10'000) + "\"/>\n";
  text.resize(size);
  return text;
}

TEST(Container, GivesBackWhatWasPacked) {
  std::vector<std::string> contents = {"", std::string(300'000, '\0')};
  for (const std::size_t size : {1, 4095, 4096, 4097, 8192, 16384, 16385, 200'000})
    contents.push_back(Sample(size));
  for (const auto& form : kForms)
    for (const std::string& content : contents) {
      const std::string bytes = Packed(content, form);
      EXPECT_EQ(Unpacked(bytes, KeyFor(form)), content) << content.size();
      std::istringstream in(bytes);
      EXPECT_EQ(ReadHeader(in), form);
    }
}

TEST(Container, ReadsWhatOlderProgramsWrote) {
  const auto bytes = [](std::string_view hex) {
    std::string text;
    for (std::size_t i = 0; i < hex.size(); i += 2)
      text += static_cast<char>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16));
    return text;
  };
  EXPECT_EQ(
      Unpacked(bytes("8b5359534445460a01010000de0c291478dacb49cc2de0020005d601b5"), std::nullopt),
      "lamp\n");
  EXPECT_EQ(
      Unpacked(bytes("8b5359534445460a01030000b0d8ad177527a48c08c886598fb39887674636c073ed8e4d27"
                     "f16941b75d2d388173cac6c6ea6a83afbe1f291e7ed1f671be1cec558f2d884620"),
               TheKey()),
      "lamp\n");
}

TEST(Container, OpensAsAStreamOrReadsPlainFilesAsTheyAre) {
  const std::string text = "first line\nsecond\n" + Sample(50'000);
  std::vector<std::string> files = {text};
  for (const auto& form : kForms) files.push_back(Packed(text, form));
  for (const std::string& file : files) {
    std::istringstream in("before" + file);
    in.seekg(6);
    const auto stream = OpenContainer(in, TheKey());
    std::string line;
    std::getline(*stream, line);
    EXPECT_EQ(line, "first line");
    const std::string rest(std::istreambuf_iterator<char>(*stream), {});
    EXPECT_EQ(rest.size(), text.size() - line.size() - 1);
  }
  for (const char* plain : {"", "\x8BSYS", "<a/>"}) {
    std::istringstream in(plain);
    const auto stream = OpenContainer(in, std::nullopt);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(*stream), {}), plain);
  }
}

TEST(Container, StacksWithAnyBuffer) {
  const std::string content = Sample(30'000);
  std::ostringstream packed;
  auto sink = MakeCompressionSink(MakeEncryptionSink(MakeStreamSink(packed), TheKey(), "context"));
  for (std::size_t at = 0; at < content.size(); at += 7) sink->Write(content.substr(at, 7));
  sink->Finish();
  for (const std::size_t size : {1, 7, 4096, 100'000}) {
    std::istringstream in(packed.str());
    FilteringIstream<EncryptionExtractor> deciphered(in, size, TheKey(), "context");
    FilteringIstream<CompressionExtractor> unpacked(deciphered, size, kContentLimit);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(unpacked), {}), content);
  }
}

TEST(Container, EveryDamagedByteIsAnError) {
  const std::string content = Sample(9000);
  for (const auto& form : kForms) {
    const std::string whole = Packed(content, form);
    for (std::size_t at = 0; at < whole.size(); ++at)
      for (const int flip : {0x01, 0x80, 0xFF}) {
        std::string bytes = whole;
        bytes[at] = static_cast<char>(bytes[at] ^ flip);
        if (FaultOf(bytes, KeyFor(form)) != "no fault") continue;
        // Some bits say nothing, such as those that fill up a compressed stream's last byte.
        EXPECT_FALSE(form.isEnciphered) << at;
        EXPECT_EQ(Unpacked(bytes, std::nullopt), content) << at;
      }
  }
}

TEST(Container, EveryCutAndEverythingBehindTheEndIsAnError) {
  const std::string content = Sample(9000);
  for (const auto& form : kForms) {
    const std::string whole = Packed(content, form);
    for (std::size_t size = 0; size < whole.size(); ++size) {
      const std::string expected = size < 8 ? "this is no container" : "cut off";
      EXPECT_THAT(FaultOf(whole.substr(0, size), KeyFor(form)),
                  testing::AnyOf(HasSubstr(expected), HasSubstr("another key")))
          << size;
    }
    EXPECT_NE(FaultOf(whole + '\0', KeyFor(form)), "no fault");
    EXPECT_NE(FaultOf(whole + whole, KeyFor(form)), "no fault");
  }
  const std::string bytes = Packed(std::string(kSealedPiece, 'x'), {false, true});
  for (const std::string& whole : {bytes, Packed(content, {true, false})})
    EXPECT_EQ(FaultOf(whole + '\0', TheKey()), "bytes follow the container");
}

TEST(Container, EncipheredPiecesKeepTheirOrderAndTheirContainer) {
  const std::string whole = Packed(Sample(20'000), {false, true});
  constexpr std::size_t kStart = 16 + 24;
  constexpr std::size_t kPiece = kSealedPiece + 17;
  const auto piece = [&](std::size_t i) { return whole.substr(kStart + i * kPiece, kPiece); };
  const std::string head = whole.substr(0, kStart);
  const std::string damaged = "the container is damaged or cut off";
  EXPECT_EQ(FaultOf(head + piece(0) + piece(2) + piece(1) + piece(3) + piece(4), TheKey()),
            damaged);
  EXPECT_EQ(FaultOf(head + piece(0) + piece(1) + piece(2) + piece(4), TheKey()), damaged);
  EXPECT_EQ(FaultOf(head + piece(0) + piece(0), TheKey()), damaged);
  // Another form's header is a valid header, but not this content's.
  const std::string other = Packed("", {true, true}).substr(0, 16);
  EXPECT_THAT(FaultOf(other + whole.substr(16), TheKey()), HasSubstr("another key"));
}

TEST(Container, NeedsTheRightKey) {
  for (const auto& form : {ContainerForm{false, true}, ContainerForm{true, true}}) {
    const std::string bytes = Packed("content", form);
    EXPECT_EQ(FaultOf(bytes, std::nullopt), "the container is enciphered: a key is needed");
    EXPECT_EQ(FaultOf(bytes, Key::Generate()),
              "the container was made with another key, or is damaged");
    EXPECT_EQ(bytes.find("content"), bytes.npos);
    EXPECT_NE(bytes, Packed("content", form));
  }
  EXPECT_EQ(Unpacked(Packed("content", {true, false}), TheKey()), "content");
}

TEST(Container, RefusesHeadersThatItDoesNotKnow) {
  const std::pair<std::string, const char*> headers[] = {
      {"\x02\x01\0\0\x30\xA3\x9C\x06"s,
       "the container is of version 2, which this program does not know"},
      {"\x01\x04\0\0\x35\xCE\xE2\x12"s, "the container's form is not known"},
      {"\x01\0\0\0\xE9\x66\xEB\x15"s, "the container's form is not known"},
      {"\x01\x01\0\0none"s, "the container's header is damaged"}};
  for (const auto& [header, fault] : headers)
    EXPECT_EQ(FaultOf("\x8BSYSDEF\n" + header, std::nullopt), fault);
  std::istringstream in("x");
  std::ostringstream out;
  EXPECT_THROW(PackContainer(in, out, false, std::nullopt), FilterError);
}

TEST(Container, ABombStopsAtTheLimit) {
  const std::string content(5'000'000, 'x');
  for (const auto& form : {ContainerForm{true, false}, ContainerForm{true, true}}) {
    const std::string bytes = Packed(content, form);
    ASSERT_LT(bytes.size(), 10'000u);
    EXPECT_EQ(Unpacked(bytes, KeyFor(form), content.size()), content);
    EXPECT_EQ(FaultOf(bytes, KeyFor(form), content.size() - 1),
              "the container holds more than is allowed");
    std::istringstream in(bytes);
    const auto stream = OpenContainer(in, KeyFor(form), 100'000);
    std::string got(content.size(), '\0');
    EXPECT_THROW(stream->read(got.data(), static_cast<std::streamsize>(got.size())), FilterError);
    EXPECT_LE(static_cast<std::size_t>(stream->gcount()), 100'000u);
    EXPECT_TRUE(stream->bad());
  }
}

TEST(Container, SaysWhenAStreamFails) {
  struct Failing : std::streambuf {
    int_type underflow() override { throw std::runtime_error("no disk"); }
  } failing;
  std::istream in(&failing);
  std::ostringstream out;
  EXPECT_THROW(PackContainer(in, out, true, std::nullopt), FilterError);
  std::istringstream plain("x");
  std::ostream full(nullptr);
  EXPECT_THROW(PackContainer(plain, full, true, std::nullopt), FilterError);
}

}  // namespace
