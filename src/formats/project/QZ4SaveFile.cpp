// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/QZ4SaveFile.h"

#include "formats/project/QZ4Format.h"
#include "model/DataContainer.h"
#include "model/DepthChannel.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <stdexcept>
#include <system_error>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {
/// Sends what the system still holds of the file to the disk, so that the replacement of an older file is
/// complete.
void FlushToDisk(QByteArray const& path)
{
#ifdef Q_OS_UNIX
    int const file = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    bool const is_flushed =
        file >= 0 && (::fsync(file) == 0 || errno == EINVAL || errno == EROFS); // special files need not
    int error = is_flushed ? 0 : errno;
    if (file >= 0 && ::close(file) != 0 && error == 0) {
        error = errno;
    }
    if (error != 0) {
        throw std::system_error(error, std::generic_category(), "Unable to flush the file to the disk");
    }
#else
    (void)path;
#endif
}

/// Length of the longest run of whole UTF-8 characters that a 16-bit length can tell.
qsizetype StorableLength(QByteArray const& utf8)
{
    constexpr qsizetype greatest = std::numeric_limits<std::uint16_t>::max();
    if (utf8.size() <= greatest) {
        return utf8.size();
    }
    auto length = greatest;
    while (length > 0 && (static_cast<unsigned char>(utf8[length]) & 0xC0U) == 0x80U) {
        --length;
    }
    return length;
}
} // namespace

QZ4SaveFile::QZ4SaveFile(QString const& path) : path_(path)
{
    open(QFile::encodeName(path).constData(), std::ios::binary | std::ios::out | std::ios::trunc);
    if (!is_open()) {
        throw std::system_error(errno, std::generic_category(), "Unable to open file for writing");
    }
    exceptions(std::ios::badbit | std::ios::failbit);
    write(qz4::FILE_MAGIC_WORD, sizeof(qz4::FILE_MAGIC_WORD) - 1);
    SaveInt(qz4::VERSION);
    SaveInt(0); // no further header bytes
}

void QZ4SaveFile::Close()
{
    flush();
    FlushToDisk(QFile::encodeName(path_));
    close();
}

void QZ4SaveFile::SaveString(QString const& text)
{
    auto const utf8 = text.toUtf8();
    auto const length = StorableLength(utf8);
    SaveWord(static_cast<std::uint16_t>(length));
    write(utf8.constData(), length);
}

void QZ4SaveFile::SaveStringList(QStringList const& texts)
{
    SaveVectorSize(static_cast<std::size_t>(texts.size()));
    for (auto const& text : texts) {
        SaveString(text);
    }
}

void QZ4SaveFile::SaveColor(QColor const& color)
{
    SaveInt(color.red());
    SaveInt(color.green());
    SaveInt(color.blue());
}

void QZ4SaveFile::SavePen(QPen const& pen)
{
    SaveColor(pen.color());
    SaveInt(pen.width());
    SaveByte(static_cast<std::uint8_t>(pen.style()));
}

void QZ4SaveFile::SaveInterval(Interval const& interval)
{
    SaveDouble(interval.lower);
    SaveDouble(interval.upper);
}

void QZ4SaveFile::SaveVectorSize(std::size_t size)
{
    if (size > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
        throw std::length_error("More than 2,147,483,647 elements in one list");
    }
    SaveInt(static_cast<std::int32_t>(size));
}

void QZ4SaveFile::SaveDataVector(std::vector<float> const& values)
{
    SaveVectorSize(values.size());
    write(reinterpret_cast<char const*>(values.data()),
          static_cast<std::streamsize>(values.size() * sizeof(float)));
}

void QZ4SaveFile::SaveDepthVector(std::vector<double> const& depths)
{
    SaveVectorSize(depths.size());
    write(reinterpret_cast<char const*>(depths.data()),
          static_cast<std::streamsize>(depths.size() * sizeof(double)));
}

void QZ4SaveFile::SaveMagicWord(char const* word)
{
    SaveString(QString::fromLatin1(word));
}

std::streamoff QZ4SaveFile::GetPosition()
{
    std::streamoff const position = tellp();
    if (position < 0) {
        setstate(std::ios::badbit); // throws; the stream keeps this failure to itself
    }
    return position;
}

std::streamoff QZ4SaveFile::SaveAdditionalSettingsHeader(char const* tag)
{
    auto const start = GetPosition();
    SaveInt(0);
    SaveString(QString::fromLatin1(tag));
    return start;
}

void QZ4SaveFile::SaveSettingsSize(std::streamoff start)
{
    auto const end = GetPosition();
    seekp(start);
    SaveUnsignedInt(
        static_cast<std::uint32_t>(end - start)); // past 4 GiB the low bits, which readers of the tag ignore
    seekp(end);
}

