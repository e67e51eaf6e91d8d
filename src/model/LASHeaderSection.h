// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/HeaderRow.h"

#include <cstddef>
#include <utility>
#include <vector>

/// The rows of one header section of a LAS file, in file order.
class LASHeaderSection
{
public:
    using const_iterator = std::vector<HeaderRow>::const_iterator;

    LASHeaderSection() = default;
    explicit LASHeaderSection(std::vector<HeaderRow> rows) : rows_(std::move(rows)) {}

    /// @throws std::out_of_range
    [[nodiscard]] HeaderRow const& at(std::size_t index) const { return rows_.at(index); }
    [[nodiscard]] HeaderRow& at(std::size_t index) { return rows_.at(index); }
    [[nodiscard]] const_iterator begin() const { return rows_.begin(); }
    [[nodiscard]] const_iterator end() const { return rows_.end(); }
    [[nodiscard]] std::size_t size() const { return rows_.size(); }
    [[nodiscard]] bool empty() const { return rows_.empty(); }
    void push_back(HeaderRow row) { rows_.push_back(std::move(row)); }
    /// @throws std::out_of_range
    void delete_element(std::size_t index);

    /// Data of the first row with exactly this mnemonic. @throws UndefinedMnem
    [[nodiscard]] QString const& GetData(QString const& mnemonic) const;

    [[nodiscard]] bool operator==(LASHeaderSection const&) const = default;

private:
    std::vector<HeaderRow> rows_;
};
