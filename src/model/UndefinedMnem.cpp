// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/UndefinedMnem.h"

#include <utility>

UndefinedMnem::UndefinedMnem(std::string mnemonic)
    : mnemonic_(std::move(mnemonic)), message_("Undefined Mnem: " + mnemonic_)
{
}
