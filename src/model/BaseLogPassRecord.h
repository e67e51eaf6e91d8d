// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/LASHeaderSection.h"
#include "model/LogPassProperties.h"

#include <QList>
#include <QString>

/// What a project file says of any log besides its samples and its depth or time axis.
struct BASE_LOGPASS_STRUCT
{
    LogPassProperties properties;
    LASHeaderSection version_header;
    LASHeaderSection well_info_header;
    LASHeaderSection curve_info_header;
    LASHeaderSection parameter_info_header;
    LASHeaderSection other_header;
    QString file_path_and_name;
    QList<QString> array_mnems;
};
