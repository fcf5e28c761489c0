// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: The System Definition developers
#pragma once

#include <string>
#include <string_view>

// The project's keys of the sequence groups and their ranges. A pattern's first number is the
// group, its second the range or spin factor of that group; both count from 1.

inline constexpr std::string_view PC_SEQRANGE_MAX_SEQ = "projectclass.seqrange.maxseq";
inline constexpr std::string_view PC_SEQRANGE_SEQ_BASEHZ =
    "projectclass.seqrange.group%d.seq%d.basehz";
inline constexpr std::string_view PC_SEQRANGE_SEQ_MINHZ =
    "projectclass.seqrange.group%d.seq%d.minhz";
inline constexpr std::string_view PC_SEQRANGE_SEQ_MAXHZ =
    "projectclass.seqrange.group%d.seq%d.maxhz";
inline constexpr std::string_view PC_SEQRANGE_SEQ_MAX_SEQ_MULTIPLIER =
    "projectclass.seqrange.group%d.seq%d.maxseqmultiplier";
inline constexpr std::string_view PC_SEQRANGE_SEQ_SKIPMULT =
    "projectclass.seqrange.group%d.seq%d.skipmult";
inline constexpr std::string_view PC_SEQRANGE_SPINFACTOR =
    "projectclass.seqrange.group%d.spinfactor%d";

/// The key that the pattern gives for these two numbers.
[[nodiscard]] std::string SeqRangeKey(std::string_view pattern, int group, int number);