void QZ4SaveFile::SaveMain(int current_survey_key, int survey_count, DataContainer const& container)
{
    namespace tag = qz4::tag;
    SaveMagicWord(qz4::MAIN);
    SaveItem(tag::PERFORATIONS, [&] { SaveZoneList(container.GetPerforationZones()); });
    SaveItem(tag::ZONE_TRACKS, [&] {
        SaveVectorSize(static_cast<std::size_t>(container.GetZoneTracks().size()));
        for (auto const& track : container.GetZoneTracks()) {
            SaveString(track.GetName());
            SaveZoneList(track.GetZones());
        }
    });
    SaveItem(tag::TRAJECTORY_TIE_IN, [&] {
        auto const stations = container.GetDirectionalSurveyVector();
        SaveVectorSize(stations.size());
        for (auto const& station : stations) {
            SaveDepth(station.measured_depth);
            SaveValue(station.inclination);
            SaveValue(station.azimuth);
        }
        auto const tie_in = container.GetDirectionalSurveyTieInData();
        SaveDouble(tie_in.tvd);
        SaveDouble(tie_in.ns);
        SaveDouble(tie_in.ew);
    });
    SaveItem(tag::WELL_COMPONENTS, [&] {
        SaveVectorSize(static_cast<std::size_t>(container.GetComponents().size()));
        for (auto const& component : container.GetComponents()) {
            SaveInterval(component.depth);
            SaveInt(static_cast<std::int32_t>(component.type));
            SaveString(component.description);
        }
    });
    SaveItem(tag::MARKERS_A, [&] { SaveMarkerList(container.GetMarkersA()); });
    SaveItem(tag::MARKERS_B, [&] { SaveMarkerList(container.GetMarkersB()); });
    SaveItem(tag::CURRENT_SURVEY_KEY, [&] { SaveInt(current_survey_key); });
    SaveItem(tag::SURVEY_MAP_SIZE, [&] { SaveInt(survey_count); });
    auto const& strings = container.GetPipeStringData().GetPipeStringVector();
    SaveItem(tag::PIPE_STRINGS, [&] {
        SaveVectorSize(strings.size());
        for (auto const& string : strings) {
            SavePipeString(string);
        }
    });
    SaveItem(tag::OUTER_CEMENT, [&] {
        SaveVectorSize(strings.size());
        for (auto const& string : strings) {
            SaveBool(string.ContainsOuterCementData());
            if (string.ContainsOuterCementData()) {
                auto const [description, interval] = string.GetOuterCementData();
                SaveString(description);
                SaveInterval(interval);
            }
        }
    });
    SaveItem(tag::WELL_NAME, [&] { SaveString(container.GetWellName()); });
    EndChain();
}

void QZ4SaveFile::SaveZoneList(QList<Zone> const& zones)
{
    SaveVectorSize(static_cast<std::size_t>(zones.size()));
    for (auto const& zone : zones) {
        SaveInterval(zone.GetDepth());
        SaveString(zone.GetDescription());
        SaveColor(zone.GetColor());
    }
}

void QZ4SaveFile::SaveMarkerList(QList<DepthMarker> const& markers)
{
    SaveVectorSize(static_cast<std::size_t>(markers.size()));
    for (auto const& marker : markers) {
        SaveDepth(marker.depth);
        SaveString(marker.text);
    }
}

void QZ4SaveFile::SavePipeString(PipeString const& string)
{
    SaveDepth(string.GetSetDepth_metric());
    SaveString(string.GetName());
    SaveBool(string.GetIsTubing());
    auto const components = string.GetPipeComponentVector();
    SaveVectorSize(components.size());
    for (auto const& component : components) {
        SaveValue(component.GetOD());
        SaveValue(component.GetID());
        SaveValue(component.GetWeight());
        SaveString(component.GetDescription());
        SaveDouble(component.GetLength());
    }
}

void QZ4SaveFile::SaveSurveyNamesAndKeys(int key, QString const& name)
{
    auto const start = SaveAdditionalSettingsHeader(qz4::tag::SURVEY_NAME_AND_KEY);
    SaveInt(key);
    SaveString(name);
    SaveSettingsSize(start);
}

void QZ4SaveFile::SaveDataContainer()
{
    EndChain();
}

