// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ViewBench.h"
#include "display/AutomaticDataView.h"
#include "display/BaseCombinedViewWidget.h"
#include "display/ColumnWindow.h"
#include "display/MyAbstractScrollArea.h"
#include "display/ScrollAreaWrapper.h"
#include "display/UserDataView.h"
#include "display/ViewFactory.h"
#include "model/ViewObjectNames.h"

/// Makes plain views with the object names of the zone, deviation and sketch views, and remembers overlays.
class PlainViewFactory final : public ViewFactory
{
public:
    BaseCombinedViewWidget* CreateZoneView(QString const& name, ColumnContext const& context) const override
    {
        return Create(name, view_object_names::ZONE, context);
    }
    BaseCombinedViewWidget* CreateDeviationView(QString const& name,
                                                ColumnContext const& context) const override
    {
        return Create(name, view_object_names::DEVIATION, context);
    }
    BaseCombinedViewWidget* CreateWellSketchView(QString const& name,
                                                 ColumnContext const& context) const override
    {
        return Create(name, view_object_names::WELL_SKETCH, context);
    }
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

private:
    static BaseCombinedViewWidget* Create(QString const& name, QString const& object_name,
                                          ColumnContext const& context);
};

/// A pass of survey 1 with evenly spaced depths from top to bottom (metres).
std::shared_ptr<DepthLogPass> MakePass(QString const& hash, double top, double bottom, std::size_t count,
                                       QStringList const& names,
                                       std::function<float(int, double)> const& value,
                                       QString const& unit = "unit");
/// The same with constant curves of ten samples.
std::shared_ptr<DepthLogPass> MakePass(QString const& hash, double top, double bottom,
                                       QStringList const& names, QString const& unit = "unit");
/// Each curve has these samples, one every half second.
std::shared_ptr<TimeLog> MakeTimeLog(QString const& hash, float depth, QStringList const& names,
                                     std::vector<float> const& samples = {1, 2, 3});

/// A column on screen (offscreen platform), 1000 px wide, on a bench of its own.
class ColumnFixture : public view_bench::BenchTest
{
protected:
    [[nodiscard]] std::unique_ptr<ColumnWindow> MakeColumn() const;
    /// A pass of constant curves, imported and kept.
    DepthLogPass& Import(QString const& hash, double top, double bottom, QStringList const& names);
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

    PlainViewFactory factory;
    std::vector<std::shared_ptr<DepthLogPass>> passes;
    std::unique_ptr<QWidget> window;
    std::unique_ptr<ColumnWindow> column = MakeColumn();
};
