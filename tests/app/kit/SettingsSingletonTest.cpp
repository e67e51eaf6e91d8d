// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/SettingsSingleton.h"

#include "app/kit/SettingsKeys.h"

#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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

    [[nodiscard]] QMap<QString, QVariant> Stored() const
    {
        QSettings const store(StorePath(), QSettings::IniFormat);
        QMap<QString, QVariant> values;
        for (QString const& key : store.allKeys()) {
            values.insert(key, store.value(key));
        }
        return values;
    }

    /// The program's output by the first word of each line.
    QMap<QString, QString> Run(QString const& action, int expected_exit_code = 0) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", home.path());
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(QUORREL_SETTINGS_PROGRAM), {action});
        EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << process.readAllStandardError().toStdString();
        EXPECT_EQ(process.exitCode(), expected_exit_code);
        QMap<QString, QString> result;
        for (QString const& line : QString::fromUtf8(process.readAllStandardOutput()).split('\n')) {
            result.insert(line.section(' ', 0, 0), line.section(' ', 1));
        }
        return result;
    }

    QTemporaryDir home;
};

constexpr int written_keys = 18;
} // namespace

TEST_F(SettingsProcess, AnEmptyStoreGetsAllDefaultsAtExit)
{
    QMap<QString, QString> const output = Run("run");
    EXPECT_EQ(output["locale"], "en_GB en_GB");
    EXPECT_EQ(output["separators"], ".,");
    EXPECT_EQ(output["equation"], "A+B");
    EXPECT_EQ(output["color"], "#ff000000");

    QMap<QString, QVariant> const stored = Stored();
    EXPECT_EQ(stored.size(), written_keys);
    EXPECT_EQ(stored[DEPTH_UNIT_KEY], "false");
    EXPECT_EQ(stored[MATH_EQUATION_KEY], "A+B");
    for (char const* key : {LAS_PATH_KEY, QZ4_PATH_KEY, DLIS_PATH_KEY, SURVEY_IMPORT_PATH_KEY,
                            WELL_DETAILS_JSON_IMPORT_DATA_PATH}) {
        EXPECT_EQ(stored[key], ".") << key;
    }
    EXPECT_EQ(stored[SEPARATOR_SELECTION], "0");
    EXPECT_TRUE(stored[RECENT_FILES].toStringList().isEmpty());
    EXPECT_TRUE(stored[FRAME_GEOMETRY].toByteArray().isEmpty());
    EXPECT_EQ(stored[AUTOMATIC_CHECK_FOR_UPDATES], "true");
    EXPECT_EQ(stored[IS_MAXIMIZED], "true");
    EXPECT_EQ(stored[MFC_MNEMS].toStringList(), (QStringList{"RADI[", "CRAD[", "FING", "R"}));
    EXPECT_EQ(stored[DISPLAY_MFC_WINDOWS_AUTOMATICALLY], "false");
    EXPECT_EQ(stored[BACKGROUND_COLOR].value<QColor>(), QColor(Qt::black));
    EXPECT_EQ(stored[SPLITTER_HANDLE_COLOR], "000000");
    EXPECT_EQ(stored[OVERRIDE_DEFAULT_SPLITTER_HANDLE_COLOR], "false");
    EXPECT_TRUE(stored[DLIS_CHANNEL_SELECTION].toMap().isEmpty());
    EXPECT_FALSE(stored.contains(DECIMAL_SEPARATOR_KEY));
    EXPECT_FALSE(stored.contains(THOUSANDS_SEPARATOR_KEY));
}

