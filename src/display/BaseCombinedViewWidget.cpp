// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseCombinedViewWidget.h"

#include "display/BaseScaleView.h"
#include "display/BaseViewWidget.h"
#include "display/ColumnSlots.h"

#include <QPointF>
#include <QVBoxLayout>

BaseCombinedViewWidget::BaseCombinedViewWidget(QWidget* parent)
    : QWidget(parent), layout_(new QVBoxLayout(this))
{
    setObjectName(OBJECT_NAME_);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(0);
    hide();
}

BaseCombinedViewWidget::~BaseCombinedViewWidget() = default;

void BaseCombinedViewWidget::SetPair(BaseScaleView* scale_view, BaseViewWidget* view)
{
    scale_view_ = scale_view;
    layout_->addWidget(scale_view);
    layout_->addWidget(view);
    scale_view->SetName(view->GetName());
    setWindowTitle(view->GetName());
}

QString BaseCombinedViewWidget::GetBaseViewWidgetName() const
{
    return GetBaseViewWidget()->GetName();
}

void BaseCombinedViewWidget::SetBaseViewWidgetName(QString const& name)
{
    GetBaseViewWidget()->SetNameAndTitle(name);
    scale_view_->SetName(name);
    setWindowTitle(name);
}

QString BaseCombinedViewWidget::GetBaseViewWidgetObjectName() const
{
    return GetBaseViewWidget()->objectName();
}

void BaseCombinedViewWidget::RemoveCursor()
{
    GetBaseViewWidget()->SetCursorRow(-1);
}

void BaseCombinedViewWidget::MoveCursor(int y)
{
    GetBaseViewWidget()->SetCursorRow(y);
}

void BaseCombinedViewWidget::VerticalSelectionBegin(int y)
{
    GetBaseViewWidget()->SetSelectionStartRow(y);
}

void BaseCombinedViewWidget::VerticalSelectionEnd()
{
    GetBaseViewWidget()->SetSelectionStartRow(-1);
}

void BaseCombinedViewWidget::ForceRedraw()
{
    GetBaseViewWidget()->ForceRedraw();
    if (scale_view_ != nullptr) {
        scale_view_->update();
    }
}

void BaseCombinedViewWidget::OnMoveViewWidget(QPointF const& global)
{
    emit MoveViewWidget_Signal(this, global);
}

void BaseCombinedViewWidget::MoveButtonReleased(int global_y)
{
    int const y = global_y - mapToGlobal(QPoint(0, 0)).y();
    if (y < 0 || y > height()) {
        hide();
    }
}

void BaseCombinedViewWidget::ConnectSignalsSlots(ColumnSlots const* column, BaseViewWidget* view)
{
    connect(view, &BaseViewWidget::SetScaleName_Signal, scale_view_, &BaseScaleView::SetName);
    connect(view, &BaseViewWidget::SetScale_Signal, scale_view_, &BaseScaleView::SetScale);
    connect(scale_view_, &BaseScaleView::MoveViewWidget_Signal, this,
            &BaseCombinedViewWidget::OnMoveViewWidget);
    connect(scale_view_, &BaseScaleView::MoveButtonReleased_Signal, this,
            &BaseCombinedViewWidget::MoveButtonReleased);
    if (column == nullptr) {
        return;
    }
    connect(this, &BaseCombinedViewWidget::MoveViewWidget_Signal, column, &ColumnSlots::OnMoveViewWidget);
    connect(view, &BaseViewWidget::VerticalSelectionBegin_Signal, column,
            &ColumnSlots::OnVerticalSelectionBegin);
    connect(view, &BaseViewWidget::VerticalSelectionEnd_Signal, column, &ColumnSlots::OnVerticalSelectionEnd);
    connect(view, &BaseViewWidget::MouseLeave_Signal, column, &ColumnSlots::RemoveCursors);
    connect(view, &BaseViewWidget::MouseMove_Signal, column, &ColumnSlots::MoveCursors);
    connect(scale_view_, &BaseScaleView::AdjustHeight_Signal, column, &ColumnSlots::OnScaleHeightChanged);
    connect(view, &BaseViewWidget::VisibleHeightChanged_Signal, column, &ColumnSlots::OnVisibleHeightChanged);
    connect(view, &BaseViewWidget::VisibilityChanged_Signal, column, &ColumnSlots::OnVisibleWidgetsChanged);
}
