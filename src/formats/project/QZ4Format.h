// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

/// Words and tags of the project file. The file is little-endian without padding, written as it stands in
/// memory.
namespace qz4 {
static_assert(std::endian::native == std::endian::little, "the file is written as it stands in memory");
static_assert(sizeof(float) == 4 && sizeof(double) == 8 && sizeof(int) == 4);

inline constexpr char FILE_MAGIC_WORD[] = "FILEFORMAT_MAGIC_WORD"; // 21 bytes, without length
inline constexpr int VERSION = 3;
/// Least bytes of a string, for the check of counts before anything is allocated.
inline constexpr std::size_t STRING_BYTES = 2;

inline constexpr char MAIN[] = "MAIN";
inline constexpr char SURVEYDATA[] = "SURVEYDATA_MAGIC_WORD";
inline constexpr char TIMELOG[] = "TIMELOG_MAGIC_WORD";
inline constexpr char STORAGEDATACHANNEL[] = "STORAGEDATACHANNEL_MAGIC_WORD";
inline constexpr char COLUMNWINDOW[] = "COLUMNWINDOW_MAGIC_WORD";
inline constexpr char COMBINEDVIEWWIDGET[] = "COMBINEDVIEWWIDGET_MAGIC_WORD";

namespace tag {
inline constexpr char PERFORATIONS[] = "PERFORATIONS_DATA";
inline constexpr char PRODUCTION_ZONES[] = "PRODUCTION_ZONES_DATA"; // older
inline constexpr char ZONE_TRACKS[] = "ZONE_TRACK_DATA";
inline constexpr char TRAJECTORY[] = "TRAJECTORY_SURVEY_DATA"; // older
inline constexpr char TRAJECTORY_TIE_IN[] = "TRAJECTORY_SURVEY_DATA_INCL_TIE_IN";
inline constexpr char WELL_COMPONENTS[] = "WELL_COMPONENTS_DATA";
inline constexpr char MARKERS_A[] = "DEPTH_MARKER_A_DATA";
inline constexpr char MARKERS_B[] = "DEPTH_MARKER_B_DATA";
inline constexpr char CURRENT_SURVEY_KEY[] = "CURRENT_SURVEY_KEY_DATA";
inline constexpr char SURVEY_MAP_SIZE[] = "SURVEY_MAP_SIZE_DATA";
inline constexpr char PIPES[] = "PIPES_DATA"; // older
inline constexpr char PIPE_STRINGS[] = "PIPE_STRING_DATA";
inline constexpr char OUTER_CEMENT[] = "OUTER_CEMENT";
inline constexpr char WELL_NAME[] = "WELL_NAME";
inline constexpr char SURVEY_NAME_AND_KEY[] = "SURVEY_NAME_AND_KEY_DATA";
inline constexpr char SURVEY_TEXT[] = "SURVEY_TEXT_DATA";
inline constexpr char INTERPRETATION_ZONES[] = "INTERPRETATION_ZONES_DATA";
inline constexpr char INTERPRETATION_PARAMETERS[] = "INTERPRETATION_ZONES_PARAMETERS_DATA";
inline constexpr char LOGPASS_MAP[] = "GENERIC_LOGPASS_MAP_DATA";
inline constexpr char BASELOG[] = "BASELOG_BASIC_DATA";
inline constexpr char ARRAY_MNEMS[] = "LOGFILE_ARRAY_MNEMS";
inline constexpr char GENERIC_LOG[] = "GENERIC_LOG_BASIC_DATA";
inline constexpr char BASE_DEPTHCHANNEL[] = "BASE_DEPTHCHANNEL_BASIC_DATA";
inline constexpr char TIMELOG[] = "TIMELOG_BASIC_DATA";
inline constexpr char DATASTORAGE_MAP[] = "DATASTORAGE_MAP_DATA";
inline constexpr char STORAGE_DATACHANNEL[] = "STORAGE_DATACHANNEL_BASIC_DATA";
inline constexpr char TOTAL_DEPTH[] = "TOTAL_DISPLAYED_DEPTH_DATA";
inline constexpr char COLUMN_WINDOW[] = "COLUMN_WINDOW_BASIC_DATA";
inline constexpr char SPLITTER_SIZES[] = "SPLITTER_WINDOW_SIZES_DATA";
inline constexpr char SCREENS[] = "SCREENS_DATA";
inline constexpr char CURRENT_SCREEN[] = "CURRENT_SCREEN_NAME";
inline constexpr char OBJECT_NAME[] = "BASIC_DATAVIEW_DATA";
inline constexpr char COMBINED_VIEW[] = "COMBINED_VIEW_WIDGET_DATA";
inline constexpr char VIEW_WIDGET[] = "VIEW_WIDGET_DATA";
inline constexpr char BASE_DATAVIEW[] = "BASE_DATAVIEW_BASIC_DATA";
inline constexpr char INTERMEDIATE_DATAVIEW[] = "INTERMEDIATE_DATAVIEW_SCALE_DATA";
inline constexpr char USER_DATAVIEW[] = "USER_DATAVIEW_DATA";
inline constexpr char IMAGE_DATAVIEW[] = "IMAGE_DATAVIEW_DATA";
inline constexpr char COLOR_SCALE[] = "COLOR_SCALE_NAME";
inline constexpr char MFC_DATAVIEW[] = "MFC_DATAVIEW_DATA";
inline constexpr char MFC_3D_SCALES[] = "MFC_DATAVIEW_3D_SCALES";
inline constexpr char MFC_DIAMETERS[] = "MFC_DATAVIEW_CROSSSECTION_NOMINAL_DIAMETERS";
} // namespace tag
} // namespace qz4
