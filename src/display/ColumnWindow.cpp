// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnWindow.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "display/AutomaticDataView.h"
#include "display/BaseScaleView.h"
#include "display/CombinedDataViewWidget.h"
#include "display/DepthAxis.h"
#include "display/DepthAxisCombinedViewWidget.h"
#include "display/ScrollAreaWrapper.h"
#include "display/UserDataView.h"
#include "display/ViewFactory.h"
#include "model/ViewObjectNames.h"

#include <QInputDialog>
#include <QWheelEvent>

namespace {
template <typename View>
QList<View*> ViewsOfKind(ScrollAreaWrapper const& area, QString const& object_name)
{
    QList<View*> views;
    for (BaseViewWidget* view : area.FindViewWidgets(object_name)) {
        if (auto* kind = qobject_cast<View*>(view)) {
            views.append(kind);
        }
    }
    return views;
}
} // namespace

ColumnWindow::ColumnWindow(int survey_id, ColumnContext const& context, ViewFactory const* factory,
                           QObject* parent)
    : ColumnSlots(parent),
      scroll_area_(std::make_shared<ScrollAreaWrapper>(factory)),
      context_(context),
      survey_id_(survey_id),
      undo_redo_(this),
      factory_(factory)
{
    context_.parameters = &params_;
    context_.current_pass = &depth_log_pass_;

    bool const is_metric = SettingsSingleton::Instance().IsMetricDepth();
    Interval const default_interval(
        0, is_metric ? 5000.0 : static_cast<double>(Quorrel::SettingsDepthToMetricDepth(15000.0F)));
    params_.SetTotalDisplayedDepthInterval(default_interval);
    params_.SetViewDepthMetric(default_interval);

    ask_anchor_ = [this](double present) -> std::optional<double> {
        bool accepted = false;
        QString const label = "Stretch Anchor Depth[" + SettingsSingleton::Instance().GetDepthUnit() + "]";
        double const answer = QInputDialog::getDouble(DialogParent(), "Stretch Anchor Depth", label, present,
                                                      -100000, 100000, 2, &accepted, Qt::WindowFlags(), 1);
        return accepted ? std::optional<double>(answer) : std::nullopt;
    };

    CreateZoneView("Zones");
    CreateDepthView("Depth");
    CreateDeviationView("Deviation");
    CreateWellSketchView("Well Sketch");
    DisplayDefaultViews();
    ConnectScrollArea();

    SettingsSingleton const& settings = SettingsSingleton::Instance();
    if (settings.GetOverrideDefaultSplitterHandleColor()) {
        scroll_area_->SetSplitterHandleColor(settings.GetSplitterHandleColor());
    }
}

ColumnWindow::~ColumnWindow()
{
    // The views go first; what they report while they go must not reach a column that is half gone.
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        pair->disconnect(this);
        pair->GetBaseViewWidget()->disconnect(this);
        pair->GetBaseScaleView()->disconnect(this);
    }
    scroll_area_->disconnect(this);
    scroll_area_.reset();
}

void ColumnWindow::ConnectScrollArea()
{
    ScrollAreaWrapper const* area = scroll_area_.get();
    using Area = ScrollAreaWrapper;
    connect(area, &Area::OnShowEvent_Signal, this, &ColumnWindow::OnScrollAreaShowEvent);
    connect(area, &Area::OnScrollZoomEvent_Signal, this, &ColumnWindow::OnScrollZoomEvent);
    connect(area, &Area::OnscrollContentsBy_Signal, this, &ColumnWindow::OnscrollContentsBy);
    connect(area, &Area::ApplyShift_Signal, this, &ColumnWindow::OnShift);
    connect(area, &Area::ShiftStarted_Signal, this, &ColumnWindow::OnShiftStart);
    connect(area, &Area::ApplyStretch_Signal, this, &ColumnWindow::OnStretch);
    connect(area, &Area::HorizontalZoomEnd_Signal, this, &ColumnWindow::HorizontalZoomEnd_Signal);
    connect(area, &Area::DepthUnitChanged_Signal, this, &ColumnWindow::DepthUnitChanged_Signal);
    connect(area, &Area::ShowUserDataViewProperties_Signal, this,
            &ColumnWindow::ShowUserDataViewProperties_Signal);
    connect(area, &Area::DataChannelDroppedOnUserDataView_Signal, this,
            &ColumnWindow::DataChannelDroppedOnUserDataView_Signal);
    connect(area, &Area::SplitterMoved_Signal, this, [this] { restored_layout_.reset(); });
    connect(&undo_redo_, &UndoRedo::UpdateUndoRedoStatus_Signal, this,
            &ColumnWindow::UpdateUndoRedoStatus_Signal);
}

void ColumnWindow::SetCurrentDepthLogPass(std::weak_ptr<DepthLogPass const> const& pass)
{
    depth_log_pass_.pass = pass;
}

