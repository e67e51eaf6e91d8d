// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// Starts the program, runs its event loop and returns the exit code of the process.
int qMain(int argc, char** argv);
