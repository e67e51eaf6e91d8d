// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// well_sketch_sheet <docs/images>: draws every component type of the well sketch in a small fixed well, once
// as on screen and once as in print, and the whole well beside them.

#include "well/DirectionalSurveyData.h"
#include "well/WellSketchRenderer.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>

namespace {
constexpr double DPI = 96;
constexpr int PANEL_WIDTH = 210;
constexpr int PANEL_HEIGHT = 190;
constexpr int CAPTION = 20;
constexpr int GAP = 8;
constexpr int COLUMNS = 5;

struct Panel
{
    char const* caption;
    WellComponentType type;
    Interval depth;
    Interval view;
};

PipeStringData MakeWell()
{
    auto const joints = [](float od, float id, float weight, int count, double length, QString const& name) {
        return std::vector<PipeComponent>(static_cast<std::size_t>(count),
                                          PipeComponent(od, id, weight, length, name));
    };
    PipeString surface("Surface casing", 300, false, joints(13.375F, 12.415F, 68, 1, 300, "13 3/8 casing"));
    surface.SetOuterCementData(0, 300, "Surface cement");
    PipeString intermediate("Intermediate casing", 1000, false,
                            joints(9.625F, 8.681F, 47, 4, 250, "9 5/8 casing"));
    intermediate.SetOuterCementData(150, 300, "Intermediate cement");
    PipeString const liner("Liner", 1400, false, joints(7, 6.184F, 29, 2, 250, "7 liner"));
    std::vector<PipeComponent> tubing = joints(4.5F, 3.958F, 12.6F, 8, 100, "4 1/2 tubing");
    tubing.emplace_back(5.5F, 3.958F, 20.0F, 5.0, "Mandrel");
    tubing.emplace_back(4.5F, 3.958F, 12.6F, 45.0, "4 1/2 tubing");
    PipeStringData well;
    well.SetPipeStringVector({surface, intermediate, liner, PipeString("Tubing", 850, true, tubing)});
    return well;
}

std::vector<Panel> MakePanels()
{
    using Type = WellComponentType;
    Interval const in_tubing(600, 620);
    Interval const around_tubing(590, 630);
    Interval const in_casing(1100, 1120);
    Interval const around_casing(1090, 1130);
    return {
        {"HUD", Type::HUD, {1110, 1110}, around_casing},
        {"Plug", Type::Plug, {606, 612}, around_tubing},
        {"Fish", Type::Fish, in_tubing, around_tubing},
        {"Restriction", Type::Restriction, {605, 615}, around_tubing},
        {"Safety Valve", Type::SafetyValve, {606, 613}, around_tubing},
        {"SPM", Type::SidePocketMandrel, {800, 805}, {790, 815}},
        {"PDHG", Type::PermanentDownholeGauge, {606, 612}, around_tubing},
        {"Sleeve", Type::Sleeve, {606, 612}, around_tubing},
        {"Nipple", Type::Nipple, {606, 612}, around_tubing},
        {"Production Packer", Type::ProductionPacker, {606, 614}, around_tubing},
        {"Leak", Type::Leak, {610, 612}, around_tubing},
        {"Formation", Type::Formation, {1300, 1480}, {1200, 1500}},
        {"Cut", Type::Cut, {610, 611}, around_tubing},
        {"ASV Packer", Type::AnnularSafetyValvePacker, {606, 614}, around_tubing},
        {"Perforation", Type::Perforation, in_casing, around_casing},
        {"Openhole Packer", Type::OpenholePacker, {1110, 1116}, around_casing},
        {"Straddle", Type::Straddle, in_tubing, around_tubing},
        {"Cement Plug", Type::CementPlug, in_casing, around_casing},
        {"Tubing Punch", Type::TubingPunch, in_tubing, around_tubing},
    };
}

class Sheet
{
public:
    explicit Sheet(PipeStringData well) : well_(std::move(well)) {}