BaseCombinedViewWidget* ColumnWindow::CreateDepthView(QString const& name)
{
    return scroll_area_->CreateDepthView(name, context_, this);
}

CombinedDataViewWidget* ColumnWindow::CreateDataView_Public(QString const& name, bool automatic)
{
    return CreateDataView(name, automatic);
}

CombinedDataViewWidget* ColumnWindow::CreateDataView(QString const& name, bool automatic)
{
    return scroll_area_->CreateDataView(name, context_, this, automatic);
}

BaseCombinedViewWidget* ColumnWindow::CreateDeviationView(QString const& name)
{
    return scroll_area_->CreateDeviationView(name, context_, this);
}

BaseCombinedViewWidget* ColumnWindow::CreateZoneView(QString const& name)
{
    BaseCombinedViewWidget* pair = scroll_area_->CreateZoneView(name, context_, this);
    ConnectComponentClicks(pair);
    return pair;
}

BaseCombinedViewWidget* ColumnWindow::CreateWellSketchView(QString const& name)
{
    BaseCombinedViewWidget* pair = scroll_area_->CreateWellSketchView(name, context_, this);
    ConnectComponentClicks(pair);
    return pair;
}

void ColumnWindow::ConnectComponentClicks(BaseCombinedViewWidget* pair)
{
    if (pair) {
        factory_->ConnectComponentClicks(pair, this, [this](Interval const& md, QString const& text) {
            OnWellComponentClicked(md, text);
        });
    }
}

QList<BaseViewWidget*> ColumnWindow::FindViewWidgets(QString const& object_name)
{
    return scroll_area_->FindViewWidgets(object_name);
}

QList<BaseViewWidget const*> ColumnWindow::FindViewWidgets(QString const& object_name) const
{
    QList<BaseViewWidget*> const views = scroll_area_->FindViewWidgets(object_name);
    return {views.cbegin(), views.cend()};
}

QList<BaseDataView*> ColumnWindow::FindAllDataViews() const
{
    return scroll_area_->FindAllBaseDataViews();
}

UserDataView* ColumnWindow::FindUserDataView(QString const& name)
{
    return const_cast<UserDataView*>(std::as_const(*this).FindUserDataView(name));
}

UserDataView const* ColumnWindow::FindUserDataView(QString const& name) const
{
    for (UserDataView const* view : FindAllUserDataViewWidgets()) {
        if (view->GetName() == name) {
            return view;
        }
    }
    return nullptr;
}

BaseCombinedViewWidget* ColumnWindow::FindCombinedViewWidget(QString const& name) const
{
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        if (pair->GetBaseViewWidgetName() == name) {
            return pair;
        }
    }
    return nullptr;
}

QList<BaseCombinedViewWidget*> ColumnWindow::FindAllCombinedViewWidgets() const
{
    return scroll_area_->FindAllCombinedViewWidgets();
}

QList<BaseCombinedViewWidget*> ColumnWindow::FindAllVisibleCombinedViewWidgets() const
{
    QList<BaseCombinedViewWidget*> pairs = FindAllCombinedViewWidgets();
    pairs.removeIf([](BaseCombinedViewWidget const* pair) { return pair->isHidden(); });
    return pairs;
}

QList<AutomaticDataView*> ColumnWindow::FindAllAutomaticDataViews() const
{
    return ViewsOfKind<AutomaticDataView>(*scroll_area_, AutomaticDataView::OBJECT_NAME_);
}

QList<UserDataView*> ColumnWindow::FindAllUserDataViewWidgets() const
{
    return ViewsOfKind<UserDataView>(*scroll_area_, UserDataView::OBJECT_NAME_);
}

QList<BaseViewWidget*> ColumnWindow::FindAllImageDataViewWidgets() const
{
    return scroll_area_->FindViewWidgets(view_object_names::IMAGE);
}

bool ColumnWindow::ContainsMfcDataViews() const
{
    return !scroll_area_->FindViewWidgets(view_object_names::MF_CALIPER).isEmpty();
}

QString ColumnWindow::GenerateUniqueViewWidgetName(QString const& base) const
{
    QLocale const& locale = SettingsSingleton::Instance().GetLocale();
    QString name = base;
    for (int n = 1; FindCombinedViewWidget(name); ++n) {
        name = base + "_#" + locale.toString(n);
    }
    return name;
}

void ColumnWindow::show()
{
    // The views appear with the column; none of them is shown or hidden by itself.
    bool const was_changing = std::exchange(is_changing_visibility_, true);
    scroll_area_->show();
    is_changing_visibility_ = was_changing;
}

void ColumnWindow::hide()
{
    bool const was_changing = std::exchange(is_changing_visibility_, true);
    scroll_area_->hide();
    is_changing_visibility_ = was_changing;
}

void ColumnWindow::AddAddScrollAreaToLayout(QHBoxLayout* layout)
{
    scroll_area_->AddToLayout(layout);
}

QWidget* ColumnWindow::DialogParent() const
{
    return scroll_area_->GetDialogParent();
}
