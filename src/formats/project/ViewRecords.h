// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/DataChannelIdentifier.h"
#include "model/FillAreaDefinition.h"
#include "model/ScaleItemParameters.h"

#include <QList>
#include <QString>

#include <array>
#include <map>
#include <memory>
#include <utility>
#include <vector>

class QZ4SaveFile;
struct BASE_DATAVIEW_STRUCT;
struct INTERMEDIATE_DATAVIEW_STRUCT;
struct USER_DATAVIEW_STRUCT;
struct IMAGE_DATAVIEW_STRUCT;
struct MFC_DATAVIEW_STRUCT;
struct VIEW_WIDGET_STRUCT;

/// Rebuilds views from their records; each record calls the function of its kind.
class ViewRestorer
{
public:
    virtual ~ViewRestorer() = default;
    virtual void CreateAndRestoreAutomaticDataView(INTERMEDIATE_DATAVIEW_STRUCT const& record) = 0;
    virtual void CreateAndRestoreDeviationDataView(BASE_DATAVIEW_STRUCT const& record) = 0;
    virtual void CreateAndRestoreUserDataView(USER_DATAVIEW_STRUCT const& record) = 0;
    virtual void CreateAndRestoreImageDataView(IMAGE_DATAVIEW_STRUCT const& record) = 0;
    virtual void CreateAndRestoreMfcDataView(MFC_DATAVIEW_STRUCT const& record) = 0;
    virtual void CreateAndRestoreViewWidget(VIEW_WIDGET_STRUCT const& record) = 0;
};

/// A view as it crosses between the project file and the column window. The file code knows no widget, and no
/// widget knows the file.
struct VIEW_WIDGET_BASE_STRUCT
{
    QString object_name; ///< kind of the inner view
    bool is_visible = false;

    virtual ~VIEW_WIDGET_BASE_STRUCT() = default;
    virtual void CreateViewWidget(ViewRestorer& restorer) const = 0;
    /// Writes what follows the object name and the visibility; defined with the file.
    virtual void SaveBody(QZ4SaveFile& file) const = 0;
};

struct VIEW_WIDGET_STRUCT : VIEW_WIDGET_BASE_STRUCT
{
    QString name;

    void CreateViewWidget(ViewRestorer& restorer) const override;
    void SaveBody(QZ4SaveFile& file) const override;
};

struct BASE_DATAVIEW_STRUCT : VIEW_WIDGET_STRUCT
{
    bool show_markers_a = false;
    bool show_markers_b = false;
    bool show_baseline = true;

    void CreateViewWidget(ViewRestorer& restorer) const override;
    void SaveBody(QZ4SaveFile& file) const override;
};

struct INTERMEDIATE_DATAVIEW_STRUCT : BASE_DATAVIEW_STRUCT
{
    std::vector<std::shared_ptr<ScaleItemParameters>> scales;

    void CreateViewWidget(ViewRestorer& restorer) const override;
    void SaveBody(QZ4SaveFile& file) const override;
};

struct USER_DATAVIEW_STRUCT : INTERMEDIATE_DATAVIEW_STRUCT
{
    std::vector<DataChannelIdentifier> curves;
    std::vector<FillAreaDefinition> fill_areas;

    void CreateViewWidget(ViewRestorer& restorer) const override;
    void SaveBody(QZ4SaveFile& file) const override;
};

struct IMAGE_DATAVIEW_STRUCT : BASE_DATAVIEW_STRUCT
{
    LogPassIdentifier log_pass;
    QString mnemonic;
    double scale_low = 0;
    double scale_high = 0;
    QString color_scale_name;

    void CreateViewWidget(ViewRestorer& restorer) const override;
    void SaveBody(QZ4SaveFile& file) const override;
};

struct MFC_DATAVIEW_STRUCT : BASE_DATAVIEW_STRUCT
{
    QString log_pass_hash;
    QString caliper_mnemonic;
    double center_scale = 1;    ///< of the 3D window
    double variation_scale = 1; ///< of the 3D window
    /// Diameters of the cross section window, inches: inner, outer. 32-bit in the file.
    double nominal_inner_diameter = static_cast<double>(3.958F);
    double nominal_outer_diameter = 4.5;

    void CreateViewWidget(ViewRestorer& restorer) const override;
    void SaveBody(QZ4SaveFile& file) const override;
};

/// Names and widths of the views of a stored screen, in splitter order.
using ScreenRecord = std::vector<std::pair<QString, int>>;

/// A column window as it crosses between the project file and the main frame. Depths in metres.
struct COLUMN_WINDOW_Struct
{
    Interval view_depth_interval{0, 0};
    int view_count = 0;
    bool override_interval = false;
    Interval total_displayed_interval{0, 0};
    QList<int> splitter_sizes;
    std::vector<std::shared_ptr<VIEW_WIDGET_BASE_STRUCT>> views;
    std::map<QString, ScreenRecord> screens;
    QString current_screen_name;
};
