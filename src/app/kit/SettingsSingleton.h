// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/SeparatorSelection.h"
#include "app/kit/SettingsKeys.h"

#include <QByteArray>
#include <QChar>
#include <QColor>
#include <QLocale>
#include <QMap>
#include <QString>
#include <QStringList>

class QSettings;

/// All user preferences of the process (keys: SettingsKeys.h), read from the toolkit's QSettings store at the
/// first Instance() and written back once, by the destructor at exit; a crash loses the changes of that run.
/// Getters may be called from worker threads, setters on the main thread only (there is no lock).
class SettingsSingleton
{
public:
    [[nodiscard]] static SettingsSingleton& Instance();

    SettingsSingleton(SettingsSingleton const&) = delete;
    SettingsSingleton& operator=(SettingsSingleton const&) = delete;

    /// Empties the store and loads the defaults.
    void ClearAllSettings();
    void LoadSettings();

    /// Derived from the selection; an unknown selection gives "," and "x".
    [[nodiscard]] QChar GetDecimalSeparator() const;
    [[nodiscard]] QChar GetThousandsSeparator() const;
    [[nodiscard]] Separator_Selection GetSeparatorSelection() const { return separator_selection_; }
    /// Stores the selection, builds its locale and makes it the application's default.
    void SetSeparatorSelection(Separator_Selection selection);
    /// The locale of a selection; of an unknown one, the default-constructed locale.
    [[nodiscard]] static QLocale ConvertSeparatorSelectionToLocale(Separator_Selection selection);
    [[nodiscard]] QLocale const& GetLocale() const { return locale_; }

    [[nodiscard]] bool IsMetricDepth() const { return is_metric_depth_; }
    void SetMetricDepth(bool is_metric) { is_metric_depth_ = is_metric; }
    /// "m" or "ft".
    [[nodiscard]] QString GetDepthUnit() const;

    [[nodiscard]] QString GetMathEquation() const { return math_equation_; }
    void SetMathEquation(QString const& equation) { math_equation_ = equation; }
    [[nodiscard]] QString GetLasPath() const { return las_path_; }
    void SetLasPath(QString const& path) { las_path_ = path; }
    [[nodiscard]] QString GetQz4Path() const { return qz4_path_; }
    void SetQz4Path(QString const& path) { qz4_path_ = path; }
    [[nodiscard]] QString GetDlisPath() const { return dlis_path_; }
    void SetDlisPath(QString const& path) { dlis_path_ = path; }
    [[nodiscard]] QString GetSurveyImportPath() const { return survey_import_path_; }
    void SetSurveyImportPath(QString const& path) { survey_import_path_ = path; }
    /// Full paths, newest first.
    [[nodiscard]] QStringList GetRecentFiles() const { return recent_files_; }
    void SetRecentFiles(QStringList const& files) { recent_files_ = files; }
    [[nodiscard]] QByteArray GetFrameGeometry() const { return frame_geometry_; }
    void SetFrameGeometry(QByteArray const& geometry) { frame_geometry_ = geometry; }
    [[nodiscard]] bool GetIsMaximized() const { return is_maximized_; }
    void SetIsMaximized(bool is_maximized) { is_maximized_ = is_maximized; }
    [[nodiscard]] bool GetAutomaticCheckForUpdates() const { return automatic_check_for_updates_; }
    void SetAutomaticCheckForUpdates(bool check) { automatic_check_for_updates_ = check; }
    /// Prefixes by which a caliper's radius channels are recognised, without regard to case.
    [[nodiscard]] QStringList GetMfcMnems() const { return mfc_mnems_; }
    [[nodiscard]] static QStringList GetDefaultMfcMnems();
    void SetMfcMnems(QStringList const& mnems) { mfc_mnems_ = mnems; }
    /// Remembered channel choices of the DLIS conversion, per key.
    [[nodiscard]] QMap<QString, QStringList> GetDlisChannelSelection() const
    {
        return dlis_channel_selection_;
    }
    void SetDlisChannelSelection(QMap<QString, QStringList> const& selection)
    {
        dlis_channel_selection_ = selection;
    }
    [[nodiscard]] bool GetDisplayMfcWindows() const { return display_mfc_windows_; }
    void SetDisplayMfcWindows(bool display) { display_mfc_windows_ = display; }
    [[nodiscard]] QColor GetBackgroundColor() const { return background_color_; }
    void SetBackgroundColor(QColor const& color) { background_color_ = color; }
    [[nodiscard]] QString GetSplitterHandleColor() const { return splitter_handle_color_; }
    void SetSplitterHandleColor(QString const& color) { splitter_handle_color_ = color; }
    [[nodiscard]] bool GetOverrideDefaultSplitterHandleColor() const
    {
        return override_splitter_handle_color_;
    }
    void SetOverrideDefaultSplitterHandleColor(bool override_color)
    {
        override_splitter_handle_color_ = override_color;
    }
    [[nodiscard]] QString GetWellDetailsJsonImportDataPath() const { return well_details_json_path_; }
    void SetWellDetailsJsonImportDataPath(QString const& path) { well_details_json_path_ = path; }

private:
    SettingsSingleton();
    ~SettingsSingleton();

    void LoadDlisChannelSelection(QSettings const& settings);
    void SaveDlisChannelSelection(QSettings& settings) const;

    QChar stored_decimal_separator_;
    QChar stored_thousands_separator_;
    bool is_metric_depth_ = false;
    QString math_equation_;
    QString las_path_;
    QString qz4_path_;
    QString dlis_path_;
    QString survey_import_path_;
    Separator_Selection separator_selection_ = US;
    QLocale locale_;
    QStringList recent_files_;
    QByteArray frame_geometry_;
    bool automatic_check_for_updates_ = true;
    bool is_maximized_ = true;
    QStringList mfc_mnems_;
    bool display_mfc_windows_ = false;
    QColor background_color_;
    QString splitter_handle_color_;
    bool override_splitter_handle_color_ = false;
    QString well_details_json_path_;
    QMap<QString, QStringList> dlis_channel_selection_;
};
