// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/UserDataView.h"
#include "formats/project/ViewRecords.h"

// How data views hand themselves to and take themselves from the records of a project file.

BASE_DATAVIEW_STRUCT BaseDataView::WriteState_BaseDataView() const
{
    BASE_DATAVIEW_STRUCT record;
    record.object_name = objectName();
    record.name = windowTitle();
    record.show_markers_a = show_markers_a_;
    record.show_markers_b = show_markers_b_;
    record.show_baseline = show_baseline_;
    return record;
}

void BaseDataView::RestoreState_BaseDataView(BASE_DATAVIEW_STRUCT const& record)
{
    SetShowMarkersA(record.show_markers_a);
    SetShowMarkersB(record.show_markers_b);
    SetShowBaseline(record.show_baseline);
}

INTERMEDIATE_DATAVIEW_STRUCT IntermediateDataView::WriteState_IntermediateDataView() const
{
    INTERMEDIATE_DATAVIEW_STRUCT record;
    static_cast<BASE_DATAVIEW_STRUCT&>(record) = WriteState_BaseDataView();
    for (auto const& scale : GetScales()) {
        // A copy: the file is written while the view may go on.
        auto copy = std::make_shared<ScaleItemParameters>(*scale);
        copy->is_selected = selected_scale_ && selected_scale_->index == scale->index;
        record.scales.push_back(std::move(copy));
    }
    return record;
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

USER_DATAVIEW_STRUCT UserDataView::WriteState_UserDataView() const
{
    USER_DATAVIEW_STRUCT record;
    static_cast<INTERMEDIATE_DATAVIEW_STRUCT&>(record) = WriteState_IntermediateDataView();
    depth_curves_.WriteState(record);
    record.fill_areas = fill_areas_;
    return record;
}

void UserDataView::RestoreState_UserDataView(USER_DATAVIEW_STRUCT const& record)
{
    RestoreState_BaseDataView(record);
    depth_curves_.RestoreState(record);
    SetFillAreaDefinitions(record.fill_areas);
    for (auto const& scale : GetScales()) {
        if (scale->is_selected) {
            SetSelectedScaleCurveInfo(scale); // instead of the first curve, which was selected on its arrival
        }
    }
}
