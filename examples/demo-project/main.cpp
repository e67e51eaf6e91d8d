// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// quorrel_demo_project <examples folder> <project file>: puts the example logs and the example well together
// as a project ready to look at. The same input gives the same file to the byte.

#include "ColumnBuilder.h"

#include "formats/las/LASFile.h"
#include "formats/project/ProjectFile.h"
#include "model/DataContainer.h"
#include "model/ViewObjectNames.h"
#include "well/WellDetailsImporter.h"

#include <QFile>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace {
constexpr int OPEN_HOLE = 0;
constexpr int PRODUCTION_LOGS = 1;
constexpr int CALIPER = 2;

QString const DEPTH_AXIS = QStringLiteral("VIEW_WIDGET_DEPTHAXIS");

QPen Pen(QColor const& color, int width = 1, Qt::PenStyle style = Qt::SolidLine)
{
    QPen pen(color);
    pen.setWidth(width);
    pen.setStyle(style);
    return pen;
}

class DemoProject
{
public:
    explicit DemoProject(QString const& examples) : examples_(examples) {}

    void Write(QString const& path)
    {
        AddWell();
        AddOpenHole();
        AddProductionLogs();
        AddCaliper();
        project_file::Save(path, container_, columns_, OPEN_HOLE);
    }

private:
    LogPassIdentifier AddLog(int survey, QString const& name, QColor const& color, int width = 1)
    {
        LASFile file((examples_ + "/las/" + name).toStdString());
        // The path stands in the project; it must not say where the project was made.
        auto const log = container_.AddImportedLogPassToSurvey(file, "examples/las/" + name, survey);
        if (!log) {
            throw std::runtime_error("Twice in a survey: " + name.toStdString());
        }
        auto properties = container_.GetLogPassProperties(*log);
        properties.pen = Pen(color, width);
        container_.SetLogPassProperties(*log, properties);
        return *log;
    }

    void AddWell()
    {
        WellDetailsImporter const importer(examples_ + "/demo-well.json");
        if (!importer.GetError().isEmpty()) {
            throw std::runtime_error(importer.GetError().toStdString());
        }
        container_.SetWellName(importer.GetWellname());
        auto const [stations, tie_in] = importer.GetInclinationSurvey();
        container_.SetTrajectorySurvey(stations, tie_in);
        container_.SetPerforationZones(importer.GetPerforaitons());
        container_.SetPipeStringData(importer.GetPipeStringVector());
        // Perforations twice: as zones, and as holes in the sketch's wall.
        auto components = importer.GetMiscComponents();
        for (auto const& zone : importer.GetPerforaitons()) {
            components.append({zone.GetDepth(), zone.GetDescription(), WellComponentType::Perforation});
        }
        container_.SetComponents(components);
        ZoneTrack formations("Formations");
        formations.SetZones(ReadZones());
        container_.SetZoneTracks({formations});
        // One set for each well: the producer's, and the contacts and tops of the open-hole well.
        container_.SetMarkersA({{2196.6F, "End of tubing"},
                                {2880, "Top upper sand"},
                                {2955, "Base middle sand"},
                                {3005, "Top lower sand"},
                                {3060, "Top basement"}});
        container_.SetMarkersB({{1520, "Top reservoir"},
                                {1547, "Gas-oil contact"},
                                {1589, "Oil-water contact"},
                                {1618, "Base reservoir"},
                                {2050, "Top anhydrite"}});
    }

    /// Top, bottom (metres), name and colour between tabs.
    QList<Zone> ReadZones() const
    {
        QFile file(examples_ + "/demo-well-zones.txt");
        if (!file.open(QIODevice::ReadOnly)) {
            throw std::runtime_error("Cannot read " + file.fileName().toStdString());
        }
        QList<Zone> zones;
        for (auto const& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
            auto const cells = line.trimmed().split('\t');
            if (cells.size() != 4) {
                throw std::runtime_error("Not a zone: " + line.toStdString());
            }
            zones.append(Zone({cells[0].toDouble(), cells[1].toDouble()}, cells[2], QColor(cells[3])));
        }
        return zones;
    }

    /// `zones`, `deviation` and `sketch`: widths, 0 to hide.
    ColumnBuilder StartColumn(int survey, int zones, int deviation, int sketch) const
    {
        ColumnBuilder column(container_, survey);
        column.AddDefaultView(view_object_names::ZONE, "Zones", zones);
        column.AddDefaultView(view_object_names::WELL_SKETCH, "Well Sketch", sketch);
        column.AddDefaultView(DEPTH_AXIS, "Depth", 80);
        column.AddDefaultView(view_object_names::DEVIATION, "Deviation", deviation);
        return column;
    }

