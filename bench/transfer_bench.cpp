// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
// The whole way of the lamp waveform page's data at 120,000 pulses: opening (database to object)
// and applying (object to database), beside libxslt alone on the same documents. Each sample is
// taken in a process of its own, all of them by turns; medians are compared.

#include <libxslt/transform.h>
#include <libxslt/xsltInternals.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "archive/measure.h"
#include "archive/waveforms.h"
#include "framework/xml_in_transform_policy.h"
#include "framework/xml_out_transform_policy.h"
#include "host/gui/tool.h"
#include "host/project/database_schema.h"
#include "host/project/run_time_db.h"
#include "host/project/stylesheet_file.h"
#include "host/project/support_files.h"
#include "model/gui_inputs_data.h"

namespace {

using platform::xml::Document;

constexpr const char* kTool = "TransferBench";
constexpr const char* kIn = "lamp_waveform_in.xsl";
constexpr const char* kOut = "lamp_waveform_out.xsl";
constexpr int kRounds = 5;

/// The page's transfer on a database file, as the program sets it up.
struct Transfer {
  explicit Transfer(const std::string& file)
      : database(file, Framework::DatabaseSchema(nullptr).Numbers()) {
    tool.SetRunTimeDB(&database);
    in.LoadTransform({kIn});
    out.LoadTransform({kOut});
  }

  Framework::Tool tool{kTool, "Bench", false};
  Framework::RunTimeDB database;
  Framework::XMLInTransformPolicy<GUIInputsData> in{kTool};
  Framework::XMLOutTransformPolicy<GUIInputsData> out{kTool};
};

/// The processor time of `work`, whose result is kept until the clock was read.
template <class Work>
double Seconds(Work work) {
  const double start = bench::ProcessorSeconds();
  const auto result = work();
  const double seconds = bench::ProcessorSeconds() - start;
  if (!result) throw std::runtime_error("the transfer failed");
  return seconds;
}

double SecondsOfLibxslt(const char* sheet, const Document& input) {
  const std::string path = Framework::GetToolFilePath(nullptr, sheet);
  const auto compiled =
      platform::xml::Stylesheet::Compile(Framework::ReadStylesheetFile(path, nullptr), path);
  return Seconds(
      [&] { return xsltApplyStylesheet(compiled.Handle(), input.Handle(), nullptr) != nullptr; });
}

void MakeDatabase(const std::string& file, std::size_t pulses) {
  Transfer transfer(file);
  GUIInputsData data;
  data.LampWaveformDB = bench::MakeWaveforms(pulses);
  if (!transfer.out.Transform(transfer.database, data))
    throw std::runtime_error("the database cannot be made");
  transfer.database.Save();
}

double Open(const std::string& file) {
  Transfer transfer(file);
  GUIInputsData data;
  return Seconds([&] { return transfer.in.Transform(transfer.database, data); });
}

double TransformAtOpen(const std::string& file) {
  Transfer transfer(file);
  return SecondsOfLibxslt(kIn, transfer.database.GetDOM(transfer.in.GetNeededFragmentNames()));
}

/// The data as the page has it when somebody edited one pulse.
GUIInputsData Edited(Transfer& transfer) {
  GUIInputsData data;
  transfer.in.Transform(transfer.database, data);
  data.LampWaveformDB.back().LWData.back().VecPulses.back().m_Amp += 0.25;
  return data;
}

double Apply(const std::string& file) {
  Transfer transfer(file);
  GUIInputsData data = Edited(transfer);
  return Seconds([&] { return transfer.out.Transform(transfer.database, data); });
}

double TransformAtApply(const std::string& file) {
  Transfer transfer(file);
  GUIInputsData data = Edited(transfer);
  Document combined = transfer.database.GetDOM(transfer.out.GetNeededFragmentNames());
  Document archive;
  Framework::XMLDOMMgr<GUIInputsData>(archive).Store(data, "ModuleOutputs");
  combined.Root().AppendCopy(archive.Root());
  return SecondsOfLibxslt(kOut, combined);
}

struct Subject {
  const char* name;
  double (*run)(const std::string& file);
  std::vector<double> samples = {};

  [[nodiscard]] double Median() {
    std::ranges::sort(samples);
    return samples[samples.size() / 2];
  }
};

void Run(std::size_t pulses) {
  const auto file = std::filesystem::temp_directory_path() /
                    ("transfer_bench_" + std::to_string(getpid()) + ".xml");
  static_cast<void>(bench::FromChild([&] {
    MakeDatabase(file.string(), pulses);
    return std::string();
  }));
  std::array<Subject, 4> subjects{{{"open", Open},
                                   {"libxslt alone", TransformAtOpen},
                                   {"apply", Apply},
                                   {"libxslt alone", TransformAtApply}}};
  for (int round = 0; round < kRounds; ++round) {
    for (Subject& subject : subjects) {
      const auto text =
          bench::FromChild([&] { return std::to_string(subject.run(file.string())); });
      subject.samples.push_back(std::stod(text));
    }
  }
  std::printf("| %zu pulses, %.1f MB | ms | to libxslt alone |\n|---|---|---|\n", pulses,
              static_cast<double>(std::filesystem::file_size(file)) / 1e6);
  for (std::size_t i = 0; i < subjects.size(); i += 2) {
    const double whole = subjects[i].Median();
    const double floor = subjects[i + 1].Median();
    std::printf("| %s | %.0f | %.2f (at most 1.5) |\n", subjects[i].name, 1e3 * whole,
                whole / floor);
    std::printf("| %s | %.0f | 1 |\n", subjects[i + 1].name, 1e3 * floor);
  }
  std::filesystem::remove(file);
}

}  // namespace

int main(int argc, char** argv) {
  Run(argc > 1 ? std::stoul(argv[1]) : 120'000);
  return 0;
}
