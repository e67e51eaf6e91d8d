// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/SettingsSingleton.h"

#include <QSettings>
#include <QVariantMap>

using namespace settings_keys;

SettingsSingleton& SettingsSingleton::Instance()
{
    static SettingsSingleton instance;
    return instance;
}

// The store's own static objects are made in here and so outlive this object, which writes to the store last
// thing.
SettingsSingleton::SettingsSingleton()
{
    LoadSettings();
}

SettingsSingleton::~SettingsSingleton()
{
    QSettings settings;
    settings.setValue(DEPTH_UNIT_KEY, is_metric_depth_);
    settings.setValue(MATH_EQUATION_KEY, math_equation_);
    settings.setValue(LAS_PATH_KEY, las_path_);
    settings.setValue(QZ4_PATH_KEY, qz4_path_);
    settings.setValue(DLIS_PATH_KEY, dlis_path_);
    settings.setValue(SURVEY_IMPORT_PATH_KEY, survey_import_path_);
    settings.setValue(SEPARATOR_SELECTION, static_cast<int>(separator_selection_));
    settings.setValue(RECENT_FILES, recent_files_);
    settings.setValue(FRAME_GEOMETRY, frame_geometry_);
    settings.setValue(AUTOMATIC_CHECK_FOR_UPDATES, automatic_check_for_updates_);
    settings.setValue(IS_MAXIMIZED, is_maximized_);
    settings.setValue(MFC_MNEMS, mfc_mnems_);
    settings.setValue(DISPLAY_MFC_WINDOWS_AUTOMATICALLY, display_mfc_windows_);
    settings.setValue(BACKGROUND_COLOR, background_color_);
    settings.setValue(SPLITTER_HANDLE_COLOR, splitter_handle_color_);
    settings.setValue(OVERRIDE_DEFAULT_SPLITTER_HANDLE_COLOR, override_splitter_handle_color_);
    settings.setValue(WELL_DETAILS_JSON_IMPORT_DATA_PATH, well_details_json_path_);
    SaveDlisChannelSelection(settings);
}

void SettingsSingleton::ClearAllSettings()
{
    {
        QSettings settings;
        settings.clear();
    }
    LoadSettings();
}

void SettingsSingleton::LoadSettings()
{
    QSettings const settings;
    QString const here = QStringLiteral(".");

    stored_decimal_separator_ = settings.value(DECIMAL_SEPARATOR_KEY, QChar(',')).toChar();
    stored_thousands_separator_ = settings.value(THOUSANDS_SEPARATOR_KEY, QChar('.')).toChar();
    is_metric_depth_ = settings.value(DEPTH_UNIT_KEY, false).toBool();
    math_equation_ = settings.value(MATH_EQUATION_KEY, QStringLiteral("A+B")).toString();
    las_path_ = settings.value(LAS_PATH_KEY, here).toString();
    qz4_path_ = settings.value(QZ4_PATH_KEY, here).toString();
    dlis_path_ = settings.value(DLIS_PATH_KEY, here).toString();
    survey_import_path_ = settings.value(SURVEY_IMPORT_PATH_KEY, here).toString();
    SetSeparatorSelection(static_cast<Separator_Selection>(settings.value(SEPARATOR_SELECTION, 0).toInt()));
    recent_files_ = settings.value(RECENT_FILES).toStringList();
    frame_geometry_ = settings.value(FRAME_GEOMETRY).toByteArray();
    automatic_check_for_updates_ = settings.value(AUTOMATIC_CHECK_FOR_UPDATES, true).toBool();
    is_maximized_ = settings.value(IS_MAXIMIZED, true).toBool();
    mfc_mnems_ = settings.value(MFC_MNEMS, GetDefaultMfcMnems()).toStringList();
    display_mfc_windows_ = settings.value(DISPLAY_MFC_WINDOWS_AUTOMATICALLY, false).toBool();
    background_color_ = settings.value(BACKGROUND_COLOR, QColor(Qt::black)).value<QColor>();
    if (!background_color_.isValid()) {
        background_color_ = Qt::black;
    }
    splitter_handle_color_ = settings.value(SPLITTER_HANDLE_COLOR, QStringLiteral("000000")).toString();
    override_splitter_handle_color_ = settings.value(OVERRIDE_DEFAULT_SPLITTER_HANDLE_COLOR, false).toBool();
    well_details_json_path_ = settings.value(WELL_DETAILS_JSON_IMPORT_DATA_PATH, here).toString();
    LoadDlisChannelSelection(settings);
}

void SettingsSingleton::LoadDlisChannelSelection(QSettings const& settings)
{
    dlis_channel_selection_.clear();
    QVariantMap const stored = settings.value(DLIS_CHANNEL_SELECTION).toMap();
    for (auto entry = stored.begin(); entry != stored.end(); ++entry) {
        dlis_channel_selection_.insert(entry.key(), entry.value().toStringList());
    }
}

void SettingsSingleton::SaveDlisChannelSelection(QSettings& settings) const
{
    QVariantMap stored;
    for (auto entry = dlis_channel_selection_.begin(); entry != dlis_channel_selection_.end(); ++entry) {
        stored.insert(entry.key(), entry.value());
    }
    settings.setValue(DLIS_CHANNEL_SELECTION, stored);
}

QChar SettingsSingleton::GetDecimalSeparator() const
{
    return separator_selection_ == US ? QChar('.') : QChar(',');
}

QChar SettingsSingleton::GetThousandsSeparator() const
{
    switch (separator_selection_) {
    case US:
        return QChar(',');
    case International:
        return QChar('.');
    case AlternativeInternational:
        return QChar(' ');
    }
    return QChar('x');
}

void SettingsSingleton::SetSeparatorSelection(Separator_Selection selection)
{
    separator_selection_ = selection;
    locale_ = ConvertSeparatorSelectionToLocale(selection);
    QLocale::setDefault(locale_);
}

QLocale SettingsSingleton::ConvertSeparatorSelectionToLocale(Separator_Selection selection)
{
    switch (selection) {
    case US:
        return QLocale(QLocale::English, QLocale::UnitedKingdom);
    case International:
        return QLocale(QLocale::German, QLocale::Germany);
    case AlternativeInternational:
        return QLocale(QLocale::French, QLocale::France);
    }
    return QLocale();
}

QString SettingsSingleton::GetDepthUnit() const
{
    return is_metric_depth_ ? QStringLiteral("m") : QStringLiteral("ft");
}

QStringList SettingsSingleton::GetDefaultMfcMnems()
{
    static QStringList const mnems{QStringLiteral("RADI["), QStringLiteral("CRAD["), QStringLiteral("FING"),
                                   QStringLiteral("R")};
    return mnems;
}
