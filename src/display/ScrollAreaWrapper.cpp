// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ScrollAreaWrapper.h"

#include "display/AutomaticCombinedViewWidget.h"
#include "display/AutomaticDataView.h"
#include "display/BaseDataView.h"
#include "display/BaseScaleView.h"
#include "display/ColumnSlots.h"
#include "display/DepthAxisCombinedViewWidget.h"
#include "display/DepthAxisScale.h"
#include "display/MyAbstractScrollArea.h"
#include "display/UserCombinedViewWidget.h"
#include "display/UserDataView.h"
#include "display/ViewFactory.h"
#include "model/ViewObjectNames.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QWheelEvent>

#include <algorithm>

namespace {
/// Pixels by which a view can still be seen and grabbed.
constexpr int MINIMUM_VIEW_WIDTH = 20;
} // namespace

ScrollAreaWrapper::ScrollAreaWrapper(ViewFactory const* factory, QObject* parent)
    : QObject(parent),
      factory_(factory),
      scroll_area_(new MyAbstractScrollArea),
      splitter_(new QSplitter(Qt::Horizontal, scroll_area_->viewport()))
{
    // A view is either hidden or at least as wide as its minimum; a width of 0 always means hidden.
    splitter_->setChildrenCollapsible(false);
    auto* layout = new QHBoxLayout(scroll_area_->viewport());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter_);
    connect(splitter_, &QSplitter::splitterMoved, this, &ScrollAreaWrapper::SplitterMoved_Signal);

    MyAbstractScrollArea* area = scroll_area_;
    connect(area, &MyAbstractScrollArea::OnShowEvent_Signal, this, &ScrollAreaWrapper::OnShowEvent_Signal);
    connect(area, &MyAbstractScrollArea::OnScrollZoomEvent_Signal, this,
            &ScrollAreaWrapper::OnScrollZoomEvent_Signal);
    connect(area, &MyAbstractScrollArea::OnscrollContentsBy_Signal, this,
            &ScrollAreaWrapper::OnscrollContentsBy_Signal);
}

ScrollAreaWrapper::~ScrollAreaWrapper()
{
    delete scroll_area_;
}

DepthAxisCombinedViewWidget*
ScrollAreaWrapper::CreateDepthView(QString const& name, ColumnContext const& context, ColumnSlots* column)
{
    auto* pair = new DepthAxisCombinedViewWidget(name, context, column);
    InsertSplitterWidget(0, pair);
    pair->GetBaseScaleView()->SetName(name);
    connect(pair->GetDepthAxisScale(), &DepthAxisScale::DepthUnitChanged_Signal, this,
            &ScrollAreaWrapper::DepthUnitChanged_Signal);
    return pair;
}

CombinedDataViewWidget* ScrollAreaWrapper::CreateDataView(QString const& name, ColumnContext const& context,
                                                          ColumnSlots* column, bool automatic)
{
    CombinedDataViewWidget* pair = nullptr;
    if (automatic) {
        pair = new AutomaticCombinedViewWidget(name, context, column);
    } else {
        auto* user = new UserCombinedViewWidget(name, context, column);
        connect(user, &UserCombinedViewWidget::ShowUserDataViewProperties_Signal, this,
                &ScrollAreaWrapper::ShowUserDataViewProperties_Signal);
        pair = user;
    }
    AppendPair(pair, name);
    return pair;
}

BaseCombinedViewWidget* ScrollAreaWrapper::CreateZoneView(QString const& name, ColumnContext const& context,
                                                          ColumnSlots* column)
{
    return AppendFactoryPair(factory_ ? factory_->CreateZoneView(name, context) : nullptr, name, column);
}

BaseCombinedViewWidget*
ScrollAreaWrapper::CreateDeviationView(QString const& name, ColumnContext const& context, ColumnSlots* column)
{
    return AppendFactoryPair(factory_ ? factory_->CreateDeviationView(name, context) : nullptr, name, column);
}

BaseCombinedViewWidget* ScrollAreaWrapper::CreateWellSketchView(QString const& name,
                                                                ColumnContext const& context,
                                                                ColumnSlots* column)
{
    return AppendFactoryPair(factory_ ? factory_->CreateWellSketchView(name, context) : nullptr, name,
                             column);
}

