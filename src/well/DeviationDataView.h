// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseDataView.h"

#include <memory>

class StorageDataChannel;

/// Inclination and true vertical depth of the well path against measured depth. Owns the two channels, which
/// are resampled from the survey.
class DeviationDataView final : public BaseDataView
{
    Q_OBJECT
public:
    inline static QString const OBJECT_NAME_ = QStringLiteral("VIEW_WIDGET_DEVIATION_DATAVIEW");

    DeviationDataView(QWidget* parent, QString const& name, ColumnContext const& context);
    ~DeviationDataView() override;

    [[nodiscard]] QString GetDescription() const override;
    void RenderToPainter(QPainter& painter, Interval const& interval, double dpi, bool on_screen) override;
    [[nodiscard]] QPen GetPen(DepthCurve const& curve) const override;
    [[nodiscard]] QSize sizeHint() const override;

    /// Makes both channels from the survey as it is now and shows them on default scales. Changes nothing
    /// while the well path is the same.
    void SetupDataChannels();
    /// Makes the channel of true vertical depth anew in the settings' depth unit; the deviation stays.
    void ToggleTvdUnit();
    /// A line at the zero of the selected scale, which there must be, readable on any background.
    void RenderBaseline(QPainter& painter) const;

    [[nodiscard]] std::shared_ptr<StorageDataChannel const> GetDeviationChannel() const { return deviation_; }
    [[nodiscard]] std::shared_ptr<StorageDataChannel const> GetTvdChannel() const { return tvd_; }

private:
    /// Keeps the other curve first.
    void ReplaceTvdChannel(std::shared_ptr<StorageDataChannel> const& channel);

    std::shared_ptr<StorageDataChannel> deviation_;
    std::shared_ptr<StorageDataChannel> tvd_;
    std::vector<float> tvd_metres_;
};
