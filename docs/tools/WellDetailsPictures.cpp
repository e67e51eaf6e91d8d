// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// well_details_pictures <examples> <docs/images> [dark]: fills the well details with the example well, as the
// user guide tells, and takes a picture of each tab. Runs without a display. "dark" takes them in dark
// colours.

#include "app/kit/SettingsSingleton.h"
#include "model/ProjectAccess.h"
#include "well/DirectionalSurveyData.h"
#include "well/JsonImporterDialog.h"
#include "well/SurveyImporter.h"
#include "well/WellDetailsDialog.h"
#include "well/WellDetailsImport.h"
#include "well/WellDetailsImporter.h"
#include "well/WellTrajectoryDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSettings>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>

#include <cstdio>
#include <stdexcept>

namespace {
void Save(QWidget& widget, QString const& file)
{
    widget.show();
    for (int i = 0; i < 5; ++i) {
        QApplication::processEvents();
    }
    if (!widget.grab().save(file)) {
        throw std::runtime_error("Cannot write " + file.toStdString());
    }
    std::printf("%s\n", qPrintable(file));
}

void PasteZones(WellDetailsDialog& dialog, QString const& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("Cannot read " + path.toStdString());
    }
    QApplication::clipboard()->setText(QString::fromUtf8(file.readAll()));
    dialog.OnAddZoneTrack();
    auto* tracks = dialog.findChild<QTabWidget*>("ZoneTracks");
    tracks->currentWidget()->findChild<QLineEdit*>("ZoneTrackName")->setText("Formations");
    QKeyEvent paste(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
    QApplication::sendEvent(tracks->currentWidget()->findChild<QTableView*>(), &paste);
}

void Take(QString const& examples, QString const& images)
{
    WellDetailsImporter const importer(examples + "/demo-well.json");
    JsonImporterDialog choice(nullptr, true, true, true, true);
    Save(choice, images + "/well-import.png");

    ProjectAccess project;
    WellDetailsImport::Apply(
        project, importer,
        {.inclination = true, .perforations = true, .pipe_strings = true, .components = true});
    WellDetailsDialog dialog(nullptr, project);
    dialog.resize(960, 600);
    PasteZones(dialog, examples + "/demo-well-zones.txt");
    auto* tabs = dialog.findChild<QTabWidget*>("WellDetailsTabs");
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QString const name = tabs->tabText(i).toLower().replace(' ', '-');
        Save(dialog, images + "/well-details-" + name + ".png");
    }
    // A number in the wrong format, marked.
    auto* components = dialog.findChild<QTableView*>("ComponentTable");
    components->model()->setData(components->model()->index(3, 0), "2178,4 m");
    tabs->setCurrentIndex(7);
    Save(dialog, images + "/well-details-marked.png");

    SurveyImporter text;
    text.resize(700, 480);
    text.findChild<QLineEdit*>("DeviationFile")->setText(examples + "/demo-well-deviation.txt");
    text.LoadTextFile();
    text.findChild<QSpinBox*>("FirstLine")->setValue(5);
    text.findChild<QLineEdit*>("DeviationFile")->setText("demo-well-deviation.txt");
    Save(text, images + "/well-deviation-import.png");

    WellTrajectoryDialog trajectory(project.GetDirectionalSurveyData());
    trajectory.resize(1000, 400);
    Save(trajectory, images + "/well-trajectory.png");
}

QPalette MakeDarkPalette()
{
    QPalette palette(QColor(50, 50, 50), QColor(40, 40, 40));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::AlternateBase, QColor(42, 42, 42));
    return palette;
}
} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "Usage: well_details_pictures <examples> <docs/images> [dark]\n");
        return 2;
    }
    // Static, so that it outlives the settings, which are written after main() has returned.
    static QTemporaryDir const store;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, store.path());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("MyCorp");
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    if (argc > 3) {
        QApplication::setPalette(MakeDarkPalette());
    }
    SettingsSingleton::Instance().SetMetricDepth(true);
    try {
        Take(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    } catch (std::exception const& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
