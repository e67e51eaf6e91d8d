// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/SettingsSingleton.h"

#include "app/kit/SettingsKeys.h"
#include "support/Programs.h"
#include "support/Texts.h"

#include <QColor>
#include <QSettings>
#include <QTemporaryDir>

using namespace settings_keys;

namespace {
/// Runs the settings program on a store of its own. What it leaves there was written after its application
/// object was gone.
class SettingsProcess : public ::testing::Test
{
protected:
    [[nodiscard]] QString StorePath() const { return home.filePath("MyCorp/settings_program.conf"); }

    void Preset(QMap<QString, QVariant> const& values) const
    {
        QSettings store(StorePath(), QSettings::IniFormat);
        for (auto value = values.begin(); value != values.end(); ++value) {
            store.setValue(value.key(), value.value());
        }
    }

    /// All that is stored as "key=value"; of a map, its keys.
    [[nodiscard]] QStringList Stored() const
    {
        QSettings const store(StorePath(), QSettings::IniFormat);
        return Texts(store.allKeys(), [&store](QString const& key) -> QString {
            switch (QVariant const value = store.value(key); value.typeId()) {
            case QMetaType::QColor:
                return key + '=' + value.value<QColor>().name(QColor::HexArgb);
            case QMetaType::QByteArray:
                return key + '=' + value.toByteArray().toHex();
            case QMetaType::QVariantMap:
                return key + '=' + value.toMap().keys().join('|');
            default:
                return key + '=' + value.toStringList().join('|');
            }
        });
    }

    /// The program's output by the first word of each line.
    QMap<QString, QString> Run(QString const& action, int expected_exit_code = 0) const
    {
        auto const [exit_code, output] = RunProgram(QUORREL_SETTINGS_PROGRAM, {action}, home.path());
        EXPECT_EQ(exit_code, expected_exit_code);
        QMap<QString, QString> result;
        for (QString const& line : output.split('\n')) {
            result.insert(line.section(' ', 0, 0), line.section(' ', 1));
        }
        return result;
    }

    QTemporaryDir home;
};

} // namespace

TEST_F(SettingsProcess, AnEmptyStoreGetsAllDefaultsAtExit)
{
    QMap<QString, QString> const output = Run("run");
    EXPECT_EQ(output["locale"], "en_GB en_GB");
    EXPECT_EQ(output["separators"], ".,");
    EXPECT_EQ(output["equation"], "A+B");
    EXPECT_EQ(output["color"], "#ff000000");

    EXPECT_EQ(
        Stored(),
        (QStringList{"automatic_check_for_updates=true", "background_color=#ff000000", "depth_unit=false",
                     "display_mfc_windows_automatically=false", "dlis_channel_selection=", "dlis_path=.",
                     "frame_geometry=", "is_maximized=true", "las_path=.", "math_equation=A+B",
                     "mfc_mnems=RADI[|CRAD[|FING|R", "override_default_splitter_handle_color=false",
                     "qz4_path=.", "recent_files=", "separator_selection=0", "splitter_handle_color=000000",
                     "survey_import_path=.", "well_details_json_data_import_path=."}));
}

TEST_F(SettingsProcess, ChangesAreWrittenAtExitAndReadBack)
{
    EXPECT_EQ(Run("change")["locale"], "fr_FR fr_FR");
    QStringList const stored = Stored();
    EXPECT_EQ(stored, (QStringList{"automatic_check_for_updates=false", "background_color=#c8010203",
                                   "depth_unit=true", "display_mfc_windows_automatically=true",
                                   "dlis_channel_selection=empty|frame/1 key", "dlis_path=/dlis",
                                   "frame_geometry=00ff01", "is_maximized=false", "las_path=/las",
                                   "math_equation=A*2.5", "mfc_mnems=ARM|RADI[",
                                   "override_default_splitter_handle_color=true", "qz4_path=/qz4",
                                   "recent_files=/b.qz4|/a, with comma.qz4", "separator_selection=2",
                                   "splitter_handle_color=#a1b2c3", "survey_import_path=/survey/Brønn 7",
                                   "well_details_json_data_import_path=/json"}));

    QMap<QString, QString> const output = Run("run");
    EXPECT_EQ(output["locale"], "fr_FR fr_FR");
    EXPECT_EQ(output["separators"], ", ");
    EXPECT_EQ(output["equation"], "A*2.5");
    EXPECT_EQ(output["color"], "#c8010203");
    EXPECT_EQ(output["geometry"], "00ff01");
    EXPECT_EQ(output["recent"], "/b.qz4|/a, with comma.qz4");
    EXPECT_EQ(output["selection"], "GR|CCL");
    EXPECT_EQ(Stored(), stored);
}

TEST_F(SettingsProcess, ACrashLosesTheChanges)
{
    Preset({{MATH_EQUATION_KEY, "A-B"}});
    Run("crash", 3);
    EXPECT_EQ(Stored(), QStringList{"math_equation=A-B"});
    EXPECT_EQ(Run("run")["equation"], "A-B");
}

TEST_F(SettingsProcess, ResetEmptiesTheStoreUntilExit)
{
    Preset({{MATH_EQUATION_KEY, "A-B"}, {"unknown_key", 1}, {SEPARATOR_SELECTION, 1}});
    QMap<QString, QString> const output = Run("reset");
    EXPECT_EQ(output["keys"], "0");
    EXPECT_EQ(output["equation"], "A+B");
    EXPECT_EQ(output["locale"], "en_GB en_GB");
    EXPECT_EQ(Stored().size(), 18) << "the unknown one is gone";
    EXPECT_TRUE(Stored().contains("math_equation=A+B"));
}

TEST_F(SettingsProcess, EachSelectionHasItsLocaleAndSeparators)
{
    // Separator characters that are stored are kept but not used; the program's system locale is Danish.
    for (auto const& [selection, locale, separators] :
         {std::tuple(0, "en_GB en_GB", ".,"), std::tuple(1, "de_DE de_DE", ",."),
          std::tuple(2, "fr_FR fr_FR", ", "), std::tuple(7, "da_DK da_DK", ",x")}) {
        Preset(
            {{SEPARATOR_SELECTION, selection}, {DECIMAL_SEPARATOR_KEY, "#"}, {THOUSANDS_SEPARATOR_KEY, "?"}});
        QMap<QString, QString> const output = Run("run");
        EXPECT_EQ(output["locale"], locale);
        EXPECT_EQ(output["separators"], separators);
        EXPECT_TRUE(Stored().contains("decimal_separator=#"));
        EXPECT_TRUE(Stored().contains(QString("separator_selection=%1").arg(selection)));
    }
}

TEST_F(SettingsProcess, ValuesOfAWrongTypeDoNoHarm)
{
    Preset({{SEPARATOR_SELECTION, "many"},
            {BACKGROUND_COLOR, "no colour"},
            {DLIS_CHANNEL_SELECTION, "text"},
            {RECENT_FILES, 5},
            {DECIMAL_SEPARATOR_KEY, "several"}});
    QMap<QString, QString> const output = Run("run");
    EXPECT_EQ(output["locale"], "en_GB en_GB");
    EXPECT_EQ(output["color"], "#ff000000");
}
