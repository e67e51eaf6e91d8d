// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "support/NumberFormats.h"
#include "well/DeviationText.h"
#include "well/DirectionalSurveyData.h"
#include "well/PipeStringData.h"
#include "well/WellDetailsImporter.h"

TEST(ExampleWell, IsAsItsReadmeSays)
{
    NumberFormatScope const scope;
    QString const folder = QUORREL_TEST_DATA "/../../examples/";
    WellDetailsImporter const importer(folder + "demo-well.json");
    ASSERT_EQ(importer.GetError(), "");
    EXPECT_EQ(importer.GetWellname(), "Demo A-7");
    EXPECT_EQ(importer.GetPerforaitons().size(), 3);
    for (WellComponent const& component : importer.GetMiscComponents()) {
        EXPECT_NE(component.type, WellComponentType::Undefined) << component.description.toStdString();
    }

    DeviationTextResult const text = DeviationText::ReadFile(
        folder + "demo-well-deviation.txt", {DeviationText::WHITESPACE_SEPARATOR, 5, 1, 2, 3});
    EXPECT_EQ(text.error, "");
    auto const [stations, tie_in] = importer.GetInclinationSurvey();
    EXPECT_EQ(text.stations, stations);
    DirectionalSurveyData const survey(stations, tie_in);
    float greatest_dls = 0;
    for (WellTrajectoryItem const& item : survey.GetWellTrajectoryData()) {
        greatest_dls = std::max(greatest_dls, item.dls);
    }
    EXPECT_NEAR(greatest_dls, 2.9, 0.1);

    PipeStringData pipes;
    pipes.SetPipeStringVector(importer.GetPipeStringVector());
    for (PipeString const& string : pipes.GetPipeStringVector()) {
        EXPECT_NEAR(string.GetDepthInterval().lower, string.GetName() == "7\" Liner" ? 2210 : 0, 1e-6);
    }
    double depth = 0;
    QStringList joints;
    for (CalculatedPipeComponent const& component : pipes.FindInnerComponentsFromTop()) {
        EXPECT_NEAR(component.GetMinDepth(), depth, 1e-6) << "the inner wall has no gaps";
        depth = component.GetMaxDepth();
        joints << component.GetDescription();
    }
    EXPECT_EQ(depth, 3150);
    EXPECT_TRUE(joints.contains("9 5/8\" casing, 47 lb/ft") && joints.contains("7\" liner, 29 lb/ft"));
}
