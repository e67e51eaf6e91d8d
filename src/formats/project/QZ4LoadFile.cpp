// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/QZ4LoadFile.h"

#include "formats/project/QZ4Format.h"
#include "model/DataContainer.h"
#include "well/PipeData.h"

#include <array>
#include <cstring>
#include <stdexcept>

namespace {
/// Least bytes in the file of an element of a list, for the check of counts before anything is allocated.
using qz4::STRING_BYTES;
constexpr std::size_t COLOR_BYTES = 12;
constexpr std::size_t ZONE_BYTES = 16 + STRING_BYTES + COLOR_BYTES;
constexpr std::size_t HEADER_ROW_BYTES = 4 * STRING_BYTES;
constexpr std::size_t VECTOR_BYTES = 4;
} // namespace

QZ4LoadFile::QZ4LoadFile(QString const& path) : InFile(path)
{
    std::array<char, sizeof(qz4::FILE_MAGIC_WORD) - 1> word{};
    read(word.data(), word.size());
    if (std::memcmp(word.data(), qz4::FILE_MAGIC_WORD, word.size()) != 0) {
        throw std::invalid_argument("File format outdated");
    }
    if (int const version = LoadInt(); version != qz4::VERSION) {
        throw std::invalid_argument("Unsupported QZ4 version. File version is: " + std::to_string(version) +
                                    ". Currently supported version is: " + std::to_string(qz4::VERSION));
    }
    int const further = LoadInt();
    if (further < 0) {
        throw std::invalid_argument("Invalid .qz4 file. Negative size of the file header: " +
                                    std::to_string(further));
    }
    SeekTo(GetPosition() + further);
}

void QZ4LoadFile::LoadMagicWord(std::string const& word)
{
    auto const found = LoadString().toStdString();
    if (found != word) {
        throw std::invalid_argument(
            "bool QZ4LoadFile::LoadMagicWord(const std::string&): Invalid .qz4 file. Expected "
            "magic word: " +
            word + ". Actual magic word: " + found);
    }
}

std::int64_t QZ4LoadFile::LoadAdditionalSettingsHeader()
{
    auto const start = GetPosition();
    return start + LoadInt();
}

void QZ4LoadFile::LoadItem(ItemLoaders const& loaders)
{
    auto const end = LoadAdditionalSettingsHeader();
    auto const tag = LoadString();
    for (auto const& [known, load] : loaders) {
        if (tag == QLatin1String(known)) {
            load();
            // A longer item is a newer writer's. One past 2 GiB does not have its true size in the file.
            if (GetPosition() < end) {
                SeekTo(end);
            }
            return;
        }
    }
    if (end < GetPosition()) {
        throw std::invalid_argument("Invalid .qz4 file. Item \"" + tag.toStdString() +
                                    "\" ends before its content");
    }
    SeekTo(end);
}

void QZ4LoadFile::LoadChain(ItemLoaders const& loaders)
{
    while (true) {
        auto const more = Read<unsigned char>();
        if (more == 0) {
            return;
        }
        if (more != 1) {
            throw std::invalid_argument("Invalid .qz4 file. Expected 0 or 1 before an item, found: " +
                                        std::to_string(more));
        }
        LoadItem(loaders);
    }
}

QString QZ4LoadFile::LoadString()
{
    std::size_t const length = Read<unsigned short>();
    QByteArray utf8(static_cast<qsizetype>(length), Qt::Uninitialized);
    read(utf8.data(), length);
    return QString::fromUtf8(utf8);
}

std::size_t QZ4LoadFile::LoadVectorSize(std::size_t element_bytes)
{
    int const count = LoadInt();
    if (count < 0) {
        throw std::invalid_argument("Invalid .qz4 file. Negative count: " + std::to_string(count));
    }
    if (static_cast<std::size_t>(count) > static_cast<std::size_t>(GetRemaining()) / element_bytes) {
        throw std::ios_base::failure("Reached premature end-of-file");
    }
    return static_cast<std::size_t>(count);
}

QStringList QZ4LoadFile::LoadStringList()
{
    QStringList texts;
    for (auto count = LoadVectorSize(STRING_BYTES); count > 0; --count) {
        texts << LoadString();
    }
    return texts;
}

