// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DataContainerWrapper.h"

/// The way to the project's data for views, dialogs and exporters: the container's operations under their own
/// names, reads through the wrapper's read access, writes through GetWriteAccess(false), so that each write
/// marks the project as modified. The main frame is one; where the windows have to follow a change, the
/// frame's own operation of the same name is the one to call. Values and errors as told at DataContainer.
class ProjectAccess
{
public:
    [[nodiscard]] DataContainerWrapper& GetDataContainerWrapper() { return wrapper_; }
    [[nodiscard]] DataContainerWrapper const& GetDataContainerWrapper() const { return wrapper_; }

    // Surveys
    QString AddSurvey(int survey_key, QString const& name) { return Write().AddSurvey(survey_key, name); }
    KeyType AddSurvey(QString const& name) { return Write().AddSurvey(name); }
    QString RenameSurvey(int survey_key, QString const& name)
    {
        return Write().RenameSurvey(survey_key, name);
    }
    void DeleteSurvey(int survey_key) { Write().DeleteSurvey(survey_key); }
    void ClearSurveyVector() { Write().ClearSurveyVector(); }
    [[nodiscard]] std::weak_ptr<Survey const> GetSurvey(int survey_key) const
    {
        return Read().GetSurvey(survey_key);
    }
    [[nodiscard]] QString GetSurveyName(int survey_key) const { return Read().GetSurveyName(survey_key); }
    [[nodiscard]] QList<QString> GetAllSurveyNames() const { return Read().GetAllSurveyNames(); }
    [[nodiscard]] QList<KeyType> GetAllSurveyKeys() const { return Read().GetAllSurveyKeys(); }
    [[nodiscard]] QString GetSurveyText(int survey_key) const { return Read().GetSurveyText(survey_key); }
    void SetSurveyText(int survey_key, QString const& text) { Write().SetSurveyText(survey_key, text); }
    [[nodiscard]] Interval GetTotalDepthInterval(int survey_key) const
    {
        return Read().GetTotalDepthInterval(survey_key);
    }

    // Logs
    std::optional<LogPassIdentifier> AddImportedLogPassToSurvey(LASFile& file, QString const& path,
                                                                int survey_key)
    {
        return Write().AddImportedLogPassToSurvey(file, path, survey_key);
    }
    void AddDepthLogPass(int survey_key, std::shared_ptr<DepthLogPass> const& log_pass)
    {
        Write().AddDepthLogPass(survey_key, log_pass);
    }
    void AddTimeLog(int survey_key, std::shared_ptr<TimeLog> const& log)
    {
        Write().AddTimeLog(survey_key, log);
    }
    void DeleteLogPass(LogPassIdentifier const& identifier) { Write().DeleteLogPass(identifier); }
    [[nodiscard]] std::shared_ptr<DepthLogPass const>
    GetDepthLogPass(LogPassIdentifier const& identifier) const
    {
        return Read().GetDepthLogPass(identifier);
    }
    [[nodiscard]] std::shared_ptr<TimeLog const> GetTimeLog(LogPassIdentifier const& identifier) const
    {
        return Read().GetTimeLog(identifier);
    }
    [[nodiscard]] QList<QString> GetDepthLogNames(int survey_key) const
    {
        return Read().GetDepthLogNames(survey_key);
    }
    [[nodiscard]] QList<QString> GetDepthLogIdentifierHashes(int survey_key) const
    {
        return Read().GetDepthLogIdentifierHashes(survey_key);
    }
    [[nodiscard]] QList<QString> GetTimeLogIdentifierHashes(int survey_key) const
    {
        return Read().GetTimeLogIdentifierHashes(survey_key);
    }
    [[nodiscard]] int GetLogPassNumber(LogPassIdentifier const& identifier) const
    {
        return Read().GetLogPassNumber(identifier);
    }
    [[nodiscard]] LogPassProperties GetLogPassProperties(LogPassIdentifier const& identifier) const
    {
        return Read().GetLogPassProperties(identifier);
    }
    void SetLogPassProperties(LogPassIdentifier const& identifier, LogPassProperties const& properties)
    {
        Write().SetLogPassProperties(identifier, properties);
    }
    void SetLogDepth(LogPassIdentifier const& identifier, float log_depth_metres)
    {
        Write().SetLogDepth(identifier, log_depth_metres);
    }

