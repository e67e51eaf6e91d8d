// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// guide_pictures <examples/las> <docs/images>: drives the main window through what the user guide tells and
// takes its pictures. Runs without a display.

#include "PictureProgram.h"

#include "app/QuorrelFrame.h"
#include "app/SettingsDialog.h"
#include "app/kit/Globals.h"
#include "app/kit/Interval.h"
#include "display/AutomaticDataView.h"
#include "display/BaseCombinedViewWidget.h"
#include "display/BaseScaleDialog.h"
#include "display/ColumnWindow.h"
#include "display/CombinedDataViewWidget.h"
#include "formats/las/LASFile.h"
#include "model/LogDepthQuestion.h"

#include <QApplication>
#include <QMouseEvent>

#include <cstdio>
#include <stdexcept>

namespace {
class GuidePictures
{
public:
    GuidePictures(QString const& examples, QString const& images) : examples_(examples), images_(images)
    {
        frame_.setWindowState(Qt::WindowNoState);
        frame_.resize(1400, 900);
        frame_.show();
        Settle();
    }

    void Take()
    {
        Save(frame_, "empty-window");

        frame_.AddNewSurvey("Open hole");
        Load("demo-e1-openhole-main.las");
        Show({"Depth", "GR", "CALI", "RDEP", "RMIC", "RHOB", "NPHI"});
        SetScale("GR", {0, 150});
        SetScale("CALI", {6, 16});
        SetScale("RDEP", {0, 60});
        SetScale("RMIC", {0, 60});
        SetScale("RHOB", {1.95, 2.95});
        SetScale("NPHI", {0.45, -0.15}); // falls to the right
        Column().SetVisibleDepthInterval({1495, 1645});
        Column().UpdateScrollBar();
        Column().ForceRedraw();
        Save(frame_, "quorrel");

        Load("demo-e1-openhole-repeat.las");
        Show({"Depth", "GR", "RDEP", "RHOB"});
        Column().SetVisibleDepthInterval({1515, 1570});
        Column().UpdateScrollBar();
        Quorrel::TRACKING_MODE = true;
        MoveMouse("GR", 0.55, 0.42);
        Save(frame_, "two-passes-and-tracker");
        Drag("GR", {0.3, 0.3}, {0.7, 0.62});
        Save(frame_, "measuring");
        Quorrel::TRACKING_MODE = false;

        SaveScaleDialog("RHOB");

        frame_.AddNewSurvey("Production log");
        for (char const* pass : {"down-1", "down-2", "down-3", "up-1", "up-2", "up-3"})
            Load(QString("demo-a7-plt-%1.las").arg(pass));
        Show({"Depth", "GR", "CCL", "SPIN", "CVEL", "WTEP", "WPRE"});
        Column().OnZoomHome();
        Save(frame_, "six-passes");

        SettingsDialog settings(&frame_);
        settings.show();
        Settle();
        Save(settings, "settings");
    }

private:
    static void Settle()
    {
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
    }

    ColumnWindow& Column() { return *frame_.GetCurrentColumnWindow(); }

    void Load(QString const& name)
    {
        QString const path = examples_ + "/" + name;
        frame_.OnLasFileLoaded(std::make_shared<LASFile>(path.toStdString()), path, true, {}, DisableToken());
        Settle();
    }

    void Show(QList<QString> const& names)
    {
        Column().UpdateVisibleViewWidgets(names);
        Settle();
    }

    void SetScale(QString const& view, Interval const& scale) { Column().SetDataViewScale(view, {}, scale); }

    BaseViewWidget& View(QString const& name)
    {
        auto* pair = Column().FindCombinedViewWidget(name);
        if (pair == nullptr)
            throw std::runtime_error("No view " + name.toStdString());
        return *pair->GetBaseViewWidget();
    }

    static QPointF Place(QWidget const& view, QPointF part)
    {
        return {part.x() * view.width(), part.y() * view.height()};
    }

    static void Mouse(QWidget& view, QEvent::Type type, QPointF part, Qt::MouseButtons buttons)
    {
        QPointF const point = Place(view, part);
        auto const button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, point, view.mapToGlobal(point), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&view, &event);
        Settle();
    }

    void MoveMouse(QString const& view, double x, double y)
    {
        Mouse(View(view), QEvent::MouseMove, {x, y}, Qt::NoButton);
    }

    /// Leaves the button pressed, so that the measuring arrow stays.
    void Drag(QString const& view, QPointF from, QPointF to)
    {
        MoveMouse(view, from.x(), from.y());
        Mouse(View(view), QEvent::MouseButtonPress, from, Qt::LeftButton);
        Mouse(View(view), QEvent::MouseMove, to, Qt::LeftButton);
        dragged_ = &View(view);
    }

    void SaveScaleDialog(QString const& view)
    {
        Mouse(*dragged_, QEvent::MouseButtonRelease, {0.7, 0.62}, Qt::NoButton);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(dragged_, &leave);
        auto* pair = dynamic_cast<CombinedDataViewWidget*>(Column().FindCombinedViewWidget(view));
        BaseScaleDialog dialog(&frame_, pair);
        dialog.show();
        Settle();
        Save(dialog, "scales");
    }

    void Save(QWidget& widget, QString const& name)
    {
        Settle();
        QString const file = images_ + "/" + name + ".png";
        if (!widget.grab().save(file))
            throw std::runtime_error("Cannot write " + file.toStdString());
        std::printf("%s\n", qPrintable(file));
    }

    QString examples_;
    QString images_;
    QuorrelFrame frame_;
    QWidget* dragged_ = nullptr;
};
} // namespace

int main(int argc, char** argv)
{
    return RunPictureProgram(argc, argv, "guide_pictures <examples/las> <docs/images>",
                             [](QString const& examples, QString const& images) {
                                 SettingsSingleton::Instance().SetMetricDepth(true);
                                 GuidePictures(examples, images).Take();
                             });
}
