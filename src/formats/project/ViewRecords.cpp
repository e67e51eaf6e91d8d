// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/ViewRecords.h"

void VIEW_WIDGET_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreViewWidget(*this);
}

void BASE_DATAVIEW_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreDeviationDataView(*this);
}

void INTERMEDIATE_DATAVIEW_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreAutomaticDataView(*this);
}

void USER_DATAVIEW_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreUserDataView(*this);
}

void IMAGE_DATAVIEW_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreImageDataView(*this);
}

void MFC_DATAVIEW_STRUCT::CreateViewWidget(ViewRestorer& restorer) const
{
    restorer.CreateAndRestoreMfcDataView(*this);
}