    // Channels
    [[nodiscard]] std::shared_ptr<BaseDataChannel const>
    GetDataChannel(DataChannelIdentifier const& identifier) const
    {
        return Read().GetDataChannel(identifier);
    }
    [[nodiscard]] std::shared_ptr<BaseDepthDataChannel const>
    GetDepthDataChannel(DataChannelIdentifier const& identifier) const
    {
        return Read().GetDepthDataChannel(identifier);
    }
    [[nodiscard]] std::shared_ptr<TimeLogDataChannel const>
    GetTimeDataChannel(DataChannelIdentifier const& identifier) const
    {
        return Read().GetTimeDataChannel(identifier);
    }
    [[nodiscard]] HeaderRow GetCurveInfo(DataChannelIdentifier const& identifier) const
    {
        return Read().GetCurveInfo(identifier);
    }
    [[nodiscard]] QList<QString> GetDataChannelNames(LogPassIdentifier const& identifier) const
    {
        return Read().GetDataChannelNames(identifier);
    }
    [[nodiscard]] QList<DataChannelIdentifier> GetDataChannelIdentifiers(LogPassIdentifier const& identifier,
                                                                         QString const& pattern) const
    {
        return Read().GetDataChannelIdentifiers(identifier, pattern);
    }
    [[nodiscard]] QList<DataChannelIdentifier>
    GetDataChannelIdentifiers(LogPassIdentifier const& identifier, QList<QString> const& mnemonics) const
    {
        return Read().GetDataChannelIdentifiers(identifier, mnemonics);
    }

    // Storage
    [[nodiscard]] std::shared_ptr<StorageDataChannel const> GetStorageDataChannel(int survey_key,
                                                                                  int storage_key) const
    {
        return Read().GetStorageDataChannel(survey_key, storage_key);
    }
    [[nodiscard]] QList<int> GetStorageKeys(int survey_key) const
    {
        return Read().GetStorageKeys(survey_key);
    }
    void AddStorageChannel(int survey_key, int storage_key,
                           std::shared_ptr<StorageDataChannel> const& channel)
    {
        Write().AddStorageChannel(survey_key, storage_key, channel);
    }
    DataChannelIdentifier CopyDataChannelToStorage(DataChannelIdentifier const& identifier, int survey_key)
    {
        return Write().CopyDataChannelToStorage(identifier, survey_key);
    }
    int MoveStorageDataChannelToStorage(int survey_key, std::shared_ptr<StorageDataChannel> const& channel)
    {
        return Write().MoveStorageDataChannelToStorage(survey_key, channel);
    }
    QString RenameStorageDataChannel(DataChannelIdentifier const& identifier, QString const& name)
    {
        return Write().RenameStorageDataChannel(identifier, name);
    }
    void DeleteStorageDataChannel(DataChannelIdentifier const& identifier)
    {
        Write().DeleteStorageDataChannel(identifier);
    }

    // Depth correction, metres; SetDepthStretchShift takes stretch, then shift
    void ApplyShift(LogPassIdentifier const& identifier, double delta)
    {
        Write().ApplyShift(identifier, delta);
    }
    void ApplyShift(DataChannelIdentifier const& identifier, double delta)
    {
        Write().ApplyShift(identifier, delta);
    }
    void ApplyStretch(LogPassIdentifier const& identifier, float start_drag_depth, float drag_depth,
                      float anchor_depth)
    {
        Write().ApplyStretch(identifier, start_drag_depth, drag_depth, anchor_depth);
    }
    void ApplyStretch(DataChannelIdentifier const& identifier, float start_drag_depth, float drag_depth,
                      float anchor_depth)
    {
        Write().ApplyStretch(identifier, start_drag_depth, drag_depth, anchor_depth);
    }
    void SetDepthStretchShift(LogPassIdentifier const& identifier, float stretch, float shift)
    {
        Write().SetDepthStretchShift(identifier, stretch, shift);
    }
    void SetDepthStretchShift(DataChannelIdentifier const& identifier, float stretch, float shift)
    {
        Write().SetDepthStretchShift(identifier, stretch, shift);
    }

