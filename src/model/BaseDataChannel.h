// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/ScalarTypes.h"
#include "model/DataChannelIdentifier.h"
#include "model/HeaderRow.h"
#include "model/LogPassProperties.h"

#include <memory>
#include <tuple>
#include <vector>

/// One measured or calculated curve: identifier, header row and samples. The samples are shared with the
/// owning log.
class BaseDataChannel
{
public:
    using SampleVector = std::vector<DataValueType>;
    using const_iterator = SampleVector::const_iterator;

    /// Key -1, an empty header row, a new empty sample vector.
    BaseDataChannel();
    /// @throws std::bad_weak_ptr when `samples` has expired
    BaseDataChannel(DataChannelIdentifier const& identifier, std::weak_ptr<SampleVector> const& samples,
                    HeaderRow const& curve_info);
    /// Copies identifier and header row and shares the same samples.
    explicit BaseDataChannel(std::shared_ptr<BaseDataChannel const> const& other);
    virtual ~BaseDataChannel();

    [[nodiscard]] virtual QString GetName() const = 0;
    [[nodiscard]] virtual LogPassProperties const& GetLogPassProperties() const = 0;
    /// True when each field of `identifier` equals the channel's or is a wildcard (-1, "", -1).
    [[nodiscard]] virtual bool IsDependentOn(DataChannelIdentifier const& identifier) const = 0;

    [[nodiscard]] std::size_t size() const { return samples_->size(); }
    /// @throws std::out_of_range
    [[nodiscard]] DataValueType at(std::size_t index) const { return samples_->at(index); }
    [[nodiscard]] const_iterator begin() const { return samples_->cbegin(); }
    [[nodiscard]] const_iterator end() const { return samples_->cend(); }
    /// @throws std::out_of_range for a channel without samples, as does back()
    [[nodiscard]] DataValueType front() const { return samples_->at(0); }
    [[nodiscard]] DataValueType back() const { return samples_->at(size() - 1); }
    void reserve(std::size_t count) { samples_->reserve(count); }
    void push_back(DataValueType value) { samples_->push_back(value); }
    [[nodiscard]] std::shared_ptr<SampleVector const> GetSamples() const { return samples_; }

    [[nodiscard]] HeaderRow const& GetCurveInfo() const { return curve_info_; }
    [[nodiscard]] DataChannelIdentifier const& GetDataChannelIdentifier() const { return identifier_; }

    /// As Quorrel::GetPercentiles over the channel's own samples. @throws std::out_of_range
    [[nodiscard]] std::tuple<float, float, float> GetPercentiles(float p1, float p2, float p3) const;

protected:
    BaseDataChannel(BaseDataChannel const&) = default;
    BaseDataChannel& operator=(BaseDataChannel const&) = default;

    DataChannelIdentifier identifier_;
    HeaderRow curve_info_;
    std::shared_ptr<SampleVector> samples_;
};
