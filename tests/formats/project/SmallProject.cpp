// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/SmallProject.h"

#include "formats/project/ByteBuilder.h"
#include "model/BaseLogPassRecord.h"
#include "model/DataContainer.h"

#include <QPen>

#include <array>
#include <type_traits>

namespace {
using B = ByteBuilder;

QPen Pen(QColor const& color, int width, Qt::PenStyle style)
{
    QPen pen(color);
    pen.setWidth(width);
    pen.setStyle(style);
    return pen;
}

BASE_LOGPASS_STRUCT LogRecord(QString const& hash, QString const& path)
{
    BASE_LOGPASS_STRUCT record;
    record.properties.highlighted = true;
    record.properties.hidden = false;
    record.properties.identifier = LogPassIdentifier(small_project::SURVEY_KEY, hash);
    record.properties.pen = Pen(QColor(1, 2, 3), 4, Qt::DashLine);
    record.version_header = LASHeaderSection({{"VERS", "", "2.0", "v"}});
    record.well_info_header = LASHeaderSection({{"NULL", "", "-999.25", "n"}, {"WELL", "", "W", "w"}});
    record.curve_info_header = LASHeaderSection({{"DEPT", "M", "", "d"}, {"GR", "GAPI", "", "g"}});
    record.parameter_info_header = LASHeaderSection({{"P", "u", "1", "p"}});
    record.other_header = LASHeaderSection({{"O", "", "", "o"}});
    record.file_path_and_name = path;
    record.array_mnems = QStringList{"WF", "CAL"};
    return record;
}

BaseLog::DataMatrix Columns()
{
    return {std::make_shared<std::vector<float>>(std::vector<float>{100, 101, 102}),
            std::make_shared<std::vector<float>>(std::vector<float>{1.5F, -2, 3})};
}

/// Flags are the markers A and B and the baseline, where the view has them.
template <typename Record>
std::shared_ptr<Record> View(QString const& object_name, QString const& name, bool visible,
                             std::array<bool, 3> const& flags = {})
{
    auto view = std::make_shared<Record>();
    view->object_name = object_name;
    view->name = name;
    view->is_visible = visible;
    if constexpr (std::is_base_of_v<BASE_DATAVIEW_STRUCT, Record>) {
        std::tie(view->show_markers_a, view->show_markers_b, view->show_baseline) = std::tuple_cat(flags);
    }
    return view;
}

/// With a reversed range.
std::shared_ptr<ScaleItemParameters> Scale()
{
    return std::make_shared<ScaleItemParameters>(ScaleItemParameters{
        HeaderRow("GR", "GAPI", "", "g"), 1, Interval(150, 0.5), Pen(QColor(9, 8, 7), 2, Qt::DotLine), true});
}

B ScaleBytes()
{
    return B().I32(1).Row("GR", "GAPI", "", "g").I32(1).F32(150).F32(0.5F).Color(9, 8, 7).I32(2).U8(3).U8(1);
}

B LogBytes(QByteArray const& hash, QByteArray const& path)
{
    B payload;
    payload.U8(1).U8(0).I32(7).Str(hash).Color(1, 2, 3).I32(4).U8(2);
    payload.I32(1).Row("VERS", "", "2.0", "v");
    payload.I32(2).Row("NULL", "", "-999.25", "n").Row("WELL", "", "W", "w");
    payload.I32(2).Row("DEPT", "M", "", "d").Row("GR", "GAPI", "", "g");
    payload.I32(1).Row("P", "u", "1", "p");
    payload.I32(1).Row("O", "", "", "o");
    payload.Str(path);
    B log;
    log.Item("BASELOG_BASIC_DATA", payload);
    log.Item("LOGFILE_ARRAY_MNEMS", B().I32(2).Str("WF").Str("CAL")).End();
    log.Chain("GENERIC_LOG_BASIC_DATA", B().I32(2).Floats({100, 101, 102}).Floats({1.5F, -2, 3}));
    return log;
}

/// Object name, visibility and view widget name.
B ViewHead(QByteArray const& object_name, int visible, QByteArray const& name)
{
    B view;
    view.Chain("BASIC_DATAVIEW_DATA", B().Str(object_name));
    view.Str("COMBINEDVIEWWIDGET_MAGIC_WORD").Chain("COMBINED_VIEW_WIDGET_DATA", B().U8(visible));
    view.Chain("VIEW_WIDGET_DATA", B().Str(name));
    return view;
}

B Flags(int a, int b, int baseline)
{
    return B().Chain("BASE_DATAVIEW_BASIC_DATA", B().U8(a).U8(b).U8(baseline));
}

void FillWell(DataContainer& container)
{
    container.SetWellName(QString::fromUtf8("Bj\xC3\xB8rn-1"));
    container.SetPerforationZones({Zone({10, 12.5}, "p", QColor(1, 20, 255))});
    ZoneTrack track("T");
    track.SetZones({Zone({5, 6}, "z", QColor(7, 8, 9)), Zone({2, 1}, "", QColor(0, 0, 0))});
    container.SetZoneTracks({track});
    container.SetTrajectorySurvey({{0, 0, 0}, {100.5F, 2.25F, 90}}, {1.25, -2.5, 3.75});
    container.SetComponents({WellComponent({30, 29}, "plug", WellComponentType::Plug)});
    container.SetMarkersA({DepthMarker(11.5F, "A1")});
    container.SetMarkersB({DepthMarker(12.5F, "B1"), DepthMarker(-1, "")});
    PipeString casing("Casing", 120, false, {PipeComponent(9.625F, 8.5F, 47, 100.5, "joint")});
    casing.SetOuterCementData(90, 110, "good");
    container.SetPipeStringData(
        {PipeString("Tubing", 80.25, true, {PipeComponent(4.5F, 3.958F, 12.75F, 80, "tbg")}), casing});
}
} // namespace

