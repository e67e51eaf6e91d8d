// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// Keys of the persistent settings, in the order in which they are read.
namespace settings_keys {
inline constexpr char const* DECIMAL_SEPARATOR_KEY = "decimal_separator";
inline constexpr char const* THOUSANDS_SEPARATOR_KEY = "thousands_separator";
inline constexpr char const* DEPTH_UNIT_KEY = "depth_unit";
inline constexpr char const* MATH_EQUATION_KEY = "math_equation";
inline constexpr char const* LAS_PATH_KEY = "las_path";
inline constexpr char const* QZ4_PATH_KEY = "qz4_path";
inline constexpr char const* DLIS_PATH_KEY = "dlis_path";
inline constexpr char const* SURVEY_IMPORT_PATH_KEY = "survey_import_path";
inline constexpr char const* SEPARATOR_SELECTION = "separator_selection";
inline constexpr char const* RECENT_FILES = "recent_files";
inline constexpr char const* FRAME_GEOMETRY = "frame_geometry";
inline constexpr char const* AUTOMATIC_CHECK_FOR_UPDATES = "automatic_check_for_updates";
inline constexpr char const* IS_MAXIMIZED = "is_maximized";
inline constexpr char const* MFC_MNEMS = "mfc_mnems";
inline constexpr char const* DISPLAY_MFC_WINDOWS_AUTOMATICALLY = "display_mfc_windows_automatically";
inline constexpr char const* BACKGROUND_COLOR = "background_color";
inline constexpr char const* SPLITTER_HANDLE_COLOR = "splitter_handle_color";
inline constexpr char const* OVERRIDE_DEFAULT_SPLITTER_HANDLE_COLOR =
    "override_default_splitter_handle_color";
inline constexpr char const* WELL_DETAILS_JSON_IMPORT_DATA_PATH = "well_details_json_data_import_path";
inline constexpr char const* DLIS_CHANNEL_SELECTION = "dlis_channel_selection";
} // namespace settings_keys
