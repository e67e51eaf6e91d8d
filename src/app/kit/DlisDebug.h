// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// Turns on the trace of the DLIS code and the log file that takes it. Set by the build alone.
#ifdef QUORREL_DLIS_DEBUG
inline constexpr bool dlis_debug = true;
#else
inline constexpr bool dlis_debug = false;
#endif
