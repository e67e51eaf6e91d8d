// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/las/ParameterDataLine.h"
#include "model/LASHeaderSection.h"

#include <cstddef>
#include <optional>
#include <vector>

/// The lines of one LAS 3.0 section, in file order.
class HeaderSection
{
public:
    using const_iterator = std::vector<ParameterDataLine>::const_iterator;

    HeaderSection() = default;
    explicit HeaderSection(std::vector<ParameterDataLine> lines) : lines_(std::move(lines)) {}

    [[nodiscard]] std::size_t GetLineCount() const { return lines_.size(); }
    /// @throws std::out_of_range
    [[nodiscard]] ParameterDataLine const& at(std::size_t index) const { return lines_.at(index); }
    [[nodiscard]] const_iterator begin() const { return lines_.begin(); }
    [[nodiscard]] const_iterator end() const { return lines_.end(); }
    [[nodiscard]] std::size_t size() const { return lines_.size(); }
    void push_back(ParameterDataLine line) { lines_.push_back(std::move(line)); }

    /// A copy of the first line with exactly this mnemonic.
    [[nodiscard]] std::optional<ParameterDataLine> GetParameterLine(QString const& mnemonic) const;

    /// The same lines in the shape of LAS 2.0; formats and associations are dropped.
    [[nodiscard]] LASHeaderSection ConvertToV2() const;

private:
    std::vector<ParameterDataLine> lines_;
};
