// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Globals.h"
#include "display/BaseDataView.h"
#include "display/BaseViewWidgetParameters.h"
#include "display/ColumnContext.h"
#include "display/ColumnSlots.h"
#include "model/BaseDepthDataChannel.h"
#include "model/BaseLogPassRecord.h"
#include "model/DepthLogPass.h"
#include "model/LogPassProperties.h"
#include "model/TimeLog.h"
#include "support/NumberFormats.h"
#include "support/Pixels.h"
#include "well/DepthMarker.h"
#include "well/DirectionalSurveyData.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointF>
#include <QWidget>

/// What the views of a column need to live, without a column.
namespace view_bench {
/// A depth channel with properties of its own, as if it belonged to a log pass.
class Channel final : public BaseDepthDataChannel
{
public:
    Channel(DataChannelIdentifier const& identifier, HeaderRow const& header,
            std::vector<double> const& depths, std::shared_ptr<SampleVector> const& samples)
        : BaseDepthDataChannel(identifier, samples, header), depth(depths, true)
    {
        properties.identifier = identifier.GetLogPassIdentifier();
        properties.pen = QPen(Qt::red);
    }

    [[nodiscard]] QString GetName() const override { return GetCurveInfo().mnemonic; }
    [[nodiscard]] LogPassProperties const& GetLogPassProperties() const override { return properties; }
    [[nodiscard]] bool IsDependentOn(DataChannelIdentifier const& pattern) const override
    {
        return GetDataChannelIdentifier().IsDependentOn(pattern);
    }
    [[nodiscard]] DepthChannel const& GetDepth() const override { return depth; }

    DepthChannel depth;
    LogPassProperties properties;
};

/// A red curve of samples every half metre from top to bottom, both included.
inline std::shared_ptr<Channel> MakeChannel(QString const& hash, int index, QString const& mnemonic,
                                            QString const& unit, std::function<double(double)> const& value,
                                            double top = 1000, double bottom = 1100)
{
    std::vector<double> depths;
    auto const samples = std::make_shared<std::vector<float>>();
    for (double depth = top; depth <= bottom; depth += 0.5) {
        depths.push_back(depth);
        samples->push_back(static_cast<float>(value(depth)));
    }
    return std::make_shared<Channel>(DataChannelIdentifier(1, hash, index),
                                     HeaderRow(mnemonic, unit, "", mnemonic + " description"), depths,
                                     samples);
}

/// The value equals (depth - 1000) / 100 times `factor`: 0 at the top of the bench's view, `factor` at its
/// bottom.
inline std::shared_ptr<Channel> MakeRamp(QString const& hash, int index, QString const& mnemonic,
                                         double factor = 100)
{
    return MakeChannel(hash, index, mnemonic, QStringLiteral("u"),
                       [factor](double depth) { return (depth - 1000) / 100 * factor; });
}

/// Writes down what the views ask of their column, and passes the cursor on like a real one.
class Column final : public ColumnSlots
{
public:
    struct Undo
    {
        QString view;
        DataChannelIdentifier identifier;
        Interval before;
        Interval after;
        [[nodiscard]] bool operator==(Undo const&) const = default;
    };

    void MoveCursors(int y, float /*depth*/, QString const& /*text*/) override { TellCursor(y); }
    void RemoveCursors() override { TellCursor(-1); }
    void OnVerticalSelectionBegin(int /*y*/) override { calls << QStringLiteral("Begin"); }
    void OnVerticalSelectionEnd(int /*y1*/, int /*y2*/) override {}
    void OnScaleHeightChanged() override {}
    void OnVisibleHeightChanged(int /*height*/) override {}
    void OnVisibleWidgetsChanged() override {}
    void OnMoveViewWidget(QWidget* widget, QPointF const& global) override
    {
        moved = widget;
        moved_to = global;
    }
    void PushUndo(QString const& view, DataChannelIdentifier const& identifier, Interval const& before,
                  Interval const& after) override
    {
        undo.push_back({view, identifier, before, after});
    }
    void OnShiftCompleted() override { calls << QStringLiteral("ShiftCompleted"); }
    void OnDepthStretchStarted() override { calls << QStringLiteral("StretchStarted"); }
    void OnDepthStretchCompleted() override { calls << QStringLiteral("StretchCompleted"); }

    [[nodiscard]] qsizetype Count(QString const& call) const { return calls.count(call); }

    QStringList calls;
    std::vector<Undo> undo;
    QWidget* moved = nullptr;
    QPointF moved_to;
    std::function<void(int)> on_cursor;

private:
    void TellCursor(int y) const
    {
        if (on_cursor) {
            on_cursor(y);
        }
    }
};

/// A column's context showing 1000 to 1100 m, in metres, with the display state of a 96 dpi screen. Puts the
/// process-wide state back when it goes.
class Bench
{
public:
    Bench()
    {
        parameters.SetTotalDisplayedDepthInterval(Interval(1000, 1100));
        parameters.SetViewDepthMetric(Interval(1000, 1100));
        context.parameters = &parameters;
        context.current_pass = &current_pass;
        context.directional_survey = &survey;
        context.markers_a = &markers_a;
        context.markers_b = &markers_b;
        Quorrel::DPI_X = 96;
        Quorrel::DPI_Y = 96;
        Quorrel::TRACKING_MODE = false;
    }
    ~Bench() { Quorrel::TRACKING_MODE = false; }
    Bench(Bench const&) = delete;
    Bench& operator=(Bench const&) = delete;

    NumberFormatScope number_format;
    BaseViewWidgetParameters parameters;
    CurrentDepthLogPass current_pass;
    DirectionalSurveyData survey;
    QList<DepthMarker> markers_a;
    QList<DepthMarker> markers_b;
    ColumnContext context;
};

class BenchTest : public testing::Test
{
protected:
    Bench bench;
};

/// What the view paints for 1000 to 1100 m on 200 x 101 pixels.
inline QImage Render(BaseDataView& view, QColor const& ground = Qt::black, bool on_screen = true,
                     Interval const& interval = {1000, 1100})
{
    return pixels::Paint({200, 101}, ground,
                         [&](QPainter& painter) { view.RenderToPainter(painter, interval, 96, on_screen); });
}

/// A move with the left button down, which QTest::mouseMove does not carry.
inline void Drag(QWidget* widget, QPoint const& position)
{
    QMouseEvent event(QEvent::MouseMove, QPointF(position), widget->mapToGlobal(QPointF(position)),
                      Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}
} // namespace view_bench
