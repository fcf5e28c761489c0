// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <array>
#include <charconv>
#include <cstdint>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "measure.h"
#include "subjects.h"

namespace bench {

namespace {

struct TextSink final : pugi::xml_writer {
  std::string text;
  void write(const void* bytes, std::size_t size) override {
    text.append(static_cast<const char*>(bytes), size);
  }
};

void Put(pugi::xml_node parent, const char* name, const char* text) {
  parent.append_child(name).append_child(pugi::node_pcdata).set_value(text);
}

void Put(pugi::xml_node parent, const char* name, double value) {
  char text[32];
  *std::to_chars(text, text + sizeof text - 1, value, std::chars_format::general, 17).ptr = 0;
  Put(parent, name, text);
}

void Put(pugi::xml_node parent, const char* name, long long value) {
  char text[32];
  *std::to_chars(text, text + sizeof text - 1, value).ptr = 0;
  Put(parent, name, text);
}

void Put(pugi::xml_node parent, const char* name, std::size_t value) {
  Put(parent, name, static_cast<long long>(value));
}
void Put(pugi::xml_node parent, const char* name, int value) {
  Put(parent, name, static_cast<long long>(value));
}

void Put(pugi::xml_node node, const PulseInfo& pulse) {
  Put(node, "m_versionnum", pulse.m_versionnum);
  Put(node, "m_IsPulse", pulse.m_IsPulse ? 1 : 0);
  Put(node, "m_strCWSeg", pulse.m_strCWSeg.c_str());
  Put(node, "m_Amp", pulse.m_Amp);
  Put(node, "m_LeadEdge", pulse.m_LeadEdge);
  Put(node, "m_TrailEdge", pulse.m_TrailEdge);
  Put(node, "m_Width", pulse.m_Width);
}

void Put(pugi::xml_node node, const LampWaveform& attributes) {
  Put(node, "UARTFlag", attributes.GetUARTFlag());
  Put(node, "BallastMakerCode", int{attributes.GetBallastMakerCode()});
  Put(node, "BallastWaveformIndex", int{attributes.GetBallastWaveformIndex()});
  Put(node, "CompensationEnabled", attributes.CompensationEnabled ? 1 : 0);
  Put(node, "PulseLength", attributes.PulseLength);
  Put(node, "PulsePlateauRatio", attributes.PulsePlateauRatio);
  Put(node.append_child("SpokePulses"), "count", 0);
}

void Put(pugi::xml_node node, const LampWaveFormData& waveform);
void Put(pugi::xml_node node, const LampWaveFormDB& entry);

template <class Item>
void PutList(pugi::xml_node node, const std::vector<Item>& items) {
  Put(node, "count", items.size());
  for (const Item& item : items) Put(node.append_child("item"), item);
}

void Put(pugi::xml_node node, const LampWaveFormData& waveform) {
  Put(node, "WaveFormTitle", waveform.WaveFormTitle.c_str());
  Put(node, "CWType", waveform.CWType.c_str());
  Put(node.append_child("Attributes"), waveform.Attributes);
  PutList(node.append_child("VecPulses"), waveform.VecPulses);
}

void Put(pugi::xml_node node, const LampWaveFormDB& entry) {
  Put(node, "SeqGrpName", entry.SeqGrpName.c_str());
  Put(node, "SpinFactor", entry.SpinFactor);
  PutList(node.append_child("LWData"), entry.LWData);
}

std::string Stored(const Waveforms& data) {
  pugi::xml_document document;
  PutList(document.append_child(kElement), data);
  TextSink sink;
  document.save(sink, "", pugi::format_raw | pugi::format_no_declaration);
  return std::move(sink.text);
}

/// Reads the children of one element in the order they were written.
class Walk {
 public:
  explicit Walk(pugi::xml_node parent) : child_(parent.first_child()) {}

  pugi::xml_node Next() { return std::exchange(child_, child_.next_sibling()); }
  const char* Text() { return Next().child_value(); }
  template <class Number>
  void Get(Number& value) {
    const std::string_view text = Text();
    std::from_chars(text.data(), text.data() + text.size(), value);
  }
  void Get(bool& value) { value = *Text() == '1'; }

 private:
  pugi::xml_node child_;
};

void Get(pugi::xml_node node, PulseInfo& pulse) {
  Walk walk(node);
  walk.Get(pulse.m_versionnum);
  walk.Get(pulse.m_IsPulse);
  pulse.m_strCWSeg = walk.Text();
  walk.Get(pulse.m_Amp);
  walk.Get(pulse.m_LeadEdge);
  walk.Get(pulse.m_TrailEdge);
  walk.Get(pulse.m_Width);
}

void Get(pugi::xml_node node, LampWaveform& attributes) {
  Walk walk(node);
  std::array<int, 3> ballast{};
  for (int& each : ballast) walk.Get(each);
  attributes.SetUARTparams(ballast[0], static_cast<std::uint8_t>(ballast[1]),
                           static_cast<std::uint8_t>(ballast[2]));
  walk.Get(attributes.CompensationEnabled);
  walk.Get(attributes.PulseLength);
  walk.Get(attributes.PulsePlateauRatio);
}

void Get(pugi::xml_node node, LampWaveFormData& waveform);
void Get(pugi::xml_node node, LampWaveFormDB& entry);

template <class Item>
void Get(pugi::xml_node node, std::vector<Item>& items) {
  Walk walk(node);
  std::size_t count = 0;
  walk.Get(count);
  items.resize(count);
  for (Item& item : items) Get(walk.Next(), item);
}

void Get(pugi::xml_node node, LampWaveFormData& waveform) {
  Walk walk(node);
  waveform.WaveFormTitle = walk.Text();
  waveform.CWType = walk.Text();
  Get(walk.Next(), waveform.Attributes);
  Get(walk.Next(), waveform.VecPulses);
}

void Get(pugi::xml_node node, LampWaveFormDB& entry) {
  Walk walk(node);
  entry.SeqGrpName = walk.Text();
  walk.Get(entry.SpinFactor);
  Get(walk.Next(), entry.LWData);
}

Waveforms Loaded(const std::string& text) {
  pugi::xml_document document;
  document.load_buffer(text.data(), text.size());
  Waveforms data;
  Get(document.document_element(), data);
  return data;
}

}  // namespace

void RegisterPugixml() {
  RegisterStore("pugixml store", [](Waveforms& data) { return Stored(data); });
  RegisterLoad(
      "pugixml load", [](Waveforms& data) { return FromChild([&] { return Stored(data); }); },
      [](const std::string& text) { return Loaded(text); });
}

}  // namespace bench
