// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/QZ4Format.h"
#include "formats/project/QZ4LoadFile.h"
#include "model/ViewObjectNames.h"

// The records of column windows, their views and stored screens.

namespace {
using qz4::STRING_BYTES;
constexpr std::size_t IDENTIFIER_BYTES = 4 + STRING_BYTES + 4;
constexpr std::size_t SCALE_BYTES = 4 * STRING_BYTES + 4 + 8 + 17 + 1;
constexpr std::size_t FILL_BYTES = STRING_BYTES + 2 * IDENTIFIER_BYTES + 12 + 12;
/// Object name, visibility and view widget name, each at least an empty chain, and the magic word.
constexpr std::size_t VIEW_BYTES = 3;
} // namespace

COLUMN_WINDOW_Struct QZ4LoadFile::LoadColumnWindow()
{
    namespace tag = qz4::tag;
    LoadMagicWord(qz4::COLUMNWINDOW);
    COLUMN_WINDOW_Struct record;
    std::size_t view_count = 0;
    LoadChain({
        {tag::TOTAL_DEPTH,
         [&] {
             record.override_interval = LoadBool();
             record.total_displayed_interval = LoadInterval();
         }},
        {tag::COLUMN_WINDOW,
         [&] {
             view_count = LoadVectorSize(VIEW_BYTES);
             record.view_depth_interval = LoadInterval();
         }},
        {tag::SPLITTER_SIZES,
         [&] {
             record.splitter_sizes.clear();
             for (auto count = LoadVectorSize(sizeof(int)); count > 0; --count) {
                 record.splitter_sizes.append(LoadInt());
             }
         }},
    });
    record.view_count = static_cast<int>(view_count);
    record.views = LoadDataViews(view_count);
    LoadScreens(record);
    return record;
}

QString QZ4LoadFile::LoadObjectName()
{
    QString object_name;
    LoadChain({{qz4::tag::OBJECT_NAME, [&] { object_name = LoadString(); }}});
    return object_name;
}

bool QZ4LoadFile::LoadCombinedViewWidget()
{
    LoadMagicWord(qz4::COMBINEDVIEWWIDGET);
    bool is_visible = false;
    LoadChain({{qz4::tag::COMBINED_VIEW, [&] { is_visible = LoadBool(); }}});
    return is_visible;
}

std::vector<std::shared_ptr<VIEW_WIDGET_BASE_STRUCT>> QZ4LoadFile::LoadDataViews(std::size_t count)
{
    std::vector<std::shared_ptr<VIEW_WIDGET_BASE_STRUCT>> views;
    for (; count > 0; --count) {
        auto const object_name = LoadObjectName();
        bool const is_visible = LoadCombinedViewWidget();
        auto const add = [&](auto record, auto load) {
            record->object_name = object_name;
            record->is_visible = is_visible;
            (this->*load)(*record);
            views.push_back(std::move(record));
        };
        if (object_name == view_object_names::AUTOMATIC) {
            add(std::make_shared<INTERMEDIATE_DATAVIEW_STRUCT>(), &QZ4LoadFile::LoadIntermediateDataView);
        } else if (object_name == view_object_names::DEVIATION) {
            add(std::make_shared<BASE_DATAVIEW_STRUCT>(), &QZ4LoadFile::LoadBaseDataView);
        } else if (object_name == view_object_names::USER) {
            add(std::make_shared<USER_DATAVIEW_STRUCT>(), &QZ4LoadFile::LoadUserDataView);
        } else if (object_name == view_object_names::IMAGE) {
            add(std::make_shared<IMAGE_DATAVIEW_STRUCT>(), &QZ4LoadFile::LoadImageDataView);
        } else if (object_name == view_object_names::MF_CALIPER) {
            add(std::make_shared<MFC_DATAVIEW_STRUCT>(), &QZ4LoadFile::LoadMFCaliperDataview);
        } else {
            add(std::make_shared<VIEW_WIDGET_STRUCT>(), &QZ4LoadFile::LoadViewWidget);
        }
    }
    return views;
}

void QZ4LoadFile::LoadScreens(COLUMN_WINDOW_Struct& record)
{
    LoadChain({
        {qz4::tag::SCREENS,
         [&] {
             for (auto count = LoadVectorSize(STRING_BYTES + sizeof(int)); count > 0; --count) {
                 auto const name = LoadString();
                 ScreenRecord screen;
                 for (auto entries = LoadVectorSize(STRING_BYTES + sizeof(int)); entries > 0; --entries) {
                     auto view = LoadString();
                     screen.emplace_back(std::move(view), LoadInt());
                 }
                 record.screens[name] = std::move(screen);
             }
         }},
        {qz4::tag::CURRENT_SCREEN, [&] { record.current_screen_name = LoadString(); }},
    });
}

