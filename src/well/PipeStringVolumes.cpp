// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "well/PipeStringData.h"

#include <algorithm>
#include <limits>

namespace {
/// Collects the volumes of components, their warnings and the log.
class VolumeSum
{
public:
    explicit VolumeSum(QString* log) : log_(log) {}

    void Add(ComponentVolume const& part, CalculatedPipeComponent const& component, double from, double to)
    {
        total_ += part.volume;
        if (!part.warning.isEmpty()) {
            warnings_.push_back(part.warning);
        }
        if (log_ != nullptr) {
            *log_ += PipeStringData::GenerateDebugString(component, from, to, part.volume, total_);
        }
    }

    [[nodiscard]] VolumeResult GetResult() const { return {static_cast<float>(total_), warnings_}; }

private:
    double total_ = 0;
    QList<QString> warnings_;
    QString* log_;
};

/// `calculate` gives the component's barrels for a length in metres.
template <typename Calculate>
VolumeResult SumOverInterval(PipeStringData::ComponentList const& list, Interval const& interval,
                             QString* log, Calculate calculate)
{
    VolumeSum sum(log);
    for (CalculatedPipeComponent const& component : list) {
        double const min = component.GetMinDepth();
        double const max = component.GetMaxDepth();
        if (!(max > interval.lower)) {
            continue;
        }
        if (min >= interval.lower) {
            if (max > interval.upper) {
                sum.Add(calculate(component, interval.upper - min), component, min, interval.upper);
                break;
            }
            sum.Add(calculate(component, component.GetLength()), component, min, max);
        } else {
            sum.Add(calculate(component, max - interval.lower), component, min, interval.upper);
        }
    }
    return sum.GetResult();
}
} // namespace

VolumeResult PipeStringData::CalculateVolume(ComponentList list, Interval const& interval, QString* log)
{
    return SumOverInterval(list, interval, log, [](CalculatedPipeComponent const& component, double length) {
        return component.CalculateVolume(static_cast<float>(length));
    });
}

VolumeResult PipeStringData::CalculateDisplacement(ComponentList list, Interval const& interval, QString* log)
{
    return SumOverInterval(list, interval, log, [](CalculatedPipeComponent const& component, double length) {
        return component.CalculatePluggedDisplacement(static_cast<float>(length));
    });
}

VolumeResult PipeStringData::CalculateVolumeBelowDepth(ComponentList list, double depth, QString* log)
{
    VolumeSum sum(log);
    float limit = std::numeric_limits<float>::infinity();
    for (auto component = list.crbegin(); component != list.crend(); ++component) {
        if (component->GetMaxDepth() <= depth) {
            break;
        }
        double const upper = std::min(static_cast<float>(component->GetMaxDepth()), limit);
        double const min = component->GetMinDepth();
        if (min < depth) {
            sum.Add(component->CalculateVolume(static_cast<float>(upper - depth)), *component, depth, upper);
            break;
        }
        sum.Add(component->CalculateVolume(static_cast<float>(upper - min)), *component, min, upper);
        limit = static_cast<float>(min);
    }
    return sum.GetResult();
}

float PipeStringData::CalculateTotalVolume(ComponentList list)
{
    double total = 0;
    for (CalculatedPipeComponent const& component : list) {
        total += component.CalculateVolume().volume;
    }
    return static_cast<float>(total);
}

QString PipeStringData::GenerateDebugString(CalculatedPipeComponent const& component, double from, double to,
                                            double volume, double accumulated)
{
    auto const depth_text = [](double depth) {
        return Quorrel::FloatTypeToString(Quorrel::MetricsDepthToSettingsDepth(static_cast<float>(depth)), 2,
                                          false);
    };
    auto const volume_text = [](double barrels) {
        return Quorrel::FloatTypeToString(static_cast<float>(barrels), 1, false);
    };
    QString const unit = SettingsSingleton::Instance().GetDepthUnit();
    return QStringLiteral(
               "Pipe: %1. From: %2 %3 MD,  To: %4 %5 MD,  Volume: %6 bbls,  Accumulated Vol: %7 bbls \n")
        .arg(component.GetDescription(), depth_text(from), unit, depth_text(to), unit, volume_text(volume),
             volume_text(accumulated));
}
