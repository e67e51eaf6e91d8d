// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <QPen>

#include <memory>

struct ScaleItemParameters;

/// What every curve of a view has: the scale record it shares with the view's header and the extent of its
/// values. A copy shares the scale record.
class BaseCurve
{
public:
    BaseCurve();
    virtual ~BaseCurve();
    BaseCurve(BaseCurve const&) = default;
    BaseCurve(BaseCurve&&) noexcept = default;
    BaseCurve& operator=(BaseCurve const&) = default;
    BaseCurve& operator=(BaseCurve&&) noexcept = default;

    [[nodiscard]] QPen const& GetCurvePen() const;
    void SetCurvePen(QPen const& pen);
    /// Value range mapped to the view's width.
    [[nodiscard]] Interval const& GetScale() const;
    void SetScales(Interval const& scale);
    /// Minimum and maximum of the samples; the empty interval without samples.
    [[nodiscard]] Interval const& GetValueInterval() const { return value_interval_; }
    [[nodiscard]] std::shared_ptr<ScaleItemParameters> const& GetScaleItemParameters() const
    {
        return scale_item_;
    }

    /// Place of `value` on the scale: 0 at the lower end, 1 at the upper.
    [[nodiscard]] double ConvertValueToPercentage(float value) const;

protected:
    std::shared_ptr<ScaleItemParameters> scale_item_; ///< never null
    Interval value_interval_;
};