QColor QZ4LoadFile::LoadColor()
{
    int const red = LoadInt();
    int const green = LoadInt();
    int const blue = LoadInt();
    auto const in_range = [](int value) { return value >= 0 && value <= 255; };
    return in_range(red) && in_range(green) && in_range(blue) ? QColor(red, green, blue) : QColor(Qt::black);
}

QPen QZ4LoadFile::LoadPen()
{
    QPen pen(LoadColor());
    int const width = LoadInt();
    constexpr int greatest_width = 32767; // that a pen takes
    pen.setWidth(width >= 0 && width <= greatest_width ? width : 1);
    auto const style = Read<unsigned char>();
    pen.setStyle(style <= Qt::DashDotDotLine ? static_cast<Qt::PenStyle>(style) : Qt::SolidLine);
    return pen;
}

Interval QZ4LoadFile::LoadInterval()
{
    double const lower = LoadDouble();
    double const upper = LoadDouble();
    return {lower, upper};
}

std::vector<float> QZ4LoadFile::LoadDataVector()
{
    return ReadVector<float>(LoadVectorSize(sizeof(float)));
}

std::vector<double> QZ4LoadFile::LoadDepthVector()
{
    return ReadVector<double>(LoadVectorSize(sizeof(double)));
}

QList<Zone> QZ4LoadFile::LoadZoneList()
{
    QList<Zone> zones;
    for (auto count = LoadVectorSize(ZONE_BYTES); count > 0; --count) {
        auto const depth = LoadInterval();
        auto const description = LoadString();
        zones.append(Zone(depth, description, LoadColor()));
    }
    return zones;
}

QList<DepthMarker> QZ4LoadFile::LoadMarkerList()
{
    QList<DepthMarker> markers;
    for (auto count = LoadVectorSize(sizeof(double) + STRING_BYTES); count > 0; --count) {
        auto const depth = static_cast<float>(LoadDouble());
        markers.append(DepthMarker(depth, LoadString()));
    }
    return markers;
}

PipeString QZ4LoadFile::LoadPipeString()
{
    double const set_depth = LoadDouble();
    auto const name = LoadString();
    bool const is_tubing = LoadBool();
    std::vector<PipeComponent> components;
    for (auto count = LoadVectorSize(3 * sizeof(float) + STRING_BYTES + sizeof(double)); count > 0; --count) {
        float const od = LoadValue();
        float const id = LoadValue();
        float const weight = LoadValue();
        auto const description = LoadString();
        components.emplace_back(od, id, weight, LoadDouble(), description);
    }
    return {name, set_depth, is_tubing, components};
}

void QZ4LoadFile::LoadTrajectory(DataContainer& container, bool with_tie_in)
{
    std::vector<DirectionalSurveyItem> stations;
    for (auto count = LoadVectorSize(sizeof(double) + 2 * sizeof(float)); count > 0; --count) {
        auto const measured_depth = static_cast<float>(LoadDouble());
        float const inclination = LoadValue();
        stations.emplace_back(measured_depth, inclination, LoadValue());
    }
    DirectionalSurveyTieInData tie_in;
    if (with_tie_in) {
        tie_in.tvd = LoadDouble();
        tie_in.ns = LoadDouble();
        tie_in.ew = LoadDouble();
    }
    container.SetTrajectorySurvey(stations, tie_in);
}

void QZ4LoadFile::LoadOuterCement(std::vector<PipeString>& strings)
{
    auto const count = LoadVectorSize(1);
    for (std::size_t i = 0; i < count; ++i) {
        if (!LoadBool()) {
            continue;
        }
        auto const description = LoadString();
        auto const interval = LoadInterval();
        if (i < strings.size()) {
            strings[i].SetOuterCementData(interval.lower, interval.upper, description);
        }
    }
}

