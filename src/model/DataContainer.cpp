// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DataContainer.h"

namespace {
bool IsStorage(DataChannelIdentifier const& identifier)
{
    return identifier.GetHash() == Survey::DATA_STORAGE_NAME_IDENTIFIER;
}
} // namespace

void DataContainer::ClearAll()
{
    well_name_.clear();
    surveys_.ClearSurveyMap();
    directional_survey_ = DirectionalSurveyData();
    pipe_strings_ = PipeStringData();
    components_.clear();
    zone_tracks_.clear();
    perforation_zones_.clear();
    markers_a_.clear();
    markers_b_.clear();
}

QString DataContainer::GetSurveyName(int survey_key) const
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetName() : QString();
}

QString DataContainer::GetSurveyText(int survey_key) const
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetSurveyText() : QString();
}

void DataContainer::SetSurveyText(int survey_key, QString const& text)
{
    if (auto const survey = GetSurvey(survey_key).lock()) {
        survey->SetSurveyText(text);
    }
}

Interval DataContainer::GetTotalDepthInterval(int survey_key) const
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetTotalDepthInterval() : Interval();
}

std::optional<LogPassIdentifier> DataContainer::AddImportedLogPassToSurvey(LASFile& file, QString const& path,
                                                                           int survey_key)
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->AddLogPass(file, path) : std::nullopt;
}

void DataContainer::AddDepthLogPass(int survey_key, std::shared_ptr<DepthLogPass> const& log_pass)
{
    if (auto const survey = GetSurvey(survey_key).lock()) {
        survey->AddDepthLogPass(log_pass);
    }
}

void DataContainer::AddTimeLog(int survey_key, std::shared_ptr<TimeLog> const& log)
{
    if (auto const survey = GetSurvey(survey_key).lock()) {
        survey->AddTimeLog(log);
    }
}

void DataContainer::DeleteLogPass(LogPassIdentifier const& identifier)
{
    if (auto const survey = GetSurvey(identifier.survey_key).lock()) {
        survey->DeleteLogPass(identifier.hash);
    }
}

std::shared_ptr<DepthLogPass> DataContainer::GetDepthLogPass(LogPassIdentifier const& identifier)
{
    auto const survey = GetSurvey(identifier.survey_key).lock();
    return survey ? survey->GetDepthLogPass(identifier.hash) : nullptr;
}

std::shared_ptr<DepthLogPass const> DataContainer::GetDepthLogPass(LogPassIdentifier const& identifier) const
{
    auto const survey = GetSurvey(identifier.survey_key).lock();
    return survey ? survey->GetDepthLogPass(identifier.hash) : nullptr;
}

std::shared_ptr<TimeLog> DataContainer::GetTimeLog(LogPassIdentifier const& identifier)
{
    auto const survey = GetSurvey(identifier.survey_key).lock();
    return survey ? survey->GetTimeLog(identifier.hash) : nullptr;
}

std::shared_ptr<TimeLog const> DataContainer::GetTimeLog(LogPassIdentifier const& identifier) const
{
    auto const survey = GetSurvey(identifier.survey_key).lock();
    return survey ? survey->GetTimeLog(identifier.hash) : nullptr;
}

QList<QString> DataContainer::GetDepthLogNames(int survey_key) const
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetDepthLogNames() : QList<QString>();
}

QList<QString> DataContainer::GetDepthLogIdentifierHashes(int survey_key) const
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetDepthLogIdentifierHashes() : QList<QString>();
}

QList<QString> DataContainer::GetTimeLogIdentifierHashes(int survey_key) const
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetTimeLogIdentifierHashes() : QList<QString>();
}

int DataContainer::GetLogPassNumber(LogPassIdentifier const& identifier) const
{
    auto const survey = GetSurvey(identifier.survey_key).lock();
    return survey ? survey->GetLogPassNumber(identifier.hash) : -1;
}

LogPassProperties DataContainer::GetLogPassProperties(LogPassIdentifier const& identifier) const
{
    auto const survey = GetSurvey(identifier.survey_key).lock();
    return survey ? survey->GetLogPassProperties(identifier.hash) : LogPassProperties();
}

void DataContainer::SetLogPassProperties(LogPassIdentifier const& identifier,
                                         LogPassProperties const& properties)
{
    if (auto const survey = GetSurvey(identifier.survey_key).lock()) {
        survey->SetLogPassProperties(identifier.hash, properties);
    }
}