    // Interpretation
    [[nodiscard]] QList<Zone> const& GetInterpretationZones(int survey_key) const
    {
        return Read().GetInterpretationZones(survey_key);
    }
    void SetInterpretationZones(int survey_key, QList<Zone> const& zones)
    {
        Write().SetInterpretationZones(survey_key, zones);
    }
    void AddInterpretationZone(int survey_key, Zone const& zone)
    {
        Write().AddInterpretationZone(survey_key, zone);
    }
    [[nodiscard]] InterpretationParameters GetInterpretationParameters(int survey_key) const
    {
        return Read().GetInterpretationParameters(survey_key);
    }
    void SetInterpretationParameters(int survey_key, InterpretationParameters const& parameters)
    {
        Write().SetInterpretationParameters(survey_key, parameters);
    }

    // Well
    [[nodiscard]] QString const& GetWellName() const { return Read().GetWellName(); }
    void SetWellName(QString const& name) { Write().SetWellName(name); }
    [[nodiscard]] std::vector<WellTrajectoryItem> const& GetTrajectorySurvey() const
    {
        return Read().GetTrajectorySurvey();
    }
    void SetTrajectorySurvey(std::vector<DirectionalSurveyItem> const& stations,
                             DirectionalSurveyTieInData const& tie_in)
    {
        Write().SetTrajectorySurvey(stations, tie_in);
    }
    [[nodiscard]] DirectionalSurveyData const& GetDirectionalSurveyData() const
    {
        return Read().GetDirectionalSurveyData();
    }
    [[nodiscard]] DirectionalSurveyTieInData GetDirectionalSurveyTieInData() const
    {
        return Read().GetDirectionalSurveyTieInData();
    }
    [[nodiscard]] std::vector<DirectionalSurveyItem> GetDirectionalSurveyVector() const
    {
        return Read().GetDirectionalSurveyVector();
    }
    [[nodiscard]] std::optional<WellTrajectoryItem> GetWellTrajectory(float measured_depth) const
    {
        return Read().GetWellTrajectory(measured_depth);
    }
    [[nodiscard]] PipeStringData const& GetPipeStringData() const { return Read().GetPipeStringData(); }
    void SetPipeStringData(std::vector<PipeString> const& strings) { Write().SetPipeStringData(strings); }
    [[nodiscard]] QList<WellComponent> const& GetComponents() const { return Read().GetComponents(); }
    void SetComponents(QList<WellComponent> const& components) { Write().SetComponents(components); }
    [[nodiscard]] QList<ZoneTrack> const& GetZoneTracks() const { return Read().GetZoneTracks(); }
    void SetZoneTracks(QList<ZoneTrack> const& tracks) { Write().SetZoneTracks(tracks); }
    [[nodiscard]] QList<Zone> const& GetPerforationZones() const { return Read().GetPerforationZones(); }
    void SetPerforationZones(QList<Zone> const& zones) { Write().SetPerforationZones(zones); }
    [[nodiscard]] QList<DepthMarker> const& GetMarkersA() const { return Read().GetMarkersA(); }
    void SetMarkersA(QList<DepthMarker> const& markers) { Write().SetMarkersA(markers); }
    [[nodiscard]] QList<DepthMarker> const& GetMarkersB() const { return Read().GetMarkersB(); }
    void SetMarkersB(QList<DepthMarker> const& markers) { Write().SetMarkersB(markers); }

private:
    [[nodiscard]] DataContainer const& Read() const { return wrapper_.GetReadAccess(); }
    [[nodiscard]] DataContainer& Write() { return wrapper_.GetWriteAccess(false); }

    DataContainerWrapper wrapper_;
};