QZ4LoadFile::MainRecord QZ4LoadFile::LoadMain(DataContainer& container)
{
    namespace tag = qz4::tag;
    LoadMagicWord(qz4::MAIN);
    MainRecord record;
    // The cement items count the strings as they stand in the file, so the container, which sorts, gets them
    // last.
    std::vector<PipeString> strings;
    LoadChain({
        {tag::PERFORATIONS, [&] { container.SetPerforationZones(LoadZoneList()); }},
        {tag::PRODUCTION_ZONES,
         [&] {
             ZoneTrack track("No Name");
             track.SetZones(LoadZoneList());
             container.SetZoneTracks({track});
         }},
        {tag::ZONE_TRACKS,
         [&] {
             QList<ZoneTrack> tracks;
             for (auto count = LoadVectorSize(STRING_BYTES + VECTOR_BYTES); count > 0; --count) {
                 ZoneTrack track(LoadString());
                 track.SetZones(LoadZoneList());
                 tracks.append(track);
             }
             container.SetZoneTracks(tracks);
         }},
        {tag::TRAJECTORY, [&] { LoadTrajectory(container, false); }},
        {tag::TRAJECTORY_TIE_IN, [&] { LoadTrajectory(container, true); }},
        {tag::WELL_COMPONENTS,
         [&] {
             QList<WellComponent> components;
             for (auto count = LoadVectorSize(2 * sizeof(double) + sizeof(int) + STRING_BYTES); count > 0;
                  --count) {
                 auto const depth = LoadInterval();
                 auto const type = static_cast<WellComponentType>(LoadInt());
                 components.append(WellComponent(depth, LoadString(), type));
             }
             container.SetComponents(components);
         }},
        {tag::MARKERS_A, [&] { container.SetMarkersA(LoadMarkerList()); }},
        {tag::MARKERS_B, [&] { container.SetMarkersB(LoadMarkerList()); }},
        {tag::CURRENT_SURVEY_KEY, [&] { record.current_survey_key = LoadInt(); }},
        {tag::SURVEY_MAP_SIZE, [&] { record.survey_count = static_cast<int>(LoadVectorSize(1)); }},
        {tag::PIPES,
         [&] {
             QList<Pipe> pipes;
             constexpr auto pipe_bytes = 2 * sizeof(double) + 3 * sizeof(float) + 1 + STRING_BYTES;
             for (auto count = LoadVectorSize(pipe_bytes); count > 0; --count) {
                 auto const depth = LoadInterval();
                 float const od = LoadValue();
                 float const id = LoadValue();
                 float const weight = LoadValue();
                 bool const is_tubing = LoadBool();
                 pipes.append(Pipe(depth, od, id, weight, is_tubing, LoadString()));
             }
             ConvertPipeListToPipeStringVector(pipes, strings);
         }},
        {tag::PIPE_STRINGS,
         [&] {
             auto count = LoadVectorSize(sizeof(double) + STRING_BYTES + 1 + VECTOR_BYTES);
             for (; count > 0; --count) {
                 strings.push_back(LoadPipeString());
             }
         }},
        {tag::OUTER_CEMENT, [&] { LoadOuterCement(strings); }},
        {tag::WELL_NAME, [&] { container.SetWellName(LoadString()); }},
    });
    container.SetPipeStringData(strings);
    return record;
}

std::pair<int, QString> QZ4LoadFile::LoadSurveyNamesAndKeys()
{
    std::pair<int, QString> key_and_name(-1, QString());
    LoadItem({{qz4::tag::SURVEY_NAME_AND_KEY, [&] {
                   key_and_name.first = LoadInt();
                   key_and_name.second = LoadString();
               }}});
    return key_and_name;
}

void QZ4LoadFile::LoadDataContainer()
{
    LoadChain({});
}

InterpretationParameters QZ4LoadFile::LoadInterpretationParameters()
{
    InterpretationParameters parameters;
    parameters.SetFlowRate(LoadInt());
    parameters.SetVpcf(LoadValue());
    parameters.SetThresholdPos(LoadValue());
    parameters.SetThresholdNeg(LoadValue());
    parameters.SetSlopePos(LoadValue());
    parameters.SetSlopeNeg(LoadValue());
    parameters.SetSpinnerMnem(LoadString());
    parameters.SetCableSpeedMnem(LoadString());
    parameters.SetUseFixedId(LoadBool());
    parameters.SetFixedIdValue(LoadValue());
    parameters.SetUseSecondCaliper(LoadBool());
    parameters.SetFirstCaliperMnem(LoadString());
    parameters.SetSecondCaliperMnem(LoadString());
    return parameters;
}

SURVEY_DATA_Struct QZ4LoadFile::LoadSurveyData()
{
    namespace tag = qz4::tag;
    LoadMagicWord(qz4::SURVEYDATA);
    SURVEY_DATA_Struct record;
    LoadChain({
        {tag::SURVEY_TEXT, [&] { record.survey_text = LoadString(); }},
        {tag::INTERPRETATION_ZONES, [&] { record.interpretation_zones = LoadZoneList(); }},
        {tag::INTERPRETATION_PARAMETERS,
         [&] { record.interpretation_parameters = LoadInterpretationParameters(); }},
    });
    return record;
}

