// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/ViewRecords.h"

#include "formats/project/QZ4SaveFile.h"

void VIEW_WIDGET_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreViewWidget(*this);
}

void VIEW_WIDGET_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveViewWidget(*this);
}

void BASE_DATAVIEW_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreDeviationDataView(*this);
}

void BASE_DATAVIEW_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveBaseDataView(*this);
}

void INTERMEDIATE_DATAVIEW_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreAutomaticDataView(*this);
}

void INTERMEDIATE_DATAVIEW_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveIntermediateDataView(*this);
}

void USER_DATAVIEW_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreUserDataView(*this);
}

void USER_DATAVIEW_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveUserDataView(*this);
}

void IMAGE_DATAVIEW_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreImageDataView(*this);
}

void IMAGE_DATAVIEW_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveImageDataView(*this);
}

void MFC_DATAVIEW_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreMfcDataView(*this);
}

void MFC_DATAVIEW_STRUCT::SaveBody(QZ4SaveFile& file) const
{
    file.SaveMFCaliperDataview(*this);
}