TEST_F(SettingsProcess, ChangesAreWrittenAtExitAndReadBack)
{
    Run("change");
    QMap<QString, QVariant> const stored = Stored();
    EXPECT_EQ(stored.size(), written_keys);
    EXPECT_EQ(stored[DEPTH_UNIT_KEY], "true");
    EXPECT_EQ(stored[LAS_PATH_KEY], "/las");
    EXPECT_EQ(stored[QZ4_PATH_KEY], "/qz4");
    EXPECT_EQ(stored[DLIS_PATH_KEY], "/dlis");
    EXPECT_EQ(stored[SURVEY_IMPORT_PATH_KEY], QStringLiteral("/survey/Brønn 7"));
    EXPECT_EQ(stored[SEPARATOR_SELECTION], "2");
    EXPECT_EQ(stored[AUTOMATIC_CHECK_FOR_UPDATES], "false");
    EXPECT_EQ(stored[IS_MAXIMIZED], "false");
    EXPECT_EQ(stored[MFC_MNEMS].toStringList(), (QStringList{"ARM", "RADI["}));
    EXPECT_EQ(stored[DISPLAY_MFC_WINDOWS_AUTOMATICALLY], "true");
    EXPECT_EQ(stored[SPLITTER_HANDLE_COLOR], "#a1b2c3");
    EXPECT_EQ(stored[OVERRIDE_DEFAULT_SPLITTER_HANDLE_COLOR], "true");
    EXPECT_EQ(stored[WELL_DETAILS_JSON_IMPORT_DATA_PATH], "/json");

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
    EXPECT_EQ(Stored().size(), 1);
    EXPECT_EQ(Run("run")["equation"], "A-B");
}

TEST_F(SettingsProcess, ResetEmptiesTheStoreUntilExit)
{
    Preset({{MATH_EQUATION_KEY, "A-B"}, {"unknown_key", 1}, {SEPARATOR_SELECTION, 1}});
    QMap<QString, QString> const output = Run("reset");
    EXPECT_EQ(output["keys"], "0");
    EXPECT_EQ(output["equation"], "A+B");
    EXPECT_EQ(output["locale"], "en_GB en_GB");
    EXPECT_EQ(Stored().size(), written_keys);
    EXPECT_EQ(Stored()[MATH_EQUATION_KEY], "A+B");
}

TEST_F(SettingsProcess, AnUnknownSelectionLeavesTheLocaleInForce)
{
    Preset({{SEPARATOR_SELECTION, 7}});
    QMap<QString, QString> const output = Run("run");
    EXPECT_EQ(output["locale"], "da_DK da_DK");
    EXPECT_EQ(output["separators"], ",x");
    EXPECT_EQ(Stored()[SEPARATOR_SELECTION], "7");
}

TEST_F(SettingsProcess, StoredSeparatorCharactersAreKeptButNotUsed)
{
    Preset({{DECIMAL_SEPARATOR_KEY, "#"}, {THOUSANDS_SEPARATOR_KEY, "?"}});
    EXPECT_EQ(Run("run")["separators"], ".,");
    EXPECT_EQ(Stored()[DECIMAL_SEPARATOR_KEY], "#");
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

TEST(SettingsSingleton, EachSelectionHasItsLocaleAndSeparators)
{
    struct Case
    {
        Separator_Selection selection;
        QLocale locale;
        char decimal, thousands;
    };
    SettingsSingleton& settings = SettingsSingleton::Instance();
    for (Case const& c : {Case{International, QLocale(QLocale::German, QLocale::Germany), ',', '.'},
                          Case{AlternativeInternational, QLocale(QLocale::French, QLocale::France), ',', ' '},
                          Case{US, QLocale(QLocale::English, QLocale::UnitedKingdom), '.', ','}}) {
        settings.SetSeparatorSelection(c.selection);
        EXPECT_EQ(settings.GetSeparatorSelection(), c.selection);
        EXPECT_EQ(settings.GetLocale(), c.locale);
        EXPECT_EQ(QLocale(), c.locale) << "not the application's default";
        EXPECT_EQ(settings.GetDecimalSeparator(), QChar(c.decimal));
        EXPECT_EQ(settings.GetThousandsSeparator(), QChar(c.thousands));
    }
    settings.SetSeparatorSelection(static_cast<Separator_Selection>(-1));
    EXPECT_EQ(QLocale(), QLocale(QLocale::English, QLocale::UnitedKingdom));
    EXPECT_EQ(settings.GetThousandsSeparator(), QChar('x'));
    settings.SetSeparatorSelection(US);
}
