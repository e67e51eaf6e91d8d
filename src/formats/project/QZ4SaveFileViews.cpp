// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/QZ4Format.h"
#include "formats/project/QZ4SaveFile.h"

// The records of column windows, their views and stored screens.

void QZ4SaveFile::SaveColumnWindow(COLUMN_WINDOW_Struct const& record)
{
    SaveMagicWord(qz4::COLUMNWINDOW);
    SaveTotalDisplayedInterval(record.override_interval, record.total_displayed_interval);
    SaveItem(qz4::tag::COLUMN_WINDOW, [&] {
        SaveVectorSize(record.views.size());
        SaveInterval(record.view_depth_interval);
    });
    SaveSplitterSizes(record.splitter_sizes);
    EndChain();
    for (auto const& view : record.views) {
        SaveObjectName(view->object_name);
        SaveCombinedViewWidget(view->is_visible);
        view->SaveBody(*this);
    }
    SaveScreens(record.screens, record.current_screen_name);
}

void QZ4SaveFile::SaveTotalDisplayedInterval(bool override_interval, Interval const& total)
{
    SaveItem(qz4::tag::TOTAL_DEPTH, [&] {
        SaveBool(override_interval);
        SaveDepthInterval(total);
    });
}

void QZ4SaveFile::SaveSplitterSizes(QList<int> const& sizes)
{
    SaveItem(qz4::tag::SPLITTER_SIZES, [&] {
        SaveVectorSize(static_cast<std::size_t>(sizes.size()));
        for (int const size : sizes) {
            SaveInt(size);
        }
    });
}

void QZ4SaveFile::SaveScreens(std::map<QString, ScreenRecord> const& screens,
                              QString const& current_screen_name)
{
    SaveItem(qz4::tag::SCREENS, [&] {
        SaveVectorSize(screens.size());
        for (auto const& [name, screen] : screens) {
            SaveString(name);
            SaveVectorSize(screen.size());
            for (auto const& [view, size] : screen) {
                SaveString(view);
                SaveInt(size);
            }
        }
    });
    SaveItem(qz4::tag::CURRENT_SCREEN, [&] { SaveString(current_screen_name); });
    EndChain();
}

void QZ4SaveFile::SaveObjectName(QString const& object_name)
{
    SaveItem(qz4::tag::OBJECT_NAME, [&] { SaveString(object_name); });
    EndChain();
}

void QZ4SaveFile::SaveCombinedViewWidget(bool is_visible)
{
    SaveMagicWord(qz4::COMBINEDVIEWWIDGET);
    SaveItem(qz4::tag::COMBINED_VIEW, [&] { SaveBool(is_visible); });
    EndChain();
}

void QZ4SaveFile::SaveViewWidget(VIEW_WIDGET_STRUCT const& record)
{
    SaveItem(qz4::tag::VIEW_WIDGET, [&] { SaveString(record.name); });
    EndChain();
}

void QZ4SaveFile::SaveBaseDataView(BASE_DATAVIEW_STRUCT const& record)
{
    SaveViewWidget(record);
    SaveItem(qz4::tag::BASE_DATAVIEW, [&] {
        SaveBool(record.show_markers_a);
        SaveBool(record.show_markers_b);
        SaveBool(record.show_baseline);
    });
    EndChain();
}

void QZ4SaveFile::SaveIntermediateDataView(INTERMEDIATE_DATAVIEW_STRUCT const& record)
{
    SaveBaseDataView(record);
    SaveItem(qz4::tag::INTERMEDIATE_DATAVIEW, [&] {
        SaveVectorSize(record.scales.size());
        for (auto const& scale : record.scales) {
            SaveHeaderRow(scale->header);
            SaveInt(scale->index);
            SaveValue(static_cast<float>(scale->scale.lower));
            SaveValue(static_cast<float>(scale->scale.upper));
            SavePen(scale->pen);
            SaveBool(scale->is_selected);
        }
    });
    EndChain();
}

void QZ4SaveFile::SaveUserDataView(USER_DATAVIEW_STRUCT const& record)
{
    SaveIntermediateDataView(record);
    SaveItem(qz4::tag::USER_DATAVIEW, [&] {
        SaveVectorSize(record.curves.size());
        for (auto const& curve : record.curves) {
            SaveDataChannelIdentifier(curve);
        }
        SaveVectorSize(record.fill_areas.size());
        for (auto const& fill : record.fill_areas) {
            SaveString(fill.name);
            SaveDataChannelIdentifier(fill.curve_a);
            SaveDataChannelIdentifier(fill.curve_b);
            SaveInt(static_cast<std::int32_t>(fill.method));
            SaveInt(static_cast<std::int32_t>(fill.pattern));
            SaveValue(fill.value);
            SaveColor(fill.color);
        }
    });
    EndChain();
}

void QZ4SaveFile::SaveImageDataView(IMAGE_DATAVIEW_STRUCT const& record)
{
    SaveBaseDataView(record);
    SaveItem(qz4::tag::IMAGE_DATAVIEW, [&] {
        SaveLogPassIdentifier(record.log_pass);
        SaveString(record.mnemonic);
        SaveDouble(record.scale_low);
        SaveDouble(record.scale_high);
    });
    SaveItem(qz4::tag::COLOR_SCALE, [&] { SaveString(record.color_scale_name); });
    EndChain();
}

void QZ4SaveFile::SaveMFCaliperDataview(MFC_DATAVIEW_STRUCT const& record)
{
    SaveBaseDataView(record);
    SaveItem(qz4::tag::MFC_DATAVIEW, [&] {
        SaveString(record.log_pass_hash);
        SaveString(record.caliper_mnemonic);
    });
    SaveItem(qz4::tag::MFC_3D_SCALES, [&] {
        SaveValue(static_cast<float>(record.center_scale));
        SaveValue(static_cast<float>(record.variation_scale));
    });
    SaveItem(qz4::tag::MFC_DIAMETERS, [&] {
        SaveValue(static_cast<float>(record.nominal_inner_diameter));
        SaveValue(static_cast<float>(record.nominal_outer_diameter));
    });
    EndChain();
}

// Each record writes itself by the function of its kind. Here, so that records do not know the file.

void VIEW_WIDGET_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveViewWidget(*this);
}

void BASE_DATAVIEW_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveBaseDataView(*this);
}

void INTERMEDIATE_DATAVIEW_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveIntermediateDataView(*this);
}

void USER_DATAVIEW_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveUserDataView(*this);
}

void IMAGE_DATAVIEW_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveImageDataView(*this);
}

void MFC_DATAVIEW_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveMFCaliperDataview(*this);
}
