// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "formats/project/SurveyDataRecord.h"
#include "formats/project/ViewRecords.h"
#include "model/BaseLogPassRecord.h"
#include "model/DataStorageChannelRecord.h"
#include "well/DepthMarker.h"
#include "well/Zone.h"

#include <QColor>
#include <QPen>
#include <QStringList>

#include <cstdint>
#include <fstream>
#include <vector>

class DataContainer;
class DepthChannel;
class PipeString;

/// Writes a project file. Opens it truncating and writes the file header; every failure to write is a
/// std::ios_base::failure. The stream seeks back to patch item sizes. Close() flushes to the disk; a
/// destructor without Close() leaves whatever was written.
///
/// Nearly everything stands in chains of tagged items (byte 1, size, tag, payload; byte 0 ends the chain),
/// which lets older readers skip what they do not know.
class QZ4SaveFile : private std::ofstream
{
public:
    /// @throws std::ios_base::failure, std::runtime_error when the file cannot be opened
    explicit QZ4SaveFile(QString const& path);

    /// Flushes to the disk and closes. @throws std::ios_base::failure, std::runtime_error
    void Close();

    // Primitives
    void SaveByte(std::uint8_t value) { Put(value); }
    void SaveBool(bool value) { Put(static_cast<std::uint8_t>(value ? 1 : 0)); }
    void SaveWord(std::uint16_t value) { Put(value); }
    void SaveInt(std::int32_t value) { Put(value); }
    void SaveUnsignedInt(std::uint32_t value) { Put(value); }
    void SaveDouble(double value) { Put(value); }
    void SaveDepth(double value) { Put(value); }
    void SaveValue(float value) { Put(value); }
    /// UTF-8, cut to what its 16-bit length can tell (65,535 bytes, whole characters).
    void SaveString(QString const& text);
    void SaveStringList(QStringList const& texts);
    void SaveColor(QColor const& color);
    void SavePen(QPen const& pen);
    /// Lower, then upper, never sorted.
    void SaveInterval(Interval const& interval);
    void SaveDepthInterval(Interval const& interval) { SaveInterval(interval); }
    void SaveDataVector(std::vector<float> const& values);
    void SaveDepthVector(std::vector<double> const& depths);
    /// @throws std::length_error beyond what a count can tell
    void SaveVectorSize(std::size_t size);
    void SaveMagicWord(char const* word);

    /// Begins an item with a size still to come; its start.
    [[nodiscard]] std::streamoff SaveAdditionalSettingsHeader(char const* tag);
    /// Patches the size of the item that began at `start`.
    void SaveSettingsSize(std::streamoff start);

    // Records of the model
    void SaveMain(int current_survey_key, int survey_count, DataContainer const& container);
    void SaveSurveyNamesAndKeys(int key, QString const& name);
    /// The empty chain for settings of a whole survey.
    void SaveDataContainer();
    void SaveSurveyData(SURVEY_DATA_Struct const& record);
    void SaveGenericLogPassMap(std::size_t count);
    void SaveBaseLogPass(BASE_LOGPASS_STRUCT const& record);
    void SaveGenericLogPass(std::vector<std::shared_ptr<std::vector<float>>> const& columns);
    void SaveBaseDepthChannel(DepthChannel const& depth);
    void SaveTimeLog(double log_depth_metres, std::vector<double> const& times);
    void SaveDataStorageMap(std::size_t count);
    void SaveDataStorageChannelKey(int key) { SaveInt(key); }
    void SaveStorageDataChannel(DATA_STORAGE_CHANNEL_Struct const& record, std::vector<float> const& values);

    // Records of the windows
    /// The whole column: basic data, views, screens.
    void SaveColumnWindow(COLUMN_WINDOW_Struct const& record);
    void SaveTotalDisplayedInterval(bool override_interval, Interval const& total);
    void SaveSplitterSizes(QList<int> const& sizes);
    void SaveScreens(std::map<QString, ScreenRecord> const& screens, QString const& current_screen_name);
    void SaveObjectName(QString const& object_name);
    void SaveCombinedViewWidget(bool is_visible);
    void SaveViewWidget(VIEW_WIDGET_STRUCT const& record);
    void SaveBaseDataView(BASE_DATAVIEW_STRUCT const& record);
    void SaveIntermediateDataView(INTERMEDIATE_DATAVIEW_STRUCT const& record);
    void SaveUserDataView(USER_DATAVIEW_STRUCT const& record);
    void SaveImageDataView(IMAGE_DATAVIEW_STRUCT const& record);
    void SaveMFCaliperDataview(MFC_DATAVIEW_STRUCT const& record);

private:
    template <typename T>
    void Put(T value)
    {
        write(reinterpret_cast<char const*>(&value), sizeof(value));
    }
    template <typename Payload>
    void SaveItem(char const* tag, Payload payload);
    [[nodiscard]] std::streamoff GetPosition();
    void EndChain() { SaveByte(0); }

    void SaveZoneList(QList<Zone> const& zones);
    void SaveMarkerList(QList<DepthMarker> const& markers);
    void SavePipeString(PipeString const& string);
    void SaveHeaderRow(HeaderRow const& row);
    void SaveHeaderSection(LASHeaderSection const& section);
    void SaveLogPassIdentifier(LogPassIdentifier const& identifier);
    void SaveDataChannelIdentifier(DataChannelIdentifier const& identifier);
    void SaveSurveyDataItems(SURVEY_DATA_Struct const& record);

    QString path_;
};

template <typename Payload>
void QZ4SaveFile::SaveItem(char const* tag, Payload payload)
{
    SaveByte(1);
    auto const start = SaveAdditionalSettingsHeader(tag);
    payload();
    SaveSettingsSize(start);
}
