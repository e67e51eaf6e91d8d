// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/FillAreaSource.h"
#include "display/IntermediateDataView.h"
#include "model/FillAreaDefinition.h"
#include "model/ViewObjectNames.h"

struct USER_DATAVIEW_STRUCT;

/// A view the user composes: one scale and one pen per curve, area fills, and channels by drag and drop.
class UserDataView final : public IntermediateDataView, public FillAreaSource
{
    Q_OBJECT
public:
    inline static QString const OBJECT_NAME_ = view_object_names::USER;

    UserDataView(QWidget* parent, QString const& name, ColumnContext const& context);

    [[nodiscard]] QString GetDescription() const override;
    void RenderToPainter(QPainter& painter, Interval const& interval, double dpi, bool on_screen) override;
    void AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const> channel, QPen const& pen) override;
    using BaseDataView::AssignDepthDataChannel;

    /// Renames the view and its header.
    void SetName(QString const& name);
    /// The default pen for a channel that is not shown.
    [[nodiscard]] QPen GetPenFromDci(DataChannelIdentifier const& identifier) const;
    void SetPen(DataChannelIdentifier const& identifier, QPen const& pen);
    void SetScaleInterval(DataChannelIdentifier const& identifier, Interval const& scale);
    [[nodiscard]] std::vector<FillAreaDefinition> const& GetFillAreaDefinitions() const override;
    void SetFillAreaDefinitions(std::vector<FillAreaDefinition> definitions);
    void RenderFillArea(QPainter& painter, Interval const& interval);
    /// Null for a channel that is not shown.
    [[nodiscard]] DepthCurve const* GetCurve(DataChannelIdentifier const& identifier) const;
    bool RenderCurvePoints(DataChannelIdentifier const& identifier, int width, int height,
                           Interval const& interval, std::vector<QPointF>& points) override;
    [[nodiscard]] Interval GetCurveScale(DataChannelIdentifier const& identifier) const override;
    [[nodiscard]] std::vector<DataChannelIdentifier> GetDataChannelIDs() const;

    /// The intermediate view's state, the channels and the fills, to the record of a project file.
    [[nodiscard]] USER_DATAVIEW_STRUCT WriteState_UserDataView() const;
    /// Takes the state of those of the record's channels that the view shows already.
    void RestoreState_UserDataView(USER_DATAVIEW_STRUCT const& record);

signals:
    void DataChannelDroppedOnUserDataView_Signal(QString const& view,
                                                 DataChannelIdentifier const& identifier);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    [[nodiscard]] DragTarget GetDragTarget() const override;

private:
    std::vector<FillAreaDefinition> fill_areas_;
};
