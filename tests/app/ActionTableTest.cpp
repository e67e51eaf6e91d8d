// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/ActionTable.h"

#include "app/FrameState.h"
#include "support/Texts.h"

namespace {
QStringList EnabledTexts(FrameState const& state)
{
    QStringList texts;
    for (auto const& definition : ActionTable()) {
        if (IsAvailable(definition.availability, state)) {
            texts << definition.text;
        }
    }
    texts.sort();
    return texts;
}

void ExpectEnabled(FrameState const& state, QStringList texts, char const* when)
{
    texts.sort();
    EXPECT_EQ(EnabledTexts(state), texts) << when;
}

QStringList const ALWAYS =
    List("&New Survey|New Project|&Open Project|&Save Project|E&xit|&Settings|&Tracking Mode [T]|"
         "&Toggle Depth Unit|&Toggle Separator|&About|About &Qt|Homepage|Check for &updates|"
         "&Show Vertical Section|Well Details Window|Import Well Details From JSON");
QStringList const WITH_SURVEY =
    List("Add LAS File to Survey|&Edit Survey Notes|Set Display Interval|&Screens Manager|Zoom In|Zoom Out|"
         "Reset Zooms|Zoom to Vertical Interval|Zoom to Horizontal Interval [Z]|"
         "Adjust Scales To Visible Depth|&Define Interpretation Zones [I]");
QStringList const WITH_PASS{"&Hide Pass", "&Highlight Pass", "&Stretch Pass", "&Shift Pass [S]"};
/// What the program cannot do yet, in any state.
QStringList const NOT_YET =
    List("&Convert DLIS to LAS|&DLIS Browser|&Generate PDF file|Calculate Well Volumes|&DataBrowser|"
         "Change Visible Dataviews|Generate Pipe Wall Dataview with MFC data from current log-pass|"
         "&Toggle MFC 3D Window|&Toggle MFC Cross Section Window|&Spinner Calibration|"
         "&Edit Interpreation Zones|&Edit Interpreation Parameters|&Show 3D Well Trajectory");
} // namespace

TEST(ActionTableTest, EachStateTurnsOnItsActions)
{
    FrameState state;
    ExpectEnabled(state, ALWAYS, "no survey");

    // Left-over facts of a survey that is gone turn nothing on.
    state = {};
    state.has_pass = state.undo_available = state.redo_available = state.has_caliper_view = true;
    state.has_interpretation_zones = true;
    ExpectEnabled(state, ALWAYS, "pass, undo and zones without a survey");

    state = {};
    state.has_survey = true;
    state.is_first_pass = state.is_last_pass = true;
    ExpectEnabled(state, ALWAYS + WITH_SURVEY, "survey without passes");

    state.has_pass = true;
    ExpectEnabled(state, ALWAYS + WITH_SURVEY + WITH_PASS, "one pass");

    state.is_last_pass = false;
    ExpectEnabled(state, ALWAYS + WITH_SURVEY + WITH_PASS + QStringList{"&Next Pass"},
                  "first of several passes");
    state.is_first_pass = false;
    ExpectEnabled(state, ALWAYS + WITH_SURVEY + WITH_PASS + QStringList{"&Next Pass", "&Previous Pass"},
                  "a pass in the middle");

    state = {};
    state.has_survey = state.undo_available = true;
    ExpectEnabled(state, ALWAYS + WITH_SURVEY + QStringList{"Undo View Change"}, "undo");
    state.redo_available = true;
    state.undo_available = false;
    ExpectEnabled(state, ALWAYS + WITH_SURVEY + QStringList{"Redo View Change"}, "redo");

    state = {};
    state.has_survey = state.has_caliper_view = true;
    ExpectEnabled(state, ALWAYS + WITH_SURVEY + QStringList{"&MFC Mode [M]", "&MFC Color Map [C]"},
                  "caliper");
}

TEST(ActionTableTest, TextsAndKeysAreUniqueAndWhatIsMissingStandsDisabled)
{
    std::set<QString> texts;
    std::set<QString> keys;
    QStringList not_yet;
    for (auto const& definition : ActionTable()) {
        EXPECT_TRUE(texts.insert(definition.text).second) << definition.text;
        for (auto const& key : definition.keys) {
            EXPECT_TRUE(keys.insert(key.toString()).second) << definition.text;
        }
        if (definition.availability == Availability::NotYet) {
            not_yet << definition.text;
        }
    }
    EXPECT_EQ(texts.size(), 50U);
    EXPECT_THAT(not_yet, testing::UnorderedElementsAreArray(NOT_YET));
    for (auto const* key : {"Z", "S", "M", "C", "T", "I", "Ctrl+S", "Ctrl+Z", "Ctrl+Shift+Z"}) {
        EXPECT_EQ(keys.count(key), 1U) << key;
    }
}