BaseCombinedViewWidget* ScrollAreaWrapper::AppendFactoryPair(BaseCombinedViewWidget* pair,
                                                             QString const& name, ColumnSlots* column)
{
    if (pair) {
        pair->ConnectSignalsSlots(column, pair->GetBaseViewWidget());
        ConnectDataView(qobject_cast<CombinedDataViewWidget*>(pair), column);
        AppendPair(pair, name);
    }
    return pair;
}

void ScrollAreaWrapper::ConnectDataView(CombinedDataViewWidget const* pair, ColumnSlots const* column)
{
    if (!pair || !column) {
        return;
    }
    BaseDataView const* view = pair->GetBaseDataView();
    connect(view, &BaseDataView::PushUndoObject_Signal, column, &ColumnSlots::PushUndo);
    connect(view, &BaseDataView::ShiftCompleted_Signal, column, &ColumnSlots::OnShiftCompleted);
    connect(view, &BaseDataView::DepthStretchCompleted_Signal, column, &ColumnSlots::OnDepthStretchCompleted);
    connect(view, &BaseDataView::DepthStretchStarted_Signal, column, &ColumnSlots::OnDepthStretchStarted);
    connect(pair, &CombinedDataViewWidget::UndoBatchStarted_Signal, column, &ColumnSlots::OnUndoBatchStarted);
    connect(pair, &CombinedDataViewWidget::UndoBatchCompleted_Signal, column,
            &ColumnSlots::OnUndoBatchCompleted);
}

void ScrollAreaWrapper::AppendPair(BaseCombinedViewWidget* pair, QString const& name)
{
    pair->setMinimumWidth(MINIMUM_VIEW_WIDTH);
    AddSplitterWidget(pair);
    pair->GetBaseScaleView()->SetName(name);
    using Pair = BaseCombinedViewWidget;
    connect(pair, &Pair::HorizontalZoomEnd_Signal, this, &ScrollAreaWrapper::HorizontalZoomEnd_Signal);
    connect(pair, &Pair::ShiftStarted_Signal, this, &ScrollAreaWrapper::ShiftStarted_Signal);
    connect(pair, &Pair::ApplyShift_Signal, this, &ScrollAreaWrapper::ApplyShift_Signal);
    connect(pair, &Pair::ApplyStretch_Signal, this, &ScrollAreaWrapper::ApplyStretch_Signal);
    connect(pair, &Pair::DataChannelDroppedOnUserDataView_Signal, this,
            &ScrollAreaWrapper::DataChannelDroppedOnUserDataView_Signal);
}

int ScrollAreaWrapper::GetSplitterCount() const
{
    return splitter_->count();
}

BaseCombinedViewWidget* ScrollAreaWrapper::GetSplitterWidget(int index) const
{
    return qobject_cast<BaseCombinedViewWidget*>(splitter_->widget(index));
}

int ScrollAreaWrapper::GetSplitterIndex(QWidget const* widget) const
{
    return splitter_->indexOf(const_cast<QWidget*>(widget));
}

int ScrollAreaWrapper::GetSplitterWidth(int index) const
{
    return GetSplitterSizes().value(index);
}

QList<int> ScrollAreaWrapper::GetSplitterSizes() const
{
    return splitter_->sizes();
}

void ScrollAreaWrapper::SetSplitterSizes(QList<int> const& sizes)
{
    // A view without a width, as a hidden one, gets the room it asks for, or a share like that of the others.
    QList<int> rooms = sizes;
    rooms.resize(splitter_->count());
    int const shown =
        static_cast<int>(std::count_if(rooms.begin(), rooms.end(), [](int size) { return size > 0; }));
    for (int i = 0; i < splitter_->count(); ++i) {
        QWidget const* pair = splitter_->widget(i);
        if (rooms[i] <= 0) {
            bool const has_own_width = pair->sizePolicy().horizontalPolicy() == QSizePolicy::Preferred;
            rooms[i] = has_own_width ? pair->sizeHint().width() : GetWidth() / (shown + 1);
        }
    }
    splitter_->setSizes(rooms);
}

