// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

/// Object names of the kinds of views: the column finds views by them, and they stand in project files.
namespace view_object_names {
inline constexpr QLatin1String AUTOMATIC{"VIEW_WIDGET_AUTOMATIC_DATAVIEW"};
inline constexpr QLatin1String USER{"VIEW_WIDGET_USER_DATAVIEW"};
inline constexpr QLatin1String DEVIATION{"VIEW_WIDGET_DEVIATION_DATAVIEW"};
inline constexpr QLatin1String IMAGE{"VIEW_WIDGET_IMAGE_DATA_VIEW"};
inline constexpr QLatin1String MF_CALIPER{"VIEW_WIDGET_MF_CALIPER_DATA_VIEW"};
inline constexpr QLatin1String WELL_SKETCH{"VIEW_WIDGET_WELL_SKETCH_VIEW"};
inline constexpr QLatin1String ZONE{"VIEW_WIDGET_ZONE_VIEW"};
} // namespace view_object_names
