// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// What the main frame's actions depend on, as a plain record, so that "which action is on when" is a
/// function of it.
struct FrameState
{
    bool has_survey = false;
    bool has_pass = false;
    bool is_first_pass = false;
    bool is_last_pass = false;
    bool undo_available = false;
    bool redo_available = false;
    bool has_interpretation_zones = false;
    bool has_caliper_view = false;
};
