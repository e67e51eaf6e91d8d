// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/FrameFixture.h"

#include "app/kit/Globals.h"
#include "display/BaseViewWidget.h"

#include <QMouseEvent>
#include <QScreen>

// A move of the mouse repaints only the lines that change. Whatever the mouse did, the screen must show what
// painting everything anew would show.

namespace {
class CrossHairTest : public FrameFixture
{
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        frame_->resize(1300, 800);
        QSignalSpy loaded(frame_.get(), &QuorrelFrame::ProjectLoaded_Signal);
        frame_->LoadProject(QUORREL_EXAMPLES "/demo.qz4");
        ASSERT_TRUE(WaitFor([&] { return !loaded.isEmpty(); }));
        ASSERT_TRUE(loaded[0][0].toBool());
    }
    ~CrossHairTest() override { Quorrel::TRACKING_MODE = false; }

    void SelectSurvey(int index)
    {
        frame_->OnSurveyComboBoxSelection(index);
        Settle();
        views.clear();
        QList<BaseViewWidget*> const all = frame_->findChildren<BaseViewWidget*>();
        for (BaseViewWidget* view : all) {
            if (view->isVisible() && !view->visibleRegion().isEmpty()) {
                views.append(view);
            }
        }
    }

    static void Settle()
    {
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
        }
    }

    static void Send(BaseViewWidget* view, QEvent::Type type, double x, double y, Qt::MouseButton button = {})
    {
        QPointF const local(x * view->width(), y * view->height());
        QMouseEvent event(type, local, view->mapToGlobal(local), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
        QCoreApplication::sendEvent(view, &event);
        Settle();
    }

    void ExpectScreenIsRight(char const* when)
    {
        QImage const screen = frame_->screen()->grabWindow(frame_->winId()).toImage();
        for (BaseViewWidget* view : views) {
            QRect const area(view->mapTo(frame_.get(), QPoint(0, 0)), view->size());
            QRect const seen = area & view->visibleRegion().boundingRect().translated(area.topLeft());
            QImage const expected = view->grab().toImage().copy(seen.translated(-area.topLeft()));
            EXPECT_TRUE(screen.copy(seen).convertToFormat(QImage::Format_RGB32) ==
                        expected.convertToFormat(QImage::Format_RGB32))
                << when << ": " << view->objectName().toStdString() << " " << view->GetName().toStdString();
        }
    }

    void MoveOverAllViews(char const* when, Qt::MouseButton button = Qt::NoButton)
    {
        for (BaseViewWidget* view : views) {
            for (double const place : {0.3, 0.5, 0.55, 0.9}) {
                Send(view, QEvent::MouseMove, place, 1 - place, button);
                ExpectScreenIsRight(when);
            }
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(view, &leave);
            Settle();
            ExpectScreenIsRight("left");
        }
    }

    QList<BaseViewWidget*> views;
};
} // namespace

TEST_F(CrossHairTest, TheScreenKeepsNoRemains)
{
    for (int const survey : {0, 1}) {
        SelectSurvey(survey);
        ASSERT_GE(views.size(), 5);
        MoveOverAllViews("move");
    }

    BaseViewWidget* const view = views.front();
    Send(view, QEvent::MouseButtonPress, 0.2, 0.2, Qt::LeftButton);
    Send(view, QEvent::MouseMove, 0.7, 0.4, Qt::LeftButton);
    ExpectScreenIsRight("measuring");
    Send(view, QEvent::MouseButtonRelease, 0.7, 0.4, Qt::LeftButton);
    ExpectScreenIsRight("measured");

    QAction* const tracking = frame_->GetAction("&Tracking Mode [T]");
    tracking->setChecked(true);
    MoveOverAllViews("tracking");
    Send(view, QEvent::MouseMove, 0.5, 0.5);
    int const renders = view->GetRenderCount();
    for (bool const on : {false, true, false}) {
        tracking->setChecked(on);
        Settle();
        ExpectScreenIsRight("tracking switched");
    }
    EXPECT_EQ(view->GetRenderCount(), renders);

    frame_->GetAction("Zoom to Vertical Interval")->setChecked(true);
    Send(view, QEvent::MouseButtonPress, 0.5, 0.2, Qt::LeftButton);
    MoveOverAllViews("selecting", Qt::LeftButton);
}
