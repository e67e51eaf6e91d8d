// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// demo_pictures <project> <docs/images>: opens the demo project and takes a picture of each of its surveys.
// Runs without a display.

#include "PictureProgram.h"

#include "app/QuorrelFrame.h"
#include "app/SurveyComboBox.h"

#include <QApplication>
#include <QEventLoop>

#include <cstdio>
#include <stdexcept>

namespace {
void Settle()
{
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

bool Load(QuorrelFrame& frame, QString const& project)
{
    QEventLoop loop;
    bool is_loaded = false;
    QObject::connect(&frame, &QuorrelFrame::ProjectLoaded_Signal, &loop, [&](bool success) {
        is_loaded = success;
        loop.quit();
    });
    frame.LoadProject(project);
    loop.exec();
    return is_loaded;
}

void Take(QString const& project, QString const& images)
{
    QuorrelFrame frame;
    frame.setWindowState(Qt::WindowNoState);
    frame.resize(1600, 980);
    frame.show();
    Settle();
    if (!Load(frame, project))
        throw std::runtime_error("Cannot load " + project.toStdString());
    auto* const surveys = frame.findChild<SurveyComboBox*>();
    int index = 0;
    for (char const* const name : {"open-hole", "production", "caliper"}) {
        surveys->SetCurrentSurvey(surveys->GetSurveyKey(index));
        frame.OnSurveyComboBoxSelection(index++);
        Settle();
        QString const file = QString("%1/demo-%2.png").arg(images, name);
        if (!frame.grab().save(file))
            throw std::runtime_error("Cannot write " + file.toStdString());
        std::printf("%s\n", qPrintable(file));
    }
}
} // namespace

int main(int argc, char** argv)
{
    return RunPictureProgram(argc, argv, "demo_pictures <project> <docs/images>", Take);
}
