// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsImporter.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <map>

namespace {
/// The parsed form takes up to ten times the file's size.
constexpr qint64 MAXIMUM_FILE_SIZE = 256 * 1024 * 1024;

constexpr double METRES_PER_FOOT = 0.3048;

QList<QJsonObject> GetObjects(QJsonArray const& array)
{
    QList<QJsonObject> objects;
    for (QJsonValue const value : array) {
        if (value.isObject()) {
            objects.push_back(value.toObject());
        }
    }
    return objects;
}
} // namespace

WellDetailsImporter::WellDetailsImporter(QString const& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        qWarning("Couldn't open save file.");
        error_ = "Unable to open file: " + path;
        Parse("{}");
        return;
    }
    QByteArray const json = file.read(MAXIMUM_FILE_SIZE + 1);
    if (json.size() > MAXIMUM_FILE_SIZE) {
        error_ = "The file is too large for a well details file: " + path;
        Parse("{}");
        return;
    }
    Parse(json);
}

WellDetailsImporter WellDetailsImporter::FromJson(QByteArray const& json)
{
    WellDetailsImporter importer;
    importer.Parse(json);
    return importer;
}

void WellDetailsImporter::Parse(QByteArray const& json)
{
    QJsonParseError parse_error{};
    QJsonDocument const document = QJsonDocument::fromJson(json, &parse_error);
    if (parse_error.error != QJsonParseError::NoError) {
        error_ = parse_error.errorString() + " at byte " + QString::number(parse_error.offset);
    } else if (!document.isObject()) {
        error_ = "The document is no JSON object";
    }
    root_ = document.object();
    depth_factor_ = root_.value("Metric Depth").toBool(false) ? 1.0 : METRES_PER_FOOT;
}

QString WellDetailsImporter::GetWellname() const
{
    return root_.value("Well Name").toString();
}

std::pair<std::vector<DirectionalSurveyItem>, DirectionalSurveyTieInData>
WellDetailsImporter::GetInclinationSurvey() const
{
    QJsonObject const survey = root_.value("Inclination Survey").toObject();
    DirectionalSurveyTieInData const tie_in{.tvd = GetDepth(survey, "TVD_Tie_In"),
                                            .ns = GetDepth(survey, "NS_Tie_In"),
                                            .ew = GetDepth(survey, "EW_Tie_In")};
    QJsonArray const md = survey.value("MD").toArray();
    QJsonArray const inclination = survey.value("Inclination").toArray();
    QJsonArray const azimuth = survey.value("Azimuth").toArray();
    auto const count = std::min({md.size(), inclination.size(), azimuth.size()});
    std::vector<DirectionalSurveyItem> stations;
    stations.reserve(count);
    for (qsizetype i = 0; i < count; ++i) {
        stations.emplace_back(static_cast<float>(md.at(i).toDouble() * depth_factor_),
                              static_cast<float>(inclination.at(i).toDouble()),
                              static_cast<float>(azimuth.at(i).toDouble()));
    }
    return {std::move(stations), tie_in};
}

QList<Zone> WellDetailsImporter::GetPerforaitons() const
{
    QList<Zone> zones;
    for (QJsonObject const& object : GetObjects(root_.value("Perforations").toArray())) {
        Interval depth = GetDepthInterval(object);
        depth.Sort();
        zones.emplace_back(depth, object.value("Description").toString(), Zone::DEFAULT_COLOR);
    }
    return zones;
}

std::vector<PipeString> WellDetailsImporter::GetCasingStringVector() const
{
    std::vector<PipeString> strings;
    for (QJsonObject const& object : GetObjects(root_.value("Casing Strings").toArray())) {
        strings.push_back(GetPipeString(object, false));
    }
    return strings;
}

PipeString WellDetailsImporter::GetTubingString(QJsonObject const& object) const
{
    return GetPipeString(object, true);
}

PipeString WellDetailsImporter::GetPipeString(QJsonObject const& object, bool tubing) const
{
    PipeString string(object.value("Description").toString(), GetDepth(object, "Set Depth"), tubing,
                      GetComponentVector(object.value("Component List").toArray()));
    QJsonValue const cement = object.value("Outer Cement Description");
    if (!cement.isUndefined()) {
        string.SetOuterCementData(GetDepth(object, "Outer Cement Bottom Depth"),
                                  GetDepth(object, "Outer Cement Top Depth"), cement.toString());
    }
    return string;
}

std::vector<PipeString> WellDetailsImporter::GetPipeStringVector() const
{
    std::vector<PipeString> strings = GetCasingStringVector();
    QJsonValue const tubing = root_.value("Tubing String");
    if (tubing.isObject()) {
        strings.push_back(GetTubingString(tubing.toObject()));
    }
    return strings;
}

std::vector<PipeComponent> WellDetailsImporter::GetComponentVector(QJsonArray const& array) const
{
    constexpr double null = PipeComponent::NULL_DIAMETER;
    std::vector<PipeComponent> components;
    for (QJsonObject const& object : GetObjects(array)) {
        components.emplace_back(static_cast<float>(object.value("Nominal OD").toDouble(null)),
                                static_cast<float>(object.value("Nominal ID").toDouble(null)),
                                static_cast<float>(object.value("Weight").toDouble()),
                                GetDepth(object, "Length"), object.value("Description").toString());
    }
    return components;
}

QList<WellComponent> WellDetailsImporter::GetMiscComponents() const
{
    QList<WellComponent> components;
    for (QJsonObject const& object : GetObjects(root_.value("Misc Well Components").toArray())) {
        components.emplace_back(GetDepthInterval(object), object.value("Description").toString(),
                                ConvertStringTypeToComponentType(object.value("Type").toString()));
    }
    return components;
}

WellComponentType WellDetailsImporter::ConvertStringTypeToComponentType(QString const& text)
{
    static std::map<QString, WellComponentType> const words = {
        {"SidePocketMandrel", WellComponentType::SidePocketMandrel},
        {"PermanentDownholeGauge", WellComponentType::PermanentDownholeGauge},
        {"AnnularSafetyValve", WellComponentType::AnnularSafetyValvePacker},
        {"DownholeSafetyValve", WellComponentType::SafetyValve},
        {"Packer", WellComponentType::ProductionPacker},
        {"Nipple", WellComponentType::Nipple},
        {"Straddle", WellComponentType::Straddle},
        {"Plug", WellComponentType::Plug},
        {"HUD", WellComponentType::HUD},
        {"Restriction", WellComponentType::Restriction},
        {"Fish", WellComponentType::Fish},
        {"Punch", WellComponentType::TubingPunch},
        {"Cut", WellComponentType::Cut},
        {"Cement Plug", WellComponentType::CementPlug},
        {"Tubing Leak", WellComponentType::Leak},
    };
    auto const found = words.find(text);
    return found != words.end() ? found->second : WellComponentType::Undefined;
}

double WellDetailsImporter::GetDepth(QJsonObject const& object, QString const& key) const
{
    return object.value(key).toDouble() * depth_factor_;
}

Interval WellDetailsImporter::GetDepthInterval(QJsonObject const& object) const
{
    return {GetDepth(object, "Top Depth"), GetDepth(object, "Bottom Depth")};
}
