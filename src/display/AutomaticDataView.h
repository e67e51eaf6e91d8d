// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/IntermediateDataView.h"
#include "model/ViewObjectNames.h"

/// The view the program makes by itself for one mnemonic: one shared scale, one curve per log pass in the
/// pass's pen.
class AutomaticDataView final : public IntermediateDataView
{
    Q_OBJECT
public:
    inline static QString const OBJECT_NAME_ = view_object_names::AUTOMATIC;

    AutomaticDataView(QWidget* parent, QString const& name, ColumnContext const& context);

    /// The description of the first curve.
    [[nodiscard]] QString GetDescription() const override;

    /// As in BaseDataView, and the shared scale follows the values of all curves until somebody sets another.
    void AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const> channel, QPen const& pen) override;
    using BaseDataView::AssignDepthDataChannel;
    void AssignTimeDataChannel(std::weak_ptr<TimeLogDataChannel const> channel) override;

    /// Sets the shared scale, whatever the channel.
    void SetScales(DataChannelIdentifier const& identifier, Interval const& scale) override;
    void SetScales(std::vector<std::shared_ptr<ScaleItemParameters>> scales) override;
    void SetScales(BaseCurve& curve, Interval const& scale) override;
    void SetAutomaticDataViewScales(Interval const& scale);
    [[nodiscard]] Interval const& GetHorizontalScale() const { return scale_; }

    void ResetHorizontalScale() override;
    void ResetHorizontalScale_Clicked() override;
    /// A single record, from the first depth curve or else the first time curve.
    [[nodiscard]] std::vector<std::shared_ptr<ScaleItemParameters>> GetScales() const override;
    /// A single interval, over all curves.
    [[nodiscard]] std::vector<Interval> GetMinMaxInInterval(double top, double bottom) const override;
    void ResetScalesToVisibleDepth() override;
    void ResetScalesToVisibleDepth_Clicked() override;
    [[nodiscard]] QPen GetPen(DepthCurve const& curve) const override;
    [[nodiscard]] Interval GetScale(BaseCurve const& curve) const override;
    void HorizontalZoom(int x1, int x2) override;
    /// Follows the curve of the column's current log pass.
    DepthCurve const* RenderCurveTracker(QPainter& painter) override;

protected:
    /// The header's record is in the palette's text colour.
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] Interval GetDefaultScale() const;
    /// True until the shared scale was set to something else than the default one.
    [[nodiscard]] bool FollowsValues() const;

    Interval scale_{0, 1};
};
