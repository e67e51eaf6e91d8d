// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/CombinedDataViewWidget.h"

#include "display/BaseDataView.h"
#include "display/BaseScaleDialog.h"
#include "display/BaseScaleView.h"

#include <QCursor>
#include <QMenu>

#include <algorithm>

BaseViewWidget const* CombinedDataViewWidget::GetBaseViewWidget() const
{
    return GetBaseDataView();
}

BaseViewWidget* CombinedDataViewWidget::GetBaseViewWidget()
{
    return GetBaseDataView();
}

std::optional<Interval> CombinedDataViewWidget::GetDepthInterval_metric() const
{
    return GetBaseDataView()->GetDepthInterval_metric();
}

void CombinedDataViewWidget::RenderScales(QPainter& painter, int height, QColor const& color)
{
    GetBaseScaleView()->RenderScalesToPainter(painter, height, color);
}

void CombinedDataViewWidget::RenderDataview(QPainter& painter, Interval const& interval, double dpi,
                                            double /*axis_factor*/, double major_start, double major_step)
{
    GetBaseDataView()->GenerateGridLines(painter, interval, major_start, major_step);
    GetBaseDataView()->RenderToPainter(painter, interval, dpi, false);
}

QSize CombinedDataViewWidget::sizeHint() const
{
    return GetBaseDataView()->sizeHint();
}

std::vector<std::shared_ptr<ScaleItemParameters>> CombinedDataViewWidget::GetScales() const
{
    return GetBaseDataView()->GetScales();
}

void CombinedDataViewWidget::SetScales(std::vector<std::shared_ptr<ScaleItemParameters>> scales)
{
    std::vector<std::shared_ptr<ScaleItemParameters>> const present = GetScales();
    auto const differs = [&present](std::shared_ptr<ScaleItemParameters> const& record) {
        return record && std::any_of(present.begin(), present.end(), [&](auto const& other) {
                   return other->index == record->index && !(other->scale == record->scale);
               });
    };
    bool const is_batch = std::count_if(scales.begin(), scales.end(), differs) > 1;
    if (is_batch) {
        emit UndoBatchStarted_Signal();
    }
    GetBaseDataView()->SetScales(std::move(scales));
    if (is_batch) {
        emit UndoBatchCompleted_Signal();
    }
    GetBaseDataView()->UpdateScales();
    ForceRedraw();
}

std::vector<Interval> CombinedDataViewWidget::GetMinMaxInInterval(float top, float bottom) const
{
    return GetBaseDataView()->GetMinMaxInInterval(static_cast<double>(top), static_cast<double>(bottom));
}

std::vector<Interval> CombinedDataViewWidget::GetMinMaxInVisibleInterval() const
{
    return GetBaseDataView()->GetMinMaxInVisibleInterval();
}

void CombinedDataViewWidget::OnShowScaleMenu()
{
    BaseScaleDialog dialog(this, this);
    dialog.exec();
}

void CombinedDataViewWidget::ResetScalesToVisibleDepth_Clicked()
{
    GetBaseDataView()->ResetScalesToVisibleDepth_Clicked();
}

void CombinedDataViewWidget::ShowContextMenu(QPoint const& /*position*/)
{
    QMenu menu(this);
    FillContextMenu(menu);
    menu.exec(QCursor::pos());
}

void CombinedDataViewWidget::FillContextMenu(QMenu& menu)
{
    menu.addAction(tr("Horizontal Scales"), this, &CombinedDataViewWidget::OnShowScaleMenu);
    AddMarkersMenu(menu);
    QAction* const baseline = menu.addAction(tr("Show Baseline"));
    baseline->setCheckable(true);
    baseline->setChecked(GetBaseDataView()->GetShowBaseline());
    connect(baseline, &QAction::toggled, GetBaseDataView(), &BaseDataView::SetShowBaseline);
}

void CombinedDataViewWidget::AddMarkersMenu(QMenu& menu)
{
    QMenu* const markers = menu.addMenu(tr("Markers"));
    QAction* const a = markers->addAction(tr("A"));
    a->setCheckable(true);
    a->setChecked(GetBaseDataView()->GetShowMarkersA());
    connect(a, &QAction::toggled, GetBaseDataView(), &BaseDataView::SetShowMarkersA);
    QAction* const b = markers->addAction(tr("B"));
    b->setCheckable(true);
    b->setChecked(GetBaseDataView()->GetShowMarkersB());
    connect(b, &QAction::toggled, GetBaseDataView(), &BaseDataView::SetShowMarkersB);
}

void CombinedDataViewWidget::EnableContextMenus()
{
    for (QWidget* const widget :
         {static_cast<QWidget*>(GetBaseScaleView()), static_cast<QWidget*>(GetBaseViewWidget())}) {
        widget->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(widget, &QWidget::customContextMenuRequested, this, &CombinedDataViewWidget::ShowContextMenu);
    }
}
