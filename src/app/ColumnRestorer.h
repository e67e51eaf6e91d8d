// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/project/ViewRecords.h"

#include <QList>
#include <QStringList>

#include <utility>
#include <vector>

class AutomaticDataView;
class BaseCombinedViewWidget;
class ColumnWindow;
class ProjectAccess;

/// Rebuilds the views of one column from the records of a project file. Views that every column has (depth,
/// zones, deviation, sketch) are used again, never doubled. Main thread only.
class ColumnRestorer final : public ViewRestorer
{
public:
    ColumnRestorer(ColumnWindow& column, ProjectAccess const& project) : column_(column), project_(project) {}

    /// Returns a warning for each view that could not be made; the rest is restored.
    [[nodiscard]] QStringList RestoreColumnWindow(COLUMN_WINDOW_Struct const& record);

    void CreateAndRestoreAutomaticDataView(INTERMEDIATE_DATAVIEW_STRUCT const& record) override;
    void CreateAndRestoreDeviationDataView(BASE_DATAVIEW_STRUCT const& record) override;
    void CreateAndRestoreUserDataView(USER_DATAVIEW_STRUCT const& record) override;
    void CreateAndRestoreImageDataView(IMAGE_DATAVIEW_STRUCT const& record) override;
    void CreateAndRestoreMfcDataView(MFC_DATAVIEW_STRUCT const& record) override;
    void CreateAndRestoreViewWidget(VIEW_WIDGET_STRUCT const& record) override;

private:
    /// The next view of the record's kind that the column has of itself, under the record's name; null
    /// without one.
    BaseCombinedViewWidget* TakeOwnView(VIEW_WIDGET_STRUCT const& record);
    /// The channel that gives an automatic view its header comes first: the passes are in another order now
    /// than when they were imported.
    void AddHeadChannel(AutomaticDataView& view, INTERMEDIATE_DATAVIEW_STRUCT const& record);
    /// Gives the survey's channels to the automatic views, and these their state.
    void RestoreAutomaticDataViews();

    ColumnWindow& column_;
    ProjectAccess const& project_;
    QList<BaseCombinedViewWidget*> order_;
    std::vector<std::pair<AutomaticDataView*, INTERMEDIATE_DATAVIEW_STRUCT const*>> automatic_views_;
    QStringList warnings_;
    int index_ = 0; ///< of the record in work
};
