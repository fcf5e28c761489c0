// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include <charconv>
#include <cstdio>
#include <pugixml.hpp>
#include <string>
#include <utility>

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

void Put(pugi::xml_node node, const Pulse& pulse) {
  Put(node, "m_versionnum", pulse.version);
  Put(node, "m_IsPulse", pulse.isPulse ? 1 : 0);
  Put(node, "m_strCWSeg", pulse.segment.c_str());
  Put(node, "m_Amp", pulse.amplitude);
  Put(node, "m_LeadEdge", pulse.leadEdge);
  Put(node, "m_TrailEdge", pulse.trailEdge);
  Put(node, "m_Width", pulse.width);
}

void Put(pugi::xml_node node, const Waveform& waveform) {
  Put(node, "WaveFormTitle", waveform.title.c_str());
  Put(node, "CWType", waveform.wheel.c_str());
  pugi::xml_node ballast = node.append_child("Attributes");
  Put(ballast, "UART", waveform.ballast.uart);
  Put(ballast, "BallastMakerCode", int{waveform.ballast.makerCode});
  Put(ballast, "BallastWaveform", int{waveform.ballast.waveform});
  Put(ballast, "Compensates", waveform.ballast.compensates ? 1 : 0);
  Put(ballast, "PulseRatio", waveform.ballast.pulseRatio);
  Put(ballast, "PulseLength", waveform.ballast.pulseLength);
  pugi::xml_node pulses = node.append_child("VecPulses");
  Put(pulses, "count", waveform.pulses.size());
  for (const Pulse& pulse : waveform.pulses) Put(pulses.append_child("item"), pulse);
}

void Put(pugi::xml_node node, const WaveformList& list) {
  Put(node, "SeqGrpName", list.group.c_str());
  Put(node, "SpinFactor", list.spinFactor);
  pugi::xml_node waveforms = node.append_child("LWData");
  Put(waveforms, "count", list.waveforms.size());
  for (const Waveform& each : list.waveforms) Put(waveforms.append_child("item"), each);
}

std::string Stored(const Waveforms& data) {
  pugi::xml_document document;
  pugi::xml_node root = document.append_child("Inputs");
  pugi::xml_node lists = root.append_child("LampWaveformDB");
  Put(lists, "count", data.lists.size());
  for (const WaveformList& list : data.lists) Put(lists.append_child("item"), list);
  Put(root, "ApplyVIDarkPulse", data.applyDarkPulse ? 1 : 0);
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
  void Get(unsigned char& value) {
    int wide = 0;
    Get(wide);
    value = static_cast<unsigned char>(wide);
  }

 private:
  pugi::xml_node child_;
};

void Get(pugi::xml_node node, Pulse& pulse) {
  Walk walk(node);
  walk.Get(pulse.version);
  walk.Get(pulse.isPulse);
  pulse.segment = walk.Text();
  walk.Get(pulse.amplitude);
  walk.Get(pulse.leadEdge);
  walk.Get(pulse.trailEdge);
  walk.Get(pulse.width);
}

void Get(pugi::xml_node node, Waveform& waveform);
void Get(pugi::xml_node node, WaveformList& list);

template <class Item>
void Get(pugi::xml_node node, std::vector<Item>& items) {
  Walk walk(node);
  std::size_t count = 0;
  walk.Get(count);
  items.resize(count);
  for (Item& item : items) Get(walk.Next(), item);
}

void Get(pugi::xml_node node, Waveform& waveform) {
  Walk walk(node);
  waveform.title = walk.Text();
  waveform.wheel = walk.Text();
  Walk ballast(walk.Next());
  ballast.Get(waveform.ballast.uart);
  ballast.Get(waveform.ballast.makerCode);
  ballast.Get(waveform.ballast.waveform);
  ballast.Get(waveform.ballast.compensates);
  ballast.Get(waveform.ballast.pulseRatio);
  ballast.Get(waveform.ballast.pulseLength);
  Get(walk.Next(), waveform.pulses);
}

void Get(pugi::xml_node node, WaveformList& list) {
  Walk walk(node);
  list.group = walk.Text();
  walk.Get(list.spinFactor);
  Get(walk.Next(), list.waveforms);
}

Waveforms Loaded(const std::string& text) {
  pugi::xml_document document;
  document.load_buffer(text.data(), text.size());
  Walk walk(document.document_element());
  Waveforms data;
  Get(walk.Next(), data.lists);
  walk.Get(data.applyDarkPulse);
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
