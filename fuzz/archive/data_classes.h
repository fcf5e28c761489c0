// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "archive/nvp.h"
#include "host/data/color_wheel_data.h"
#include "host/data/illumination_configuration_data.h"
#include "host/data/lamp_optics_data.h"
#include "host/data/pixmeld_control_data.h"
#include "model/frame_rates_page_data.h"
#include "model/gui_inputs_data.h"
#include "model/illuminators_page_data.h"
#include "model/lamp_aging_page_data.h"

namespace fuzz {

/// Calls `use` with a new object of one of the classes that pages are stored as.
template <class Use>
void WithPageData(std::size_t choice, Use use) {
  switch (choice % 8) {
    case 0:
      return use(std::make_unique<GUIInputsData>());
    case 1:
      return use(std::make_unique<LampAgingPageData>());
    case 2:
      return use(std::make_unique<SysDefFrameRatesPageData>());
    case 3:
      return use(std::make_unique<IlluminatorsPageData>());
    case 4:
      return use(std::make_unique<ColorWheelData>());
    case 5:
      return use(std::make_unique<IlluminationConfigurationData>());
    case 6:
      return use(std::make_unique<LampOpticsData>());
    default:
      return use(std::make_unique<PixmeldControlData>());
  }
}

/// Objects that point at each other, by every kind of pointer and through a base class.
struct Node {
  virtual ~Node() = default;
  int number = 0;
  Node* neighbour = nullptr;
  std::unique_ptr<Node> child;

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& zel::archive::nvp("number", number);
    ar& zel::archive::nvp("neighbour", neighbour);
    ar& zel::archive::nvp("child", child);
  }
};

struct NamedNode final : Node {
  std::string name;

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& zel::archive::nvp("base", static_cast<Node&>(*this));
    ar& zel::archive::nvp("name", name);
  }
};

struct Graph {
  Node root;
  std::vector<std::shared_ptr<Node>> nodes;
  std::vector<std::shared_ptr<NamedNode>> named;
  std::vector<Node*> seen;

  template <class Archive>
  void serialize(Archive& ar, unsigned) {
    ar& zel::archive::nvp("root", root);
    ar& zel::archive::nvp("nodes", nodes);
    ar& zel::archive::nvp("named", named);
    ar& zel::archive::nvp("seen", seen);
  }
};

}  // namespace fuzz