void QZ4SaveFile::SaveSurveyData(SURVEY_DATA_Struct const& record)
{
    namespace tag = qz4::tag;
    SaveMagicWord(qz4::SURVEYDATA);
    SaveItem(tag::SURVEY_TEXT, [&] { SaveString(record.survey_text); });
    SaveItem(tag::INTERPRETATION_ZONES, [&] { SaveZoneList(record.interpretation_zones); });
    SaveItem(tag::INTERPRETATION_PARAMETERS, [&] {
        auto const& parameters = record.interpretation_parameters;
        SaveInt(parameters.GetFlowRate());
        SaveValue(parameters.GetVpcf());
        SaveValue(parameters.GetThresholdPos());
        SaveValue(parameters.GetThresholdNeg());
        SaveValue(parameters.GetSlopePos());
        SaveValue(parameters.GetSlopeNeg());
        SaveString(parameters.GetSpinnerMnem());
        SaveString(parameters.GetCableSpeedMnem());
        SaveBool(parameters.GetUseFixedId());
        SaveValue(parameters.GetFixedIdValue());
        SaveBool(parameters.GetUseSecondCaliper());
        SaveString(parameters.GetFirstCaliperMnem());
        SaveString(parameters.GetSecondCaliperMnem());
    });
    EndChain();
}

void QZ4SaveFile::SaveGenericLogPassMap(std::size_t count)
{
    SaveItem(qz4::tag::LOGPASS_MAP, [&] { SaveVectorSize(count); });
    EndChain();
}

void QZ4SaveFile::SaveHeaderRow(HeaderRow const& row)
{
    SaveString(row.mnemonic);
    SaveString(row.unit);
    SaveString(row.data);
    SaveString(row.description);
}

void QZ4SaveFile::SaveHeaderSection(LASHeaderSection const& section)
{
    SaveVectorSize(section.size());
    for (auto const& row : section) {
        SaveHeaderRow(row);
    }
}

void QZ4SaveFile::SaveLogPassIdentifier(LogPassIdentifier const& identifier)
{
    SaveInt(identifier.survey_key);
    SaveString(identifier.hash);
}

void QZ4SaveFile::SaveDataChannelIdentifier(DataChannelIdentifier const& identifier)
{
    SaveLogPassIdentifier(identifier.GetLogPassIdentifier());
    SaveInt(identifier.GetIndex());
}

void QZ4SaveFile::SaveBaseLogPass(BASE_LOGPASS_STRUCT const& record)
{
    SaveItem(qz4::tag::BASELOG, [&] {
        SaveBool(record.properties.highlighted);
        SaveBool(record.properties.hidden);
        SaveLogPassIdentifier(record.properties.identifier);
        SavePen(record.properties.pen);
        SaveHeaderSection(record.version_header);
        SaveHeaderSection(record.well_info_header);
        SaveHeaderSection(record.curve_info_header);
        SaveHeaderSection(record.parameter_info_header);
        SaveHeaderSection(record.other_header);
        SaveString(record.file_path_and_name);
    });
    SaveItem(qz4::tag::ARRAY_MNEMS, [&] { SaveStringList(record.array_mnems); });
    EndChain();
}

void QZ4SaveFile::SaveGenericLogPass(std::vector<std::shared_ptr<std::vector<float>>> const& columns)
{
    SaveItem(qz4::tag::GENERIC_LOG, [&] {
        SaveVectorSize(columns.size());
        for (auto const& column : columns) {
            SaveDataVector(*column);
        }
    });
    EndChain();
}

void QZ4SaveFile::SaveBaseDepthChannel(DepthChannel const& depth)
{
    SaveItem(qz4::tag::BASE_DEPTHCHANNEL, [&] {
        SaveBool(depth.IsNativeDepthMetric());
        SaveValue(static_cast<float>(depth.GetShift()));
        SaveValue(static_cast<float>(depth.GetStretch()));
        SaveDepthVector(depth.GetNativeDepthVector());
    });
    EndChain();
}

void QZ4SaveFile::SaveTimeLog(double log_depth_metres, std::vector<double> const& times)
{
    SaveMagicWord(qz4::TIMELOG);
    SaveItem(qz4::tag::TIMELOG, [&] {
        SaveDepth(log_depth_metres);
        SaveDepthVector(times);
    });
    EndChain();
}

void QZ4SaveFile::SaveDataStorageMap(std::size_t count)
{
    SaveItem(qz4::tag::DATASTORAGE_MAP, [&] { SaveVectorSize(count); });
    EndChain();
}

void QZ4SaveFile::SaveStorageDataChannel(DATA_STORAGE_CHANNEL_Struct const& record,
                                         std::vector<float> const& values)
{
    SaveMagicWord(qz4::STORAGEDATACHANNEL);
    SaveItem(qz4::tag::STORAGE_DATACHANNEL, [&] {
        SaveString(record.name);
        SaveDataChannelIdentifier(record.identifier);
        SaveHeaderRow(record.curve_info);
        SaveDataVector(values);
    });
    EndChain();
}