void DataContainer::SetLogDepth(LogPassIdentifier const& identifier, float log_depth_metres)
{
    if (auto const log = GetTimeLog(identifier)) {
        log->SetLogDepth(log_depth_metres);
    }
}

std::shared_ptr<BaseDataChannel const>
DataContainer::GetDataChannel(DataChannelIdentifier const& identifier) const
{
    auto const survey = GetSurvey(identifier.GetSurveyKey()).lock();
    return survey ? survey->GetDataChannel(identifier.GetHash(), identifier.GetIndex()) : nullptr;
}

std::shared_ptr<BaseDepthDataChannel const>
DataContainer::GetDepthDataChannel(DataChannelIdentifier const& identifier) const
{
    auto const survey = GetSurvey(identifier.GetSurveyKey()).lock();
    return survey ? survey->GetDepthDataChannel(identifier.GetHash(), identifier.GetIndex()) : nullptr;
}

std::shared_ptr<TimeLogDataChannel const>
DataContainer::GetTimeDataChannel(DataChannelIdentifier const& identifier) const
{
    auto const survey = GetSurvey(identifier.GetSurveyKey()).lock();
    return survey ? survey->GetTimeDataChannel(identifier) : nullptr;
}

HeaderRow DataContainer::GetCurveInfo(DataChannelIdentifier const& identifier) const
{
    auto const channel = GetDataChannel(identifier);
    return channel ? channel->GetCurveInfo() : HeaderRow();
}

QList<QString> DataContainer::GetDataChannelNames(LogPassIdentifier const& identifier) const
{
    auto const survey = GetSurvey(identifier.survey_key).lock();
    return survey ? survey->GetDataChannelNames(identifier.hash) : QList<QString>();
}

QList<DataChannelIdentifier> DataContainer::GetDataChannelIdentifiers(LogPassIdentifier const& identifier,
                                                                      QString const& pattern) const
{
    auto const survey = GetSurvey(identifier.survey_key).lock();
    return survey ? survey->GetDataIdentifiers(identifier.hash, pattern) : QList<DataChannelIdentifier>();
}

QList<DataChannelIdentifier> DataContainer::GetDataChannelIdentifiers(LogPassIdentifier const& identifier,
                                                                      QList<QString> const& mnemonics) const
{
    QList<DataChannelIdentifier> identifiers;
    auto const survey = GetSurvey(identifier.survey_key).lock();
    if (!survey) {
        return identifiers;
    }
    BaseLog const& log = survey->GetLogs().GetLog(identifier.hash);
    for (QString const& mnemonic : mnemonics) {
        if (int const index = log.FindDataChannelByMnem(mnemonic); index >= 0) {
            identifiers.append(DataChannelIdentifier(identifier, index));
        }
    }
    return identifiers;
}

std::shared_ptr<StorageDataChannel> DataContainer::GetStorageDataChannel(int survey_key, int storage_key)
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetStorageDataChannel(storage_key) : nullptr;
}

std::shared_ptr<StorageDataChannel const> DataContainer::GetStorageDataChannel(int survey_key,
                                                                               int storage_key) const
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetStorageDataChannel(storage_key) : nullptr;
}

QList<int> DataContainer::GetStorageKeys(int survey_key) const
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetStorageKeys() : QList<int>();
}

void DataContainer::AddStorageChannel(int survey_key, int storage_key,
                                      std::shared_ptr<StorageDataChannel> const& channel)
{
    if (auto const survey = GetSurvey(survey_key).lock()) {
        survey->AddDataChannelToDataStorage(storage_key, channel);
    }
}

DataChannelIdentifier DataContainer::CopyDataChannelToStorage(DataChannelIdentifier const& identifier,
                                                              int survey_key)
{
    auto const source = GetDepthDataChannel(identifier);
    auto const survey = GetSurvey(survey_key).lock();
    if (!source || !survey) {
        return {};
    }
    int const key =
        survey->CopyDataChannelToStorage(source, GetLogPassNumber(identifier.GetLogPassIdentifier()));
    return {survey_key, Survey::DATA_STORAGE_NAME_IDENTIFIER, key};
}

int DataContainer::MoveStorageDataChannelToStorage(int survey_key,
                                                   std::shared_ptr<StorageDataChannel> const& channel)
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->MoveStorageDataChannelToStorage(channel) : -1;
}

