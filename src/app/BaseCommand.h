// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// One recorded change. It has already taken place when the command is recorded.
class BaseCommand
{
public:
    /// Makes the change again.
    virtual void Execute() = 0;
    /// Takes the change back.
    virtual void UnExecute() = 0;
    virtual ~BaseCommand() = default;
};
