// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/ProjectFile.h"

#include "app/kit/TemporaryFile.h"
#include "formats/project/QZ4LoadFile.h"
#include "formats/project/QZ4SaveFile.h"
#include "model/DataContainer.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace {
void WriteState_QuorrelFrame(QZ4SaveFile& file, DataContainer const& container,
                             project_file::ColumnWindowRecords const& windows, int current_survey_key)
{
    auto const keys = container.GetAllSurveyKeys();
    file.SaveMain(current_survey_key, static_cast<int>(keys.size()), container);
    for (auto const key : keys) {
        file.SaveSurveyNamesAndKeys(key, container.GetSurveyName(key));
        container.WriteState_DataContainer(key, file);
    }
    for (auto const key : keys) {
        auto const window = windows.find(key);
        file.SaveColumnWindow(window == windows.end() ? COLUMN_WINDOW_Struct() : window->second);
    }
    file.Close();
}

void Write(QString const& path, DataContainer const& container,
           project_file::ColumnWindowRecords const& windows, int current_survey_key)
{
    QZ4SaveFile file(path);
    try {
        WriteState_QuorrelFrame(file, container, windows, current_survey_key);
    } catch (std::ios_base::failure const&) {
        // The stream knows only that it failed; its last system call left the reason.
        throw std::system_error(errno, std::generic_category(), "Unable to write the file");
    }
}

/// Logs fill their columns up to the length of the axis. A damaged file could ask for far more than it holds,
/// so all of its missing samples together may take as much as the file itself and a little.
class MissingSamples
{
public:
    explicit MissingSamples(std::int64_t file_size)
        : allowance_(1'000'000 + static_cast<std::size_t>(file_size) / sizeof(DataValueType))
    {
    }
    /// @throws std::invalid_argument when there are too many
    void Take(QZ4LoadFile::Columns const& columns, std::size_t axis_length)
    {
        for (auto const& column : columns) {
            auto const missing = axis_length - std::min(axis_length, column->size());
            if (missing > allowance_) {
                throw std::invalid_argument("Invalid .qz4 file. Logs have far fewer samples than their axes");
            }
            allowance_ -= missing;
        }
    }

private:
    std::size_t allowance_;
};

void RestoreDepthLogPasses(QZ4LoadFile& file, MissingSamples& missing, DataContainer& container, int key)
{
    for (auto count = file.LoadGenericLogPassMap(); count > 0; --count) {
        auto record = file.LoadBaseLogPass();
        auto columns = file.LoadGenericLogPass();
        auto depth = file.LoadBaseDepthChannel();
        missing.Take(columns, depth.depths.size());
        container.AddDepthLogPass(key,
                                  std::make_shared<DepthLogPass>(record, std::move(columns), depth.is_metric,
                                                                 depth.shift, depth.stretch, depth.depths));
    }
}

void RestoreTimeLogs(QZ4LoadFile& file, MissingSamples& missing, DataContainer& container, int key)
{
    for (auto count = file.LoadGenericLogPassMap(); count > 0; --count) {
        auto record = file.LoadBaseLogPass();
        auto columns = file.LoadGenericLogPass();
        auto time = file.LoadTimeLog();
        missing.Take(columns, time.times.size());
        container.AddTimeLog(key, std::make_shared<TimeLog>(record, std::move(columns), std::move(time.times),
                                                            static_cast<float>(time.log_depth)));
    }
}

void RestoreStorageChannels(QZ4LoadFile& file, DataContainer& container, int key)
{
    for (auto count = file.LoadDataStorageMap(); count > 0; --count) {
        int const storage_key = file.LoadDataStorageChannelKey();
        auto [record, values] = file.LoadStorageDataChannel();
        auto depth = file.LoadBaseDepthChannel();
        auto samples = std::make_shared<std::vector<float>>(std::move(values));
        container.AddStorageChannel(key, storage_key,
                                    std::make_shared<StorageDataChannel>(record, depth.is_metric, depth.shift,
                                                                         depth.stretch, depth.depths,
                                                                         samples));
    }
}

void RestoreSurvey(QZ4LoadFile& file, MissingSamples& missing, DataContainer& container, int key,
                   QString const& name)
{
    if (container.GetAllSurveyKeys().contains(key)) {
        throw std::invalid_argument("Invalid .qz4 file. Two surveys have the key " + std::to_string(key));
    }
    container.AddSurvey(key, name);
    file.LoadDataContainer();
    auto const data = file.LoadSurveyData();
    container.SetInterpretationZones(key, data.interpretation_zones);
    container.SetInterpretationParameters(key, data.interpretation_parameters);
    container.SetSurveyText(key, data.survey_text);
    RestoreDepthLogPasses(file, missing, container, key);
    RestoreTimeLogs(file, missing, container, key);
    RestoreStorageChannels(file, container, key);
}
} // namespace

void project_file::Save(QString const& path, DataContainer const& container,
                        ColumnWindowRecords const& windows, int current_survey_key)
{
    TemporaryFile temporary(path);
    if (auto const name = temporary.GetFullTemporaryFileName(); !name.isEmpty()) {
        Write(name, container, windows, current_survey_key);
        if (temporary.MoveTemporaryFileToDestination()) {
            return;
        }
    }
    // No folder for a temporary file, or one on another volume than the destination.
    auto const previous = TemporaryFile::GetSetAsideName(path);
    bool const is_set_aside = !QFile::exists(path) && QFile::exists(previous);
    try {
        Write(path, container, windows, current_survey_key);
    } catch (std::exception const& error) {
        if (is_set_aside) { // and could not be put back
            throw std::runtime_error(error.what() +
                                     (". The previous project is kept as " + previous).toStdString());
        }
        throw;
    }
}

project_file::LoadedProject project_file::Load(QString const& path, DataContainer& container)
{
    QZ4LoadFile file(path);
    MissingSamples missing(file.GetRemaining());
    LoadedProject project;
    auto const main = file.LoadMain(container);
    project.current_survey_key = main.current_survey_key;
    for (int i = 0; i < main.survey_count; ++i) {
        auto const [key, name] = file.LoadSurveyNamesAndKeys();
        RestoreSurvey(file, missing, container, key, name);
    }
    // Each window record belongs to a survey by its place alone.
    for (auto const key : container.GetAllSurveyKeys()) {
        project.windows->emplace(key, file.LoadColumnWindow());
    }
    return project;
}
