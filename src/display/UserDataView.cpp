// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/UserDataView.h"

#include "display/FillArea.h"
#include "display/TreeItemDropData.h"

#include <QDragEnterEvent>
#include <QDropEvent>

namespace {
/// The dragged channel; nothing for items that a user view does not take.
std::optional<DataChannelIdentifier> DraggedChannel(QDropEvent const& event)
{
    std::optional<TreeItemData> const data = Quorrel::ReadTreeItemDropData(event.mimeData());
    if (!data ||
        (data->type != TreeItemType::LogPassDataChannel && data->type != TreeItemType::StorageDataChannel)) {
        return std::nullopt;
    }
    return data->identifier;
}

void AcceptChannel(QDropEvent& event)
{
    if (DraggedChannel(event)) {
        event.acceptProposedAction();
    } else {
        event.ignore();
    }
}
} // namespace

UserDataView::UserDataView(QWidget* parent, QString const& name, ColumnContext const& context)
    : IntermediateDataView(parent, name, context)
{
    setObjectName(OBJECT_NAME_);
    setAcceptDrops(true);
}

QString UserDataView::GetDescription() const
{
    return QStringLiteral("User-defined dataview");
}

void UserDataView::RenderToPainter(QPainter& painter, Interval const& interval, double dpi, bool on_screen)
{
    RenderFillArea(painter, interval);
    IntermediateDataView::RenderToPainter(painter, interval, dpi, on_screen);
}

void UserDataView::RenderFillArea(QPainter& painter, Interval const& interval)
{
    FillArea const fills(this, painter, interval);
}

void UserDataView::AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const> channel, QPen const& pen)
{
    IntermediateDataView::AssignDepthDataChannel(std::move(channel), pen);
    UpdateScales();
}

void UserDataView::SetName(QString const& name)
{
    SetNameAndTitle(name);
    emit SetScaleName_Signal(name);
}

DepthCurve const* UserDataView::GetCurve(DataChannelIdentifier const& identifier) const
{
    return depth_curves_.Find(identifier);
}

std::vector<DataChannelIdentifier> UserDataView::GetDataChannelIDs() const
{
    std::vector<DataChannelIdentifier> identifiers;
    identifiers.reserve(depth_curves_.size());
    for (DepthCurve const& curve : depth_curves_) {
        identifiers.push_back(curve.GetDataChannelIdentifier());
    }
    return identifiers;
}

QPen UserDataView::GetPenFromDci(DataChannelIdentifier const& identifier) const
{
    DepthCurve const* const curve = GetCurve(identifier);
    return curve != nullptr ? curve->GetCurvePen() : QPen();
}

void UserDataView::SetPen(DataChannelIdentifier const& identifier, QPen const& pen)
{
    if (DepthCurve* const curve = depth_curves_.Find(identifier)) {
        curve->SetCurvePen(pen);
        ForceRedraw();
        UpdateScales();
    }
}

void UserDataView::SetScaleInterval(DataChannelIdentifier const& identifier, Interval const& scale)
{
    SetScales(identifier, scale);
}

std::vector<FillAreaDefinition> const& UserDataView::GetFillAreaDefinitions() const
{
    return fill_areas_;
}

void UserDataView::SetFillAreaDefinitions(std::vector<FillAreaDefinition> definitions)
{
    fill_areas_ = std::move(definitions);
    ForceRedraw();
}

bool UserDataView::RenderCurvePoints(DataChannelIdentifier const& identifier, int width, int height,
                                     Interval const& interval, std::vector<QPointF>& points)
{
    DepthCurve const* const curve = GetCurve(identifier);
    if (curve == nullptr || curve->IsHidden()) {
        return false;
    }
    int const count = RenderCurve(*curve, width, height, interval);
    points.assign(render_points_.begin(), render_points_.begin() + count);
    return true;
}

Interval UserDataView::GetCurveScale(DataChannelIdentifier const& identifier) const
{
    DepthCurve const* const curve = GetCurve(identifier);
    return curve != nullptr ? curve->GetScale() : Interval();
}

BaseDataView::DragTarget UserDataView::GetDragTarget() const
{
    return GetSelectedCurve() != nullptr ? DragTarget::SelectedCurve : DragTarget::None;
}

void UserDataView::dragEnterEvent(QDragEnterEvent* event)
{
    AcceptChannel(*event);
}

void UserDataView::dragMoveEvent(QDragMoveEvent* event)
{
    AcceptChannel(*event);
}

void UserDataView::dropEvent(QDropEvent* event)
{
    AcceptChannel(*event);
    if (std::optional<DataChannelIdentifier> const identifier = DraggedChannel(*event)) {
        emit DataChannelDroppedOnUserDataView_Signal(GetName(), *identifier);
    }
}