void QZ4LoadFile::LoadViewWidget(VIEW_WIDGET_STRUCT& record)
{
    LoadChain({{qz4::tag::VIEW_WIDGET, [&] { record.name = LoadString(); }}});
}

void QZ4LoadFile::LoadBaseDataView(BASE_DATAVIEW_STRUCT& record)
{
    LoadViewWidget(record);
    LoadChain({{qz4::tag::BASE_DATAVIEW, [&] {
                    record.show_markers_a = LoadBool();
                    record.show_markers_b = LoadBool();
                    record.show_baseline = LoadBool();
                }}});
}

void QZ4LoadFile::LoadIntermediateDataView(INTERMEDIATE_DATAVIEW_STRUCT& record)
{
    LoadBaseDataView(record);
    LoadChain({{qz4::tag::INTERMEDIATE_DATAVIEW, [&] {
                    record.scales.clear();
                    for (auto count = LoadVectorSize(SCALE_BYTES); count > 0; --count) {
                        auto scale = std::make_shared<ScaleItemParameters>();
                        scale->header = LoadHeaderRow();
                        scale->index = LoadInt();
                        float const low = LoadValue();
                        scale->scale = Interval(static_cast<double>(low), static_cast<double>(LoadValue()));
                        scale->pen = LoadPen();
                        scale->is_selected = LoadBool();
                        record.scales.push_back(std::move(scale));
                    }
                }}});
}

void QZ4LoadFile::LoadUserDataView(USER_DATAVIEW_STRUCT& record)
{
    LoadIntermediateDataView(record);
    LoadChain({{qz4::tag::USER_DATAVIEW, [&] {
                    record.curves.clear();
                    for (auto count = LoadVectorSize(IDENTIFIER_BYTES); count > 0; --count) {
                        record.curves.push_back(LoadDataChannelIdentifier());
                    }
                    record.fill_areas.clear();
                    for (auto count = LoadVectorSize(FILL_BYTES); count > 0; --count) {
                        FillAreaDefinition fill;
                        fill.name = LoadString();
                        fill.curve_a = LoadDataChannelIdentifier();
                        fill.curve_b = LoadDataChannelIdentifier();
                        int const method = LoadInt();
                        int const pattern = LoadInt();
                        fill.value = LoadValue();
                        fill.color = LoadColor();
                        if (method < 0 || method >= FILL_AREA_METHOD_COUNT) {
                            continue; // a fill of a later version
                        }
                        fill.method = static_cast<FILL_AREA_METHODS>(method);
                        fill.pattern = pattern >= Qt::NoBrush && pattern <= Qt::DiagCrossPattern
                                           ? static_cast<Qt::BrushStyle>(pattern)
                                           : Qt::SolidPattern;
                        record.fill_areas.push_back(fill);
                    }
                }}});
}

void QZ4LoadFile::LoadImageDataView(IMAGE_DATAVIEW_STRUCT& record)
{
    LoadBaseDataView(record);
    LoadChain({
        {qz4::tag::IMAGE_DATAVIEW,
         [&] {
             record.log_pass = LoadLogPassIdentifier();
             record.mnemonic = LoadString();
             record.scale_low = LoadDouble();
             record.scale_high = LoadDouble();
         }},
        {qz4::tag::COLOR_SCALE, [&] { record.color_scale_name = LoadString(); }},
    });
}

void QZ4LoadFile::LoadMFCaliperDataview(MFC_DATAVIEW_STRUCT& record)
{
    LoadBaseDataView(record);
    LoadChain({
        {qz4::tag::MFC_DATAVIEW,
         [&] {
             record.log_pass_hash = LoadString();
             record.caliper_mnemonic = LoadString();
         }},
        {qz4::tag::MFC_3D_SCALES,
         [&] {
             record.center_scale = static_cast<double>(LoadValue());
             record.variation_scale = static_cast<double>(LoadValue());
         }},
        {qz4::tag::MFC_DIAMETERS,
         [&] {
             record.nominal_inner_diameter = static_cast<double>(LoadValue());
             record.nominal_outer_diameter = static_cast<double>(LoadValue());
         }},
    });
}
