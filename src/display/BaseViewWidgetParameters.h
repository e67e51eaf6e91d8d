// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

/// The vertical model of a column: which depths are shown over how many pixels, and the mouse modes. The
/// ColumnWindow owns it and is its only writer; every view reads it while painting. Depths in metres.
class BaseViewWidgetParameters
{
public:
    /// The range the scroll bar spans.
    [[nodiscard]] Interval const& GetTotalDisplayedDepthInterval() const { return total_; }
    /// Stores the total; the view interval stays when it is valid and inside, otherwise it becomes the total.
    void SetTotalDisplayedDepthInterval(Interval const& total);

    /// What is on screen now.
    [[nodiscard]] Interval const& GetViewDepthMetric() const { return view_; }
    void SetViewDepthMetric(Interval const& view) { view_ = view; }

    [[nodiscard]] int GetVisibleHeightPixels() const { return visible_height_pixels_; }
    void SetVisibleHeightPixels(int height) { visible_height_pixels_ = height; }

    [[nodiscard]] bool GetVerticalZoomChecked() const { return vertical_zoom_; }
    void SetVerticalZoomChecked(bool checked) { vertical_zoom_ = checked; }
    [[nodiscard]] bool GetHorizontalZoomChecked() const { return horizontal_zoom_; }
    void SetHorizontalZoomChecked(bool checked) { horizontal_zoom_ = checked; }
    [[nodiscard]] bool GetInterpretationZonesDefinitionChecked() const { return interpretation_zones_; }
    void SetInterpretationZonesDefinitionChecked(bool checked) { interpretation_zones_ = checked; }
    [[nodiscard]] bool GetShiftChecked() const { return shift_; }
    void SetShiftChecked(bool checked) { shift_ = checked; }
    [[nodiscard]] bool GetStretchChecked() const { return stretch_; }
    void SetStretchChecked(bool checked) { stretch_ = checked; }

    [[nodiscard]] float GetStretchAnchorDepth() const { return stretch_anchor_depth_; }
    void SetStretchAnchorDepth(float depth) { stretch_anchor_depth_ = depth; }

    /// Forces the view inside the total, then widens it about its centre so that one inch of screen never
    /// shows less than 5 cm; the widened view may stick out of the total.
    void CheckZoomLevel();

private:
    Interval total_;
    Interval view_;
    int visible_height_pixels_ = 0;
    bool vertical_zoom_ = false;
    bool horizontal_zoom_ = false;
    bool interpretation_zones_ = false;
    bool shift_ = false;
    bool stretch_ = false;
    float stretch_anchor_depth_ = 0;
};