void small_project::Fill(DataContainer& container)
{
    FillWell(container);
    container.AddSurvey(SURVEY_KEY, "S");
    container.SetSurveyText(SURVEY_KEY, "text");
    container.SetInterpretationZones(SURVEY_KEY, {Zone({50, 60}, "flow", QColor(4, 5, 6))});
    InterpretationParameters parameters;
    parameters.SetFlowRate(1234);
    parameters.SetVpcf(0.75F);
    parameters.SetThresholdPos(1.5F);
    parameters.SetThresholdNeg(-2.5F);
    parameters.SetSlopePos(0.25F);
    parameters.SetSlopeNeg(0.125F);
    parameters.SetSpinnerMnem("SPIN");
    parameters.SetCableSpeedMnem("CS");
    parameters.SetUseFixedId(true);
    parameters.SetFixedIdValue(6.5F);
    parameters.SetUseSecondCaliper(false);
    parameters.SetFirstCaliperMnem("C1");
    parameters.SetSecondCaliperMnem("C2");
    container.SetInterpretationParameters(SURVEY_KEY, parameters);

    std::vector<double> depths = {100, 101, 102};
    container.AddDepthLogPass(
        SURVEY_KEY,
        std::make_shared<DepthLogPass>(LogRecord("aa", "/x/a.las"), Columns(), true, 1.5F, 1.25F, depths));
    container.AddTimeLog(SURVEY_KEY, std::make_shared<TimeLog>(LogRecord("bb", "/x/b.las"), Columns(),
                                                               std::vector<double>{0, 0.5, 1}, 2500.5F));
    std::vector<double> storage_depths = {1000, 1000.5};
    container.AddStorageChannel(
        SURVEY_KEY, STORAGE_KEY,
        std::make_shared<StorageDataChannel>(
            DATA_STORAGE_CHANNEL_Struct{
                "ST", HeaderRow("ST", "psi", "x", "y"), {SURVEY_KEY, "DATA_STORAGE_IDENTIFIER", STORAGE_KEY}},
            false, -0.5F, 1.0F, storage_depths,
            std::make_shared<std::vector<float>>(std::vector<float>{7.5F, 8.5F})));
}

