// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// Reports the exception that nobody caught on standard output, and aborts. For std::set_terminate.
void TerminateHandler();
