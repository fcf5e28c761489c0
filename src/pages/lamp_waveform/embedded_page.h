// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

class GUIInputsData;

namespace VeskSystemDefinition {

/// A sub-page of the lamp waveform page's sheet. It works on the page's data, on the waveform that
/// is selected there.
class IEmbeddedPage {
 public:
  virtual ~IEmbeddedPage() = default;

  /// The page's data object, not owned; it outlives the sub-page or is replaced by another call.
  virtual void SetInputData(GUIInputsData* data) = 0;
  /// Fills the controls from the data; the page calls it whenever its selection or a value changed.
  virtual void Refresh() = 0;
};

}  // namespace VeskSystemDefinition