project_file::ColumnWindowRecords small_project::Windows()
{
    COLUMN_WINDOW_Struct window;
    window.override_interval = true;
    window.total_displayed_interval = Interval(90, 210);
    window.view_depth_interval = Interval(95, 105);
    window.view_count = 6;
    window.splitter_sizes = {10, 20, 30, 40, 50, 60};

    auto automatic = View<INTERMEDIATE_DATAVIEW_STRUCT>("VIEW_WIDGET_AUTOMATIC_DATAVIEW", "GR", true,
                                                        {true, false, false});
    automatic->scales = {Scale()};

    auto deviation =
        View<BASE_DATAVIEW_STRUCT>("VIEW_WIDGET_DEVIATION_DATAVIEW", "Dev", false, {false, true, false});

    auto user = View<USER_DATAVIEW_STRUCT>("VIEW_WIDGET_USER_DATAVIEW", "User", true, {false, false, true});
    user->scales = {Scale()};
    user->curves = {DataChannelIdentifier(SURVEY_KEY, "aa", 1)};
    user->fill_areas = {{"fill",
                         {SURVEY_KEY, "aa", 1},
                         {-1, "", -1},
                         33.5F,
                         FILL_AREA_METHODS::A_LEFT_OF_VALUE,
                         Qt::DiagCrossPattern,
                         QColor(11, 12, 13)}};

    auto image = View<IMAGE_DATAVIEW_STRUCT>("VIEW_WIDGET_IMAGE_DATA_VIEW", "Img", true, {true, true, true});
    image->log_pass = LogPassIdentifier(SURVEY_KEY, "aa");
    image->mnemonic = "WF";
    image->scale_low = -0.25;
    image->scale_high = 8.125;
    image->color_scale_name = "Rainbow";

    auto caliper =
        View<MFC_DATAVIEW_STRUCT>("VIEW_WIDGET_MF_CALIPER_DATA_VIEW", "Cal", true, {true, true, false});
    caliper->log_pass_hash = "aa";
    caliper->caliper_mnemonic = "CAL";
    caliper->center_scale = 2.5;
    caliper->variation_scale = 0.5;
    caliper->nominal_inner_diameter = 6.25;
    caliper->nominal_outer_diameter = 7;

    auto sketch = View<VIEW_WIDGET_STRUCT>("VIEW_WIDGET_WELL_SKETCH_VIEW", "Sketch", true);

    window.views = {automatic, deviation, user, image, caliper, sketch};
    window.screens = {{"one", {{"GR", 10}, {"Sketch", 60}}}, {"two", {}}};
    window.current_screen_name = "one";
    return {{SURVEY_KEY, window}};
}

QByteArray small_project::Header()
{
    return B().Raw("FILEFORMAT_MAGIC_WORD").I32(3).I32(0).Bytes();
}

QByteArray small_project::Main()
{
    B main;
    main.Str("MAIN");
    main.Item("PERFORATIONS_DATA", B().I32(1).F64(10).F64(12.5).Str("p").Color(1, 20, 255));
    main.Item("ZONE_TRACK_DATA",
              B().I32(1).Str("T").I32(2).F64(5).F64(6).Str("z").Color(7, 8, 9).F64(2).F64(1).Str("").Color(
                  0, 0, 0));
    main.Item("TRAJECTORY_SURVEY_DATA_INCL_TIE_IN",
              B().I32(2).F64(0).F32(0).F32(0).F64(100.5).F32(2.25F).F32(90).F64(1.25).F64(-2.5).F64(3.75));
    main.Item("WELL_COMPONENTS_DATA", B().I32(1).F64(30).F64(29).I32(2).Str("plug"));
    main.Item("DEPTH_MARKER_A_DATA", B().I32(1).F64(11.5).Str("A1"));
    main.Item("DEPTH_MARKER_B_DATA", B().I32(2).F64(12.5).Str("B1").F64(-1).Str(""));
    main.Item("CURRENT_SURVEY_KEY_DATA", B().I32(7));
    main.Item("SURVEY_MAP_SIZE_DATA", B().I32(1));
    B tubing;
    tubing.F64(80.25).Str("Tubing").U8(1).I32(1).F32(4.5F).F32(3.958F).F32(12.75F).Str("tbg").F64(80);
    B casing;
    casing.F64(120).Str("Casing").U8(0).I32(1).F32(9.625F).F32(8.5F).F32(47).Str("joint").F64(100.5);
    main.Item("PIPE_STRING_DATA", B().I32(2).Raw(tubing).Raw(casing));
    main.Item("OUTER_CEMENT", B().I32(2).U8(0).U8(1).Str("good").F64(90).F64(110));
    main.Item("WELL_NAME", B().Str("Bj\xC3\xB8rn-1")).End();
    return main.Bytes();
}

