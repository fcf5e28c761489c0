// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#include "pages/lamp_aging/rules/working_tables.h"

#include <algorithm>

namespace lamp_aging {
namespace {

bool StoreTable(const BinTable& table, double spinFactor, SlrPulseAmpDataGroupVec& groups) {
  const auto group = std::ranges::find(groups, spinFactor, &SlrPulseAmpDataGroup::m_spinFactor);
  if (group == groups.end()) {
    SlrPulseAmpDataGroup made;
    made.m_spinFactor = spinFactor;
    made.m_SlrPulseAmpDataTable = table;
    groups.push_back(std::move(made));
    return true;
  }
  if (group->m_SlrPulseAmpDataTable == table) {
    return false;
  }
  group->m_SlrPulseAmpDataTable = table;
  return true;
}

}  // namespace

const SlrPulseAmpDataGroup* FindGroup(const SlrPulseAmpDataGroupVec& groups,
                                      double spinFactor) noexcept {
  const auto group = std::ranges::find(groups, spinFactor, &SlrPulseAmpDataGroup::m_spinFactor);
  return group == groups.end() ? nullptr : &*group;
}

void LoadTables(const LampAgingPageData& data, double spinFactor, WorkingTables& tables) {
  tables.feedback.clear();
  if (const auto* group = FindGroup(data.m_VecpulseAmpDataFeedBackGroup, spinFactor)) {
    tables.feedback = group->m_SlrPulseAmpDataTable;
  }
  for (const SlrPulseAmpDataGroup& group : data.m_VecpulseAmpDataNoFeedBackGroup) {
    if (group.m_spinFactor == spinFactor) {
      tables.noFeedback = group.m_SlrPulseAmpDataTable;
    }
  }
}

const BinTable& ShownTable(WorkingTables& tables, std::uint32_t ballastType) {
  const bool feedback = ballastType == kSendsFeedback;
  BinTable& table = feedback ? tables.feedback : tables.noFeedback;
  if (table.empty()) {
    table = feedback ? DefaultFeedbackTable() : DefaultNoFeedbackTable();
  }
  return table;
}

bool StoreTables(const WorkingTables& tables, std::uint32_t ballastType, double spinFactor,
                 std::span<const SpinFactor> factors, LampAgingPageData& data) {
  data.m_ballast_type = ballastType;
  if (std::ranges::find(factors, spinFactor, &SpinFactor::value) == factors.end()) {
    return false;
  }
  bool changed = false;
  if (!tables.feedback.empty()) {
    changed |= StoreTable(tables.feedback, spinFactor, data.m_VecpulseAmpDataFeedBackGroup);
  }
  if (!tables.noFeedback.empty()) {
    changed |= StoreTable(tables.noFeedback, spinFactor, data.m_VecpulseAmpDataNoFeedBackGroup);
  }
  return changed;
}

}  // namespace lamp_aging