    void AddOpenHole()
    {
        container_.AddSurvey(OPEN_HOLE, "Open Hole");
        container_.SetSurveyText(
            OPEN_HOLE,
            "Demo E-1, vertical exploration well in the same field: 8 1/2\" hole, 900 to 2400 m.\n"
            "Gas down to 1547 m, oil down to 1589 m, water below.\n"
            "The repeat pass is half a metre off depth and slightly stretched: shift and stretch it.\n"
            "Zones, well sketch and deviation are those of Demo A-7 and are hidden here.");
        auto const main = AddLog(OPEN_HOLE, "demo-e1-openhole-main.las", QColor("#2e9e4f"));
        AddLog(OPEN_HOLE, "demo-e1-openhole-repeat.las", QColor("#e0462f"));

        auto column = StartColumn(OPEN_HOLE, 0, 0, 0);
        column.AddUserView("GR + CALI",
                           {{main, "GR", {0, 150}, Pen("#2e9e4f")},
                            {main, "CALI", {6, 16}, Pen("#c08a3e", 1, Qt::DashLine)},
                            {main, "SP", {-100, 100}, Pen("#8a6fd0")}},
                           300);
        column.AddFill("Clean", 0, 65.0F, FILL_AREA_METHODS::A_LEFT_OF_VALUE, QColor("#f1d04a"));
        column.ShowMarkers(false, true);
        column.AddUserView("Resistivity",
                           {{main, "RDEP", {0, 50}, Pen("#e0462f", 2)},
                            {main, "RMED", {0, 50}, Pen("#3b82d6")},
                            {main, "RMIC", {0, 50}, Pen("#c08a3e", 1, Qt::DotLine)}},
                           300);
        column.AddFill("Hydrocarbon", 0, 8.0F, FILL_AREA_METHODS::A_RIGHT_OF_VALUE, QColor("#9fd8a8"));
        column.ShowMarkers(false, false);
        column.AddUserView("RHOB + NPHI",
                           {{main, "RHOB", {1.95, 2.95}, Pen("#e0462f")},
                            {main, "NPHI", {0.45, -0.15}, Pen("#3b82d6", 1, Qt::DashLine)}},
                           340);
        column.AddFill("Cross-over", 0, 1, FILL_AREA_METHODS::A_LEFT_OF_B, QColor("#f4a62a"));
        column.AddFill("Shale separation", 0, 1, FILL_AREA_METHODS::A_RIGHT_OF_B, QColor("#a9a9a0"));
        column.AddUserView("DT + PEF",
                           {{main, "DT", {140, 40}, Pen("#8a6fd0")},
                            {main, "PEF", {0, 10}, Pen("#c08a3e", 1, Qt::DashLine)}},
                           240);
        column.AddAutomaticView("GR", {0, 150}, 200);
        column.AddAutomaticView("CALI", {6, 16}, 0);
        column.AddAutomaticView("SP", {-100, 100}, 0);
        for (auto const* resistivity : {"RDEP", "RMED", "RMIC"}) {
            column.AddAutomaticView(resistivity, {0, 50}, 0);
        }
        column.AddAutomaticView("RHOB", {1.95, 2.95}, 0);
        column.AddAutomaticView("NPHI", {0.45, -0.15}, 0);
        column.AddAutomaticView("DT", {140, 40}, 0);
        column.AddAutomaticView("PEF", {0, 10}, 0);
        column.StoreScreen("Formation evaluation");
        column.StoreScreen(
            "Main and repeat",
            {{"Depth", 80}, {"GR", 280}, {"CALI", 200}, {"RDEP", 280}, {"RHOB", 280}, {"NPHI", 280}});
        columns_[OPEN_HOLE] = column.Build({1490, 1650}, {880, 2420});
    }