    void Draw(QImage& image, QRect const& place, QList<WellComponent> const& components, Interval const& view,
              bool print) const
    {
        std::vector<WellComponentBoundingBox> boxes;
        std::vector<PolygonBoundingBox> polygons;
        WellSketchRenderer renderer(well_, components, survey_, boxes, polygons);
        auto const scheme = print ? WellSketchRenderer::PrintScheme() : WellSketchRenderer::ScreenScheme();
        QImage picture(place.size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(scheme.background);
        QPainter sketch(&picture);
        renderer.RenderToPainter(sketch, view, DPI, DPI, scheme);
        sketch.end();
        QPainter(&image).drawImage(place.topLeft(), picture);
    }

private:
    PipeStringData well_;
    DirectionalSurveyData survey_;
};

QImage DrawPanels(Sheet const& sheet)
{
    std::vector<Panel> const panels = MakePanels();
    int const rows = (static_cast<int>(panels.size()) + COLUMNS - 1) / COLUMNS;
    int const cell_width = PANEL_WIDTH + GAP;
    int const cell_height = 2 * PANEL_HEIGHT + CAPTION + GAP;
    QImage image(COLUMNS * cell_width + GAP, rows * cell_height + GAP, QImage::Format_RGB32);
    image.fill(QColor(0xe8, 0xea, 0xec));
    for (std::size_t i = 0; i < panels.size(); ++i) {
        Panel const& panel = panels[i];
        int const index = static_cast<int>(i);
        QPoint const corner(GAP + index % COLUMNS * cell_width, GAP + index / COLUMNS * cell_height);
        QList<WellComponent> const components{{panel.depth, panel.caption, panel.type}};
        QPainter caption(&image);
        caption.drawText(QRect(corner, QSize(PANEL_WIDTH, CAPTION)), Qt::AlignCenter, panel.caption);
        caption.end();
        QSize const size(PANEL_WIDTH, PANEL_HEIGHT - 2);
        sheet.Draw(image, {corner + QPoint(0, CAPTION), size}, components, panel.view, false);
        sheet.Draw(image, {corner + QPoint(0, CAPTION + PANEL_HEIGHT), size}, components, panel.view, true);
    }
    return image;
}

QImage DrawWholeWell(Sheet const& sheet)
{
    using Type = WellComponentType;
    QList<WellComponent> const components{{{180, 700}, "Shale", Type::Formation},
                                          {{1150, 1480}, "Sand", Type::Formation},
                                          {{120, 126}, "Safety valve", Type::SafetyValve},
                                          {{800, 805}, "Gas lift", Type::SidePocketMandrel},
                                          {{700, 705}, "Gauge", Type::PermanentDownholeGauge},
                                          {{820, 830}, "Packer", Type::ProductionPacker},
                                          {{835, 838}, "Nipple", Type::Nipple},
                                          {{500, 520}, "Leak", Type::Leak},
                                          {{1180, 1260}, "Perforation", Type::Perforation},
                                          {{1270, 1300}, "Cement plug", Type::CementPlug},
                                          {{1340, 1340}, "Fill", Type::HUD}};
    QImage image(2 * 300 + 3 * GAP, 900 + 2 * GAP, QImage::Format_RGB32);
    image.fill(QColor(0xe8, 0xea, 0xec));
    sheet.Draw(image, {GAP, GAP, 300, 900}, components, {-20, 1500}, false);
    sheet.Draw(image, {300 + 2 * GAP, GAP, 300, 900}, components, {-20, 1500}, true);
    return image;
}

bool Save(QImage const& image, QString const& file)
{
    bool const saved = image.save(file);
    std::fprintf(saved ? stdout : stderr, "%s%s\n", saved ? "" : "Cannot write ", qPrintable(file));
    return saved;
}
} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: well_sketch_sheet <docs/images>\n");
        return 2;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication const application(argc, argv);
    QString const folder = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(folder);
    Sheet const sheet(MakeWell());
    bool const panels = Save(DrawPanels(sheet), folder + "/well-sketch-components.png");
    bool const well = Save(DrawWholeWell(sheet), folder + "/well-sketch.png");
    return panels && well ? 0 : 1;
}