void ScrollAreaWrapper::InsertSplitterWidget(int index, BaseCombinedViewWidget* widget)
{
    splitter_->insertWidget(index, widget);
}

void ScrollAreaWrapper::AddSplitterWidget(BaseCombinedViewWidget* widget)
{
    splitter_->addWidget(widget);
}

QPoint ScrollAreaWrapper::SplitterMapToGlobal(QPoint const& point) const
{
    return splitter_->mapToGlobal(point);
}

void ScrollAreaWrapper::SetSplitterHandleColor(QString const& color)
{
    splitter_->setStyleSheet(QString("QSplitter::handle{background: %1;}").arg(color));
}

QList<BaseCombinedViewWidget*> ScrollAreaWrapper::FindAllCombinedViewWidgets() const
{
    QList<BaseCombinedViewWidget*> pairs;
    // The widget that the scroll area was laid out in may have taken it along.
    for (int i = 0; splitter_ && i < splitter_->count(); ++i) {
        if (BaseCombinedViewWidget* pair = GetSplitterWidget(i)) {
            pairs.append(pair);
        }
    }
    return pairs;
}

QList<BaseViewWidget*> ScrollAreaWrapper::FindViewWidgets(QString const& object_name) const
{
    QList<BaseViewWidget*> views;
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        if (pair->GetBaseViewWidgetObjectName() == object_name) {
            views.append(pair->GetBaseViewWidget());
        }
    }
    return views;
}

QList<BaseDataView*> ScrollAreaWrapper::FindAllBaseDataViews() const
{
    QList<BaseDataView*> views;
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        if (auto* view = qobject_cast<BaseDataView*>(pair->GetBaseViewWidget())) {
            views.append(view);
        }
    }
    return views;
}

void ScrollAreaWrapper::ResetHorizontalScale_Clicked()
{
    for (BaseDataView* view : FindAllBaseDataViews()) {
        QString const kind = view->objectName();
        if (kind == AutomaticDataView::OBJECT_NAME_ || kind == UserDataView::OBJECT_NAME_ ||
            kind == view_object_names::DEVIATION) {
            view->ResetHorizontalScale_Clicked();
        }
    }
}

int ScrollAreaWrapper::GetWidth() const
{
    return scroll_area_->width();
}

void ScrollAreaWrapper::UpdateViewport()
{
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        if (!pair->isHidden()) {
            pair->GetBaseViewWidget()->update();
        }
    }
}

void ScrollAreaWrapper::UpdateAll()
{
    scroll_area_->viewport()->update();
}

void ScrollAreaWrapper::SetScrollBarRange(int minimum, int maximum)
{
    QScrollBar* bar = scroll_area_->verticalScrollBar();
    QSignalBlocker const blocker(bar);
    bar->setRange(minimum, maximum);
}

void ScrollAreaWrapper::SetScrollBarPosition(int position)
{
    QScrollBar* bar = scroll_area_->verticalScrollBar();
    QSignalBlocker const blocker(bar);
    bar->setValue(position);
}

int ScrollAreaWrapper::GetScrollBarValue() const
{
    return scroll_area_->verticalScrollBar()->value();
}

void ScrollAreaWrapper::AddOverlay(Interval const& md, Interval const& tvd, QString const& text)
{
    if (!factory_) {
        return;
    }
    if (QWidget* overlay = factory_->CreateComponentInfoOverlay(scroll_area_->viewport(), md, tvd, text)) {
        overlay->show();
        overlay->raise();
    }
}

void ScrollAreaWrapper::AddToLayout(QHBoxLayout* layout)
{
    layout->addWidget(scroll_area_);
}

void ScrollAreaWrapper::show()
{
    scroll_area_->show();
}

void ScrollAreaWrapper::hide()
{
    scroll_area_->hide();
}

MyAbstractScrollArea* ScrollAreaWrapper::GetScrollArea() const
{
    return scroll_area_;
}

QWidget* ScrollAreaWrapper::GetDialogParent() const
{
    return scroll_area_;
}
