// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <string>

/// A header section has no row with the wanted mnemonic.
class UndefinedMnem : public std::exception
{
public:
    explicit UndefinedMnem(std::string mnemonic);

    /// "Undefined Mnem: " and the mnemonic.
    [[nodiscard]] char const* what() const noexcept override { return message_.c_str(); }
    [[nodiscard]] std::string const& GetMnemonic() const { return mnemonic_; }

private:
    std::string mnemonic_;
    std::string message_;
};
