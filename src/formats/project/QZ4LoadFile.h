// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "formats/project/InFile.h"
#include "formats/project/SurveyDataRecord.h"
#include "formats/project/ViewRecords.h"
#include "model/BaseLogPassRecord.h"
#include "model/DataStorageChannelRecord.h"
#include "well/DepthMarker.h"
#include "well/PipeString.h"

#include <QColor>
#include <QPen>
#include <QStringList>

#include <functional>
#include <string>
#include <utility>
#include <vector>

class DataContainer;

/// Reads a project file, record by record in file order. In every chain an unknown item is skipped, and an
/// item that is missing leaves the default. Errors: std::ios_base::failure where the file ends too early,
/// std::invalid_argument where it holds what no project can.
class QZ4LoadFile : public InFile
{
public:
    /// What the main record says beside the well data.
    struct MainRecord
    {
        int current_survey_key = -1;
        int survey_count = 0;
    };
    struct DepthRecord
    {
        bool is_metric = true;
        float shift = 0;
        float stretch = 1;
        std::vector<double> depths;
    };
    struct TimeRecord
    {
        double log_depth = 0; ///< metres
        std::vector<double> times;
    };
    using Columns = std::vector<std::shared_ptr<std::vector<float>>>;

    /// Opens and checks the header. @throws std::invalid_argument for another format or version
    explicit QZ4LoadFile(QString const& path);

    /// @throws std::invalid_argument when another word stands there
    void LoadMagicWord(std::string const& word);
    /// Reads the size of the item that begins here; the position where it ends.
    [[nodiscard]] std::int64_t LoadAdditionalSettingsHeader();

    // Primitives
    [[nodiscard]] bool LoadBool() { return Read<unsigned char>() != 0; }
    [[nodiscard]] int LoadInt() { return Read<int>(); }
    [[nodiscard]] double LoadDouble() { return Read<double>(); }
    [[nodiscard]] float LoadValue() { return Read<float>(); }
    [[nodiscard]] QString LoadString();
    [[nodiscard]] QStringList LoadStringList();
    [[nodiscard]] QColor LoadColor();
    [[nodiscard]] QPen LoadPen();
    [[nodiscard]] Interval LoadInterval();
    [[nodiscard]] std::vector<float> LoadDataVector();
    [[nodiscard]] std::vector<double> LoadDepthVector();
    /// A count of elements that take at least `element_bytes` each in the file.
    /// @throws std::invalid_argument for a negative count
    [[nodiscard]] std::size_t LoadVectorSize(std::size_t element_bytes);

    // Records of the model
    /// Puts the well data into the container.
    [[nodiscard]] MainRecord LoadMain(DataContainer& container);
    [[nodiscard]] std::pair<int, QString> LoadSurveyNamesAndKeys();
    void LoadDataContainer();
    [[nodiscard]] SURVEY_DATA_Struct LoadSurveyData();
    [[nodiscard]] std::size_t LoadGenericLogPassMap();
    [[nodiscard]] BASE_LOGPASS_STRUCT LoadBaseLogPass();
    [[nodiscard]] Columns LoadGenericLogPass();
    [[nodiscard]] DepthRecord LoadBaseDepthChannel();
    [[nodiscard]] TimeRecord LoadTimeLog();
    [[nodiscard]] std::size_t LoadDataStorageMap();
    [[nodiscard]] int LoadDataStorageChannelKey() { return LoadInt(); }
    [[nodiscard]] std::pair<DATA_STORAGE_CHANNEL_Struct, std::vector<float>> LoadStorageDataChannel();

    // Records of the windows
    [[nodiscard]] COLUMN_WINDOW_Struct LoadColumnWindow();
    [[nodiscard]] std::vector<std::shared_ptr<VIEW_WIDGET_BASE_STRUCT>> LoadDataViews(std::size_t count);
    /// The kind of the view that follows.
    [[nodiscard]] QString LoadObjectName();
    /// Whether it is shown.
    [[nodiscard]] bool LoadCombinedViewWidget();
    void LoadScreens(COLUMN_WINDOW_Struct& record);

private:
    using ItemLoaders = std::vector<std::pair<char const*, std::function<void()>>>;

    /// Walks a chain; each item goes to the loader of its tag, or is skipped.
    void LoadChain(ItemLoaders const& loaders);
    /// One item without a chain byte before it.
    void LoadItem(ItemLoaders const& loaders);

    [[nodiscard]] QList<Zone> LoadZoneList();
    [[nodiscard]] QList<DepthMarker> LoadMarkerList();
    [[nodiscard]] PipeString LoadPipeString();
    [[nodiscard]] HeaderRow LoadHeaderRow();
    [[nodiscard]] LASHeaderSection LoadHeaderSection();
    [[nodiscard]] LogPassIdentifier LoadLogPassIdentifier();
    [[nodiscard]] DataChannelIdentifier LoadDataChannelIdentifier();
    [[nodiscard]] InterpretationParameters LoadInterpretationParameters();
    void LoadTrajectory(DataContainer& container, bool with_tie_in);
    void LoadOuterCement(std::vector<PipeString>& strings);

    void LoadViewWidget(VIEW_WIDGET_STRUCT& record);
    void LoadBaseDataView(BASE_DATAVIEW_STRUCT& record);
    void LoadIntermediateDataView(INTERMEDIATE_DATAVIEW_STRUCT& record);
    void LoadUserDataView(USER_DATAVIEW_STRUCT& record);
    void LoadImageDataView(IMAGE_DATAVIEW_STRUCT& record);
    void LoadMFCaliperDataview(MFC_DATAVIEW_STRUCT& record);
};