std::size_t QZ4LoadFile::LoadGenericLogPassMap()
{
    std::size_t count = 0;
    LoadChain({{qz4::tag::LOGPASS_MAP, [&] { count = LoadVectorSize(1); }}});
    return count;
}

HeaderRow QZ4LoadFile::LoadHeaderRow()
{
    HeaderRow row;
    row.mnemonic = LoadString();
    row.unit = LoadString();
    row.data = LoadString();
    row.description = LoadString();
    return row;
}

LASHeaderSection QZ4LoadFile::LoadHeaderSection()
{
    LASHeaderSection section;
    for (auto count = LoadVectorSize(HEADER_ROW_BYTES); count > 0; --count) {
        section.push_back(LoadHeaderRow());
    }
    return section;
}

LogPassIdentifier QZ4LoadFile::LoadLogPassIdentifier()
{
    int const key = LoadInt();
    return {key, LoadString()};
}

DataChannelIdentifier QZ4LoadFile::LoadDataChannelIdentifier()
{
    auto const log_pass = LoadLogPassIdentifier();
    return {log_pass, LoadInt()};
}

BASE_LOGPASS_STRUCT QZ4LoadFile::LoadBaseLogPass()
{
    BASE_LOGPASS_STRUCT record;
    LoadChain({
        {qz4::tag::BASELOG,
         [&] {
             record.properties.highlighted = LoadBool();
             record.properties.hidden = LoadBool();
             record.properties.identifier = LoadLogPassIdentifier();
             record.properties.pen = LoadPen();
             record.version_header = LoadHeaderSection();
             record.well_info_header = LoadHeaderSection();
             record.curve_info_header = LoadHeaderSection();
             record.parameter_info_header = LoadHeaderSection();
             record.other_header = LoadHeaderSection();
             record.file_path_and_name = LoadString();
         }},
        {qz4::tag::ARRAY_MNEMS, [&] { record.array_mnems = LoadStringList(); }},
    });
    return record;
}

QZ4LoadFile::Columns QZ4LoadFile::LoadGenericLogPass()
{
    Columns columns;
    LoadChain({{qz4::tag::GENERIC_LOG, [&] {
                    columns.clear();
                    for (auto count = LoadVectorSize(VECTOR_BYTES); count > 0; --count) {
                        columns.push_back(std::make_shared<std::vector<float>>(LoadDataVector()));
                    }
                }}});
    return columns;
}

QZ4LoadFile::DepthRecord QZ4LoadFile::LoadBaseDepthChannel()
{
    DepthRecord record;
    LoadChain({{qz4::tag::BASE_DEPTHCHANNEL, [&] {
                    record.is_metric = LoadBool();
                    record.shift = LoadValue();
                    record.stretch = LoadValue();
                    record.depths = LoadDepthVector();
                }}});
    return record;
}

QZ4LoadFile::TimeRecord QZ4LoadFile::LoadTimeLog()
{
    LoadMagicWord(qz4::TIMELOG);
    TimeRecord record;
    LoadChain({{qz4::tag::TIMELOG, [&] {
                    record.log_depth = LoadDouble();
                    record.times = LoadDepthVector();
                }}});
    return record;
}

std::size_t QZ4LoadFile::LoadDataStorageMap()
{
    std::size_t count = 0;
    LoadChain({{qz4::tag::DATASTORAGE_MAP, [&] { count = LoadVectorSize(1); }}});
    return count;
}

std::pair<DATA_STORAGE_CHANNEL_Struct, std::vector<float>> QZ4LoadFile::LoadStorageDataChannel()
{
    LoadMagicWord(qz4::STORAGEDATACHANNEL);
    std::pair<DATA_STORAGE_CHANNEL_Struct, std::vector<float>> result;
    LoadChain({{qz4::tag::STORAGE_DATACHANNEL, [&] {
                    result.first.name = LoadString();
                    result.first.identifier = LoadDataChannelIdentifier();
                    result.first.curve_info = LoadHeaderRow();
                    result.second = LoadDataVector();
                }}});
    return result;
}