    void AddProductionLogs()
    {
        container_.AddSurvey(PRODUCTION_LOGS, "Production Logs");
        container_.SetSurveyText(
            PRODUCTION_LOGS,
            "Demo A-7 flowing: down at 33, 66 and 98 ft/min, up at 33, 82 and 115 ft/min, then an hour\n"
            "hanging at 2895 m with the well shut in.\n"
            "Cable speed and spinner are positive upwards.");
        auto const down = AddLog(PRODUCTION_LOGS, "demo-a7-plt-down-1.las", QColor("#7cc4f0"));
        AddLog(PRODUCTION_LOGS, "demo-a7-plt-down-2.las", QColor("#3b82d6"));
        AddLog(PRODUCTION_LOGS, "demo-a7-plt-down-3.las", QColor("#1f4fa0"));
        AddLog(PRODUCTION_LOGS, "demo-a7-plt-up-1.las", QColor("#f5b342"));
        AddLog(PRODUCTION_LOGS, "demo-a7-plt-up-2.las", QColor("#e0462f"));
        AddLog(PRODUCTION_LOGS, "demo-a7-plt-up-3.las", QColor("#a02020"));
        auto const station = AddLog(PRODUCTION_LOGS, "demo-a7-station-shut-in.las", QColor("#2e9e4f"), 2);
        container_.SetLogDepth(station, 2895);

        auto column = StartColumn(PRODUCTION_LOGS, 60, 0, 190);
        column.ShowMarkers(true, false);
        column.AddUserView("GR + CCL",
                           {{down, "GR", {0, 150}, Pen("#2e9e4f")}, {down, "CCL", {-2, 6}, Pen("#8a6fd0")}},
                           190);
        column.ShowMarkers(false, false);
        column.AddAutomaticView("SPIN", {-10, 10}, 260);
        column.AddAutomaticView("CVEL", {-150, 150}, 190);
        column.AddAutomaticView("WTEP", {89, 95}, 200);
        column.AddAutomaticView("WPRE", {3150, 3450}, 180);
        column.AddAutomaticView("WFDE", {0.6, 1.2}, 180);
        column.AddUserView("Calipers",
                           {{down, "XCAL", {5.9, 6.5}, Pen("#c08a3e")},
                            {down, "YCAL", {5.9, 6.5}, Pen("#3b82d6", 1, Qt::DashLine)}},
                           150);
        column.AddAutomaticView("GR", {0, 150}, 0);
        column.AddAutomaticView("CCL", {-3, 3}, 0);
        column.AddAutomaticView("XCAL", {5.9, 6.5}, 0);
        column.AddAutomaticView("YCAL", {5.9, 6.5}, 0);
        column.StoreScreen("Production log");
        column.StoreScreen("Depth match", {{"Depth", 80}, {"GR", 400}, {"CCL", 400}, {"WFDE", 400}});
        column.StoreScreen("Flow", {{"Zones", 60},
                                    {"Well Sketch", 200},
                                    {"Depth", 80},
                                    {"SPIN", 480},
                                    {"WTEP", 320},
                                    {"WFDE", 320}});
        columns_[PRODUCTION_LOGS] = column.Build({2876, 3112}, {2150, 3170});
    }

    void AddCaliper()
    {
        container_.AddSurvey(CALIPER, "Caliper");
        container_.SetSurveyText(
            CALIPER, "Forty finger radii over the last 140 m of the 4 1/2\" tubing of Demo A-7.\n"
                     "Pitted joints at 2069 to 2078 m and 2119 to 2128 m (a hole at 2123.2 m), a worn ring\n"
                     "at 2098.7 m, scale at about 2154 m.");
        auto const pass = AddLog(CALIPER, "demo-a7-caliper-40.las", QColor("#3b82d6"));
        constexpr double NOMINAL_RADIUS = 3.958 / 2;
        constexpr double LANE = 0.5; // inches of radius
        constexpr int LANES = 8;
        std::vector<DemoCurve> side_by_side;
        std::vector<DemoCurve> overlaid;
        for (int lane = 0; lane < LANES; ++lane) {
            auto const name = QStringLiteral("FING%1").arg(5 * lane + 2, 2, 10, QChar('0'));
            auto const pen = Pen(QColor::fromHsv(lane * 360 / LANES, 200, 220));
            // The nominal radius stands in the middle of each finger's lane.
            double const left = NOMINAL_RADIUS - LANE * (lane + 0.5);
            side_by_side.push_back({pass, name, {left, left + LANE * LANES}, pen});
            if (lane % 2 == 1) {
                overlaid.push_back({pass, name, {1.8, 2.3}, pen});
            }
        }

        auto column = StartColumn(CALIPER, 0, 0, 220);
        column.ShowMarkers(true, false);
        column.AddAutomaticView("CALA", {3.6, 4.4}, 180);
        column.ShowMarkers(false, false);
        column.AddUserView("Fingers side by side", side_by_side, 600);
        column.AddUserView("Fingers overlaid", overlaid, 300);
        column.AddAutomaticView("MITROT", {0, 360}, 160);
        column.StoreScreen("Tubing condition");
        column.StoreScreen("Fingers only", {{"Depth", 80}, {"Fingers side by side", 1200}});
        columns_[CALIPER] = column.Build({2056, 2197}, {2040, 2220});
    }

    QString examples_;
    DataContainer container_;
    project_file::ColumnWindowRecords columns_;
};
} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: quorrel_demo_project <examples folder> <project file>\n", stderr);
        return 2;
    }
    try {
        DemoProject(QString::fromLocal8Bit(argv[1])).Write(QString::fromLocal8Bit(argv[2]));
    } catch (std::exception const& exception) {
        std::fprintf(stderr, "%s\n", exception.what());
        return 1;
    }
    return 0;
}