QByteArray small_project::Survey()
{
    B survey;
    survey.BareItem("SURVEY_NAME_AND_KEY_DATA", B().I32(7).Str("S")).U8(0);
    survey.Str("SURVEYDATA_MAGIC_WORD").Item("SURVEY_TEXT_DATA", B().Str("text"));
    survey.Item("INTERPRETATION_ZONES_DATA", B().I32(1).F64(50).F64(60).Str("flow").Color(4, 5, 6));
    B parameters;
    parameters.I32(1234).F32(0.75F).F32(1.5F).F32(-2.5F).F32(0.25F).F32(0.125F).Str("SPIN").Str("CS");
    parameters.U8(1).F32(6.5F).U8(0).Str("C1").Str("C2");
    survey.Item("INTERPRETATION_ZONES_PARAMETERS_DATA", parameters).End();

    survey.Chain("GENERIC_LOGPASS_MAP_DATA", B().I32(1)).Raw(LogBytes("aa", "/x/a.las"));
    survey.Chain("BASE_DEPTHCHANNEL_BASIC_DATA", B().U8(1).F32(1.5F).F32(1.25F).Doubles({100, 101, 102}));

    survey.Chain("GENERIC_LOGPASS_MAP_DATA", B().I32(1)).Raw(LogBytes("bb", "/x/b.las"));
    survey.Str("TIMELOG_MAGIC_WORD").Chain("TIMELOG_BASIC_DATA", B().F64(2500.5).Doubles({0, 0.5, 1}));

    survey.Chain("DATASTORAGE_MAP_DATA", B().I32(1)).I32(4).Str("STORAGEDATACHANNEL_MAGIC_WORD");
    B storage;
    storage.Str("ST").I32(7).Str("DATA_STORAGE_IDENTIFIER").I32(4).Row("ST", "psi", "x", "y");
    survey.Chain("STORAGE_DATACHANNEL_BASIC_DATA", storage.Floats({7.5F, 8.5F}));
    survey.Chain("BASE_DEPTHCHANNEL_BASIC_DATA", B().U8(0).F32(-0.5F).F32(1).Doubles({1000, 1000.5}));
    return survey.Bytes();
}

QByteArray small_project::Window()
{
    B window;
    window.Str("COLUMNWINDOW_MAGIC_WORD");
    window.Item("TOTAL_DISPLAYED_DEPTH_DATA", B().U8(1).F64(90).F64(210));
    window.Item("COLUMN_WINDOW_BASIC_DATA", B().I32(6).F64(95).F64(105));
    window.Item("SPLITTER_WINDOW_SIZES_DATA", B().I32(6).I32(10).I32(20).I32(30).I32(40).I32(50).I32(60));
    window.End();

    window.Raw(ViewHead("VIEW_WIDGET_AUTOMATIC_DATAVIEW", 1, "GR")).Raw(Flags(1, 0, 0));
    window.Chain("INTERMEDIATE_DATAVIEW_SCALE_DATA", ScaleBytes());

    window.Raw(ViewHead("VIEW_WIDGET_DEVIATION_DATAVIEW", 0, "Dev")).Raw(Flags(0, 1, 0));

    window.Raw(ViewHead("VIEW_WIDGET_USER_DATAVIEW", 1, "User")).Raw(Flags(0, 0, 1));
    window.Chain("INTERMEDIATE_DATAVIEW_SCALE_DATA", ScaleBytes());
    B user;
    user.I32(1).I32(7).Str("aa").I32(1);
    user.I32(1).Str("fill").I32(7).Str("aa").I32(1).I32(-1).Str("").I32(-1);
    user.I32(4).I32(14).F32(33.5F).Color(11, 12, 13);
    window.Chain("USER_DATAVIEW_DATA", user);

    window.Raw(ViewHead("VIEW_WIDGET_IMAGE_DATA_VIEW", 1, "Img")).Raw(Flags(1, 1, 1));
    window.Item("IMAGE_DATAVIEW_DATA", B().I32(7).Str("aa").Str("WF").F64(-0.25).F64(8.125));
    window.Chain("COLOR_SCALE_NAME", B().Str("Rainbow"));

    window.Raw(ViewHead("VIEW_WIDGET_MF_CALIPER_DATA_VIEW", 1, "Cal")).Raw(Flags(1, 1, 0));
    window.Item("MFC_DATAVIEW_DATA", B().Str("aa").Str("CAL"));
    window.Item("MFC_DATAVIEW_3D_SCALES", B().F32(2.5F).F32(0.5F));
    window.Chain("MFC_DATAVIEW_CROSSSECTION_NOMINAL_DIAMETERS", B().F32(6.25F).F32(7));

    window.Raw(ViewHead("VIEW_WIDGET_WELL_SKETCH_VIEW", 1, "Sketch"));

    B screens;
    screens.I32(2).Str("one").I32(2).Str("GR").I32(10).Str("Sketch").I32(60).Str("two").I32(0);
    window.Item("SCREENS_DATA", screens).Chain("CURRENT_SCREEN_NAME", B().Str("one"));
    return window.Bytes();
}

QByteArray small_project::File()
{
    return Header() + Main() + Survey() + Window();
}