QString DataContainer::RenameStorageDataChannel(DataChannelIdentifier const& identifier, QString const& name)
{
    auto const survey = GetSurvey(identifier.GetSurveyKey()).lock();
    return survey ? survey->RenameStorageDataChannel(identifier, name) : QString();
}

void DataContainer::DeleteStorageDataChannel(DataChannelIdentifier const& identifier)
{
    if (auto const survey = GetSurvey(identifier.GetSurveyKey()).lock()) {
        survey->DeleteStorageDataChannel(identifier);
    }
}

void DataContainer::ApplyShift(LogPassIdentifier const& identifier, double delta)
{
    if (auto const log_pass = GetDepthLogPass(identifier)) {
        log_pass->ApplyShift(delta);
    }
}

void DataContainer::ApplyShift(DataChannelIdentifier const& identifier, double delta)
{
    if (!IsStorage(identifier)) {
        ApplyShift(identifier.GetLogPassIdentifier(), delta);
    } else if (auto const channel = GetStorageDataChannel(identifier.GetSurveyKey(), identifier.GetIndex())) {
        channel->GetDepth().ApplyShift(delta);
    }
}

void DataContainer::ApplyStretch(LogPassIdentifier const& identifier, float start_drag_depth,
                                 float drag_depth, float anchor_depth)
{
    if (auto const log_pass = GetDepthLogPass(identifier)) {
        log_pass->ApplyStretch(static_cast<double>(start_drag_depth), static_cast<double>(drag_depth),
                               static_cast<double>(anchor_depth));
    }
}

void DataContainer::ApplyStretch(DataChannelIdentifier const& identifier, float start_drag_depth,
                                 float drag_depth, float anchor_depth)
{
    if (!IsStorage(identifier)) {
        ApplyStretch(identifier.GetLogPassIdentifier(), start_drag_depth, drag_depth, anchor_depth);
    } else if (auto const channel = GetStorageDataChannel(identifier.GetSurveyKey(), identifier.GetIndex())) {
        channel->GetDepth().ApplyStretch(static_cast<double>(start_drag_depth),
                                         static_cast<double>(drag_depth), static_cast<double>(anchor_depth));
    }
}

void DataContainer::SetDepthStretchShift(LogPassIdentifier const& identifier, float stretch, float shift)
{
    if (auto const log_pass = GetDepthLogPass(identifier)) {
        log_pass->SetDepthStretchShift(static_cast<double>(stretch), static_cast<double>(shift));
    }
}

void DataContainer::SetDepthStretchShift(DataChannelIdentifier const& identifier, float stretch, float shift)
{
    if (!IsStorage(identifier)) {
        SetDepthStretchShift(identifier.GetLogPassIdentifier(), stretch, shift);
    } else if (auto const channel = GetStorageDataChannel(identifier.GetSurveyKey(), identifier.GetIndex())) {
        channel->GetDepth().SetDepthStretchShift(static_cast<double>(stretch), static_cast<double>(shift));
    }
}

QList<Zone> const& DataContainer::GetInterpretationZones(int survey_key) const
{
    static QList<Zone> const no_zones;
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetInterpretationZones() : no_zones;
}

void DataContainer::SetInterpretationZones(int survey_key, QList<Zone> const& zones)
{
    if (auto const survey = GetSurvey(survey_key).lock()) {
        survey->SetInterpretationZones(zones);
    }
}

void DataContainer::AddInterpretationZone(int survey_key, Zone const& zone)
{
    if (auto const survey = GetSurvey(survey_key).lock()) {
        survey->AddInterpretationZone(zone);
    }
}

InterpretationParameters DataContainer::GetInterpretationParameters(int survey_key) const
{
    auto const survey = GetSurvey(survey_key).lock();
    return survey ? survey->GetInterpretationParameters() : InterpretationParameters();
}

void DataContainer::SetInterpretationParameters(int survey_key, InterpretationParameters const& parameters)
{
    if (auto const survey = GetSurvey(survey_key).lock()) {
        survey->SetInterpretationParameters(parameters);
    }
}

void DataContainer::SetTrajectorySurvey(std::vector<DirectionalSurveyItem> const& stations,
                                        DirectionalSurveyTieInData const& tie_in)
{
    directional_survey_ = DirectionalSurveyData(stations, tie_in);
}
