// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/SettingsKeys.h"
#include "support/Programs.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

using namespace settings_keys;

namespace {
/// Runs the program from start to end with a home and a working folder of its own.
class Program : public ::testing::Test
{
protected:
    ProgramOutcome Run(QStringList const& arguments) const
    {
        return RunProgram(QUORREL_MAIN_PROGRAM, arguments, home.path());
    }

    [[nodiscard]] std::unique_ptr<QSettings> Store() const
    {
        return std::make_unique<QSettings>(home.filePath("MyCorp/main_program.conf"), QSettings::IniFormat);
    }

    QTemporaryDir home;
};
} // namespace

TEST_F(Program, HelpNamesTheArguments)
{
    ProgramOutcome const help = Run({"--help"});
    EXPECT_EQ(help.exit_code, 0);
    for (char const* text : {"Test helper", "-h, --help", "-v, --version", "-r, --reset", "Reset settings",
                             "qz4_file", "QZ4 file to load"}) {
        EXPECT_TRUE(help.output.contains(text)) << text << " in " << help.output.toStdString();
    }
    EXPECT_EQ(Run({"-v"}).output, "main_program \n"); // an empty version
    EXPECT_EQ(Run({"--unknown"}).exit_code, 1);
}

TEST_F(Program, AFirstStartIsMaximisedAndLeavesAllSettings)
{
    ProgramOutcome const result = Run({});
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(result.output, "window MainWindow maximised\n");
    auto const store = Store();
    EXPECT_FALSE(store->value(FRAME_GEOMETRY).toByteArray().isEmpty());
    EXPECT_TRUE(store->value(IS_MAXIMIZED).toBool());
    EXPECT_EQ(store->value(MATH_EQUATION_KEY), "A+B");
    EXPECT_FALSE(QFile::exists(home.filePath("file.log")));
}

TEST_F(Program, TheWindowComesBackAsItWas)
{
    Store()->setValue(IS_MAXIMIZED, false);
    EXPECT_EQ(Run({}).output, "window MainWindow normal\n");
    EXPECT_EQ(Store()->value(IS_MAXIMIZED), "false");
}

TEST_F(Program, ResetClearsTheSettingsAndAMissingProjectStillOpensTheWindow)
{
    Store()->setValue(MATH_EQUATION_KEY, "A-B");
    Store()->setValue(IS_MAXIMIZED, false);
    Store()->setValue("unknown", 1);
    ProgramOutcome const result = Run({"--reset", home.filePath("missing.qz4"), "second.qz4"});
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_TRUE(result.output.endsWith("window MainWindow maximised\n")) << result.output.toStdString();
    EXPECT_EQ(Store()->value(MATH_EQUATION_KEY), "A+B");
    EXPECT_FALSE(Store()->contains("unknown"));
}

TEST_F(Program, OpensTheFirstProjectOfTheCommandLine)
{
    QFile file(home.filePath("p.qz4"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        QByteArrayLiteral("FILEFORMAT_MAGIC_WORD\3\0\0\0\0\0\0\0\4\0MAIN\0")); // a project without anything
    file.close();
    EXPECT_EQ(Run({"--reset", "p.qz4", "missing.qz4"}).output, "window MainWindow maximised [p.qz4]\n");
    EXPECT_EQ(Store()->value(RECENT_FILES).toStringList(), QStringList{file.fileName()});
    EXPECT_EQ(Store()->value(QZ4_PATH_KEY), home.path());
}
