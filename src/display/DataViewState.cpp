// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/UserDataView.h"
#include "formats/project/ViewRecords.h"

// How data views hand themselves to and take themselves from the records of a project file.

void BaseDataView::WriteState_BaseDataView(BASE_DATAVIEW_STRUCT& record) const
{
    record.object_name = objectName();
    record.name = windowTitle();
    record.show_markers_a = show_markers_a_;
    record.show_markers_b = show_markers_b_;
    record.show_baseline = show_baseline_;
}

void BaseDataView::RestoreState_BaseDataView(BASE_DATAVIEW_STRUCT const& record)
{
    SetShowMarkersA(record.show_markers_a);
    SetShowMarkersB(record.show_markers_b);
    SetShowBaseline(record.show_baseline);
}

void IntermediateDataView::WriteState_IntermediateDataView(INTERMEDIATE_DATAVIEW_STRUCT& record) const
{
    WriteState_BaseDataView(record);
    record.scales.clear();
    for (auto const& scale : GetScales()) {
        // A copy: the file is written while the view may go on.
        auto copy = std::make_shared<ScaleItemParameters>(*scale);
        copy->is_selected = selected_scale_ && selected_scale_->index == scale->index;
        record.scales.push_back(std::move(copy));
    }
}

void IntermediateDataView::RestoreState_IntermediateDataView(INTERMEDIATE_DATAVIEW_STRUCT const& record)
{
    RestoreState_BaseDataView(record);
    QSignalBlocker const no_undo(this);
    for (auto const& stored : record.scales) {
        if (auto* curve = GetCurveAt(stored->index)) {
            SetScales(*curve, stored->scale);
            curve->SetCurvePen(stored->pen);
            curve->GetScaleItemParameters()->is_selected = stored->is_selected;
        }
    }
}

void UserDataView::WriteState_UserDataView(USER_DATAVIEW_STRUCT& record) const
{
    WriteState_IntermediateDataView(record);
    record.curves = GetDataChannelIDs();
    record.fill_areas = fill_areas_;
}

void UserDataView::RestoreState_UserDataView(USER_DATAVIEW_STRUCT const& record)
{
    RestoreState_IntermediateDataView(record);
    SetFillAreaDefinitions(record.fill_areas);
}
