// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/ScalarTypes.h"

#include <QString>

/// One joint or accessory of a pipe string. OD and ID in inches, -999.25 where unknown; length in metres; the
/// weight as entered.
class PipeComponent
{
public:
    static constexpr float NULL_DIAMETER = MISSING_VALUE;

    PipeComponent() = default;
    PipeComponent(float od, float id, float weight, double length, QString const& description)
        : od_(od), id_(id), weight_(weight), length_(length), description_(description)
    {
    }

    [[nodiscard]] float GetOD() const { return od_; }
    [[nodiscard]] float GetID() const { return id_; }
    [[nodiscard]] float GetWeight() const { return weight_; }
    [[nodiscard]] double GetLength() const { return length_; }
    [[nodiscard]] QString const& GetDescription() const { return description_; }

    [[nodiscard]] friend bool operator==(PipeComponent const& a, PipeComponent const& b)
    {
        return a.od_ == b.od_ && a.id_ == b.id_ && a.weight_ == b.weight_ && a.length_ == b.length_ &&
               a.description_ == b.description_;
    }

protected:
    void SetLength(double length) { length_ = length; }

private:
    float od_ = 0;
    float id_ = 0;
    float weight_ = 0;
    double length_ = 0;
    QString description_;
};
