// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Globals.h"
#include "app/kit/SettingsSingleton.h"
#include "display/AutomaticDataView.h"
#include "display/BaseCombinedViewWidget.h"
#include "display/ColumnWindow.h"
#include "display/DepthAxis.h"
#include "display/MyAbstractScrollArea.h"
#include "display/ScrollAreaWrapper.h"
#include "display/UserDataView.h"
#include "display/ViewFactory.h"
#include "model/BaseLogPassRecord.h"
#include "model/DepthLogPass.h"
#include "model/TimeLog.h"
#include "well/DepthMarker.h"
#include "well/DirectionalSurveyData.h"
#include "well/PipeStringData.h"
#include "well/WellComponent.h"
#include "well/Zone.h"
#include "well/ZoneTrack.h"

#include <QCoreApplication>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <vector>

/// The well data a column looks at, and the context that names them.
struct ColumnWell
{
    DirectionalSurveyData directional_survey;
    PipeStringData pipe_strings;
    QList<WellComponent> components;
    QList<Zone> perforations;
    QList<Zone> zones;
    QList<ZoneTrack> zone_tracks;
    QList<DepthMarker> markers_a;
    QList<DepthMarker> markers_b;

    [[nodiscard]] ColumnContext Context() const
    {
        ColumnContext context;
        context.directional_survey = &directional_survey;
        context.pipe_strings = &pipe_strings;
        context.components = &components;
        context.perforation_zones = &perforations;
        context.interpretation_zones = &zones;
        context.zone_tracks = &zone_tracks;
        context.markers_a = &markers_a;
        context.markers_b = &markers_b;
        return context;
    }
};

/// Makes plain views with the object names of the zone, deviation and sketch views, and remembers overlays.
class PlainViewFactory final : public ViewFactory
{
public:
    BaseCombinedViewWidget* CreateZoneView(QString const& name, ColumnContext const& context) const override;
    BaseCombinedViewWidget* CreateDeviationView(QString const& name,
                                                ColumnContext const& context) const override;
    BaseCombinedViewWidget* CreateWellSketchView(QString const& name,
                                                 ColumnContext const& context) const override;
    void ConnectComponentClicks(BaseCombinedViewWidget* view, QObject* receiver,
                                ComponentClicked const& clicked) const override;
    QWidget* CreateComponentInfoOverlay(QWidget* parent, Interval const& md, Interval const& tvd,
                                        QString const& text) const override;

    struct Overlay
    {
        Interval md;
        Interval tvd;
        QString text;
    };
    mutable std::map<QString, ComponentClicked> clicks; ///< by view name
    mutable std::vector<Overlay> overlays;
};

/// Channel names with one sample vector each.
using Curves = std::vector<std::pair<HeaderRow, std::vector<float>>>;

/// A pass of survey 1 with evenly spaced depths from top to bottom (metres).
std::shared_ptr<DepthLogPass> MakePass(QString const& hash, double top, double bottom, std::size_t count,
                                       QStringList const& names,
                                       std::function<float(int, double)> const& value,
                                       QColor const& color = Qt::red);
/// The same with constant curves of ten samples.
std::shared_ptr<DepthLogPass> MakePass(QString const& hash, double top, double bottom,
                                       QStringList const& names);
std::shared_ptr<TimeLog> MakeTimeLog(QString const& hash, float depth, QStringList const& names);

/// A column on screen (offscreen platform), 1000 px wide, in metres at 100 dots per inch.
class ColumnFixture : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Puts the column into a window of its own and shows it.
    void ShowOnScreen();
    /// Lets layouts and paints run.
    static void Settle();

    [[nodiscard]] QList<QString> Names() const;
    [[nodiscard]] QList<QString> VisibleNames() const;
    [[nodiscard]] std::map<QString, int> RenderCounts() const;
    [[nodiscard]] BaseViewWidget* View(QString const& name) const
    {
        return column->FindCombinedViewWidget(name)->GetBaseViewWidget();
    }
    [[nodiscard]] int Height() const { return column->GetParameters().GetVisibleHeightPixels(); }

    static constexpr int SURVEY = 1;

    ColumnWell well;
    PlainViewFactory factory;
    std::vector<std::shared_ptr<DepthLogPass>> passes;
    std::unique_ptr<QWidget> window;
    std::unique_ptr<ColumnWindow> column;
};
