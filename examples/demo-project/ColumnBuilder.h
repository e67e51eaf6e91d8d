// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/project/ViewRecords.h"
#include "model/LogPassIdentifier.h"

#include <QPen>

#include <vector>

class DataContainer;

/// A curve of a user view: whose, which, how it is scaled and drawn.
struct DemoCurve
{
    LogPassIdentifier log;
    QString mnemonic;
    Interval scale; ///< left and right end of the track; reversed where the left value is the greater
    QPen pen;
};

/// Puts the record of a survey's column together, view by view from the left. A width of 0 hides a view.
class ColumnBuilder
{
public:
    ColumnBuilder(DataContainer const& container, int survey_key);

    /// Which markers are drawn across the data views added from now on.
    void ShowMarkers(bool markers_a, bool markers_b);
    /// A view that every column has.
    void AddDefaultView(QString const& object_name, QString const& name, int width);
    /// All curves of that name, a pass over the other. @throws std::runtime_error when the survey has none
    void AddAutomaticView(QString const& mnemonic, Interval const& scale, int width);
    /// @throws std::runtime_error for a curve that the log does not have
    void AddUserView(QString const& name, std::vector<DemoCurve> const& curves, int width);
    /// To the user view added last; curves by their position in it.
    void AddFill(QString const& name, int curve_a, int curve_b, FILL_AREA_METHODS method,
                 QColor const& color);
    void AddFill(QString const& name, int curve_a, float value, FILL_AREA_METHODS method,
                 QColor const& color);

    /// The present views and widths as a stored screen.
    void StoreScreen(QString const& name);
    /// The same views, shown in other widths: those named, the others hidden.
    void StoreScreen(QString const& name, std::vector<std::pair<QString, int>> const& widths);

    /// Metres. The first screen stored becomes the current one.
    [[nodiscard]] COLUMN_WINDOW_Struct Build(Interval const& shown, Interval const& total) const;

private:
    template <typename Record>
    Record& Add(QString const& object_name, QString const& name, int width);
    [[nodiscard]] HeaderRow CurveInfo(QString const& mnemonic) const;

    DataContainer const& container_;
    int survey_key_;
    bool show_markers_a_ = false;
    bool show_markers_b_ = false;
    QStringList names_;
    QString first_screen_;
    COLUMN_WINDOW_Struct column_;
};
