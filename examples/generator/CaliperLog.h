// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "LasDocument.h"

/// Forty radii of the tubing of the example production well, as a multi-finger caliper measures them: joints
/// and collars, pitting on the low side, a worn ring, scale and a hole, down through gauge mandrel, packer
/// and landing nipple.
LasDocument MakeCaliperLog();
