// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/SurveyMap.h"
#include "well/DepthMarker.h"
#include "well/DirectionalSurveyData.h"
#include "well/PipeStringData.h"
#include "well/WellComponent.h"
#include "well/Zone.h"
#include "well/ZoneTrack.h"

class QZ4SaveFile;

/// The one model of a project: its surveys, and the data of the well, which are common to all surveys.
///
/// An operation on a survey that does not exist does nothing and returns an empty value (null, an empty list
/// or text, -1). A log hash unknown to an existing survey throws std::runtime_error, a bad channel index or
/// storage key std::out_of_range. Main thread only, but for project saving and loading behind their overlay;
/// there is no lock. Well values are assigned as a whole, so references to them stay good for the container's
/// life.
class DataContainer
{
public:
    DataContainer() = default;
    DataContainer(DataContainer const&) = delete;
    DataContainer& operator=(DataContainer const&) = delete;

    /// Back to a new project.
    void ClearAll();

    // Surveys
    /// Returns the name actually used.
    QString AddSurvey(int survey_key, QString const& name) { return surveys_.AddSurvey(survey_key, name); }
    /// Returns the new survey's key.
    KeyType AddSurvey(QString const& name) { return surveys_.AddSurvey(name); }
    QString RenameSurvey(int survey_key, QString const& name)
    {
        return surveys_.RenameSurvey(survey_key, name);
    }
    void DeleteSurvey(int survey_key) { surveys_.DeleteSurvey(survey_key); }
    void ClearSurveyVector() { surveys_.ClearSurveyMap(); }
    [[nodiscard]] std::weak_ptr<Survey> GetSurvey(int survey_key) { return surveys_.at(survey_key); }
    [[nodiscard]] std::weak_ptr<Survey const> GetSurvey(int survey_key) const
    {
        return surveys_.at(survey_key);
    }
    [[nodiscard]] QString GetSurveyName(int survey_key) const;
    [[nodiscard]] QList<QString> GetAllSurveyNames() const { return surveys_.GetAllSurveyNames(); }
    [[nodiscard]] QList<KeyType> GetAllSurveyKeys() const { return surveys_.GetAllSurveyKeys(); }
    [[nodiscard]] QString GetSurveyText(int survey_key) const;
    void SetSurveyText(int survey_key, QString const& text);
    /// Metres.
    [[nodiscard]] Interval GetTotalDepthInterval(int survey_key) const;

    // Logs
    /// Takes the data of `file`. Nothing when the survey has that path already.
    std::optional<LogPassIdentifier> AddImportedLogPassToSurvey(LASFile& file, QString const& path,
                                                                int survey_key);
    void AddDepthLogPass(int survey_key, std::shared_ptr<DepthLogPass> const& log_pass);
    void AddTimeLog(int survey_key, std::shared_ptr<TimeLog> const& log);
    void DeleteLogPass(LogPassIdentifier const& identifier);
    [[nodiscard]] std::shared_ptr<DepthLogPass> GetDepthLogPass(LogPassIdentifier const& identifier);
    [[nodiscard]] std::shared_ptr<DepthLogPass const>
    GetDepthLogPass(LogPassIdentifier const& identifier) const;
    [[nodiscard]] std::shared_ptr<TimeLog> GetTimeLog(LogPassIdentifier const& identifier);
    [[nodiscard]] std::shared_ptr<TimeLog const> GetTimeLog(LogPassIdentifier const& identifier) const;
    [[nodiscard]] QList<QString> GetDepthLogNames(int survey_key) const;
    [[nodiscard]] QList<QString> GetDepthLogIdentifierHashes(int survey_key) const;
    [[nodiscard]] QList<QString> GetTimeLogIdentifierHashes(int survey_key) const;
    /// Position in the order of hashes from 0, -1 if unknown.
    [[nodiscard]] int GetLogPassNumber(LogPassIdentifier const& identifier) const;
    [[nodiscard]] LogPassProperties GetLogPassProperties(LogPassIdentifier const& identifier) const;
    void SetLogPassProperties(LogPassIdentifier const& identifier, LogPassProperties const& properties);
    void SetLogDepth(LogPassIdentifier const& identifier, float log_depth_metres);

    // Channels
    [[nodiscard]] std::shared_ptr<BaseDataChannel const>
    GetDataChannel(DataChannelIdentifier const& identifier) const;
    [[nodiscard]] std::shared_ptr<BaseDepthDataChannel const>
    GetDepthDataChannel(DataChannelIdentifier const& identifier) const;
    [[nodiscard]] std::shared_ptr<TimeLogDataChannel const>
    GetTimeDataChannel(DataChannelIdentifier const& identifier) const;
    [[nodiscard]] HeaderRow GetCurveInfo(DataChannelIdentifier const& identifier) const;
    [[nodiscard]] QList<QString> GetDataChannelNames(LogPassIdentifier const& identifier) const;
    /// Channels of a log whose mnemonic matches a wildcard pattern such as "RADI*".
    [[nodiscard]] QList<DataChannelIdentifier> GetDataChannelIdentifiers(LogPassIdentifier const& identifier,
                                                                         QString const& pattern) const;
    /// The first channel of each mnemonic, in the order given; mnemonics without a channel are left out.
    [[nodiscard]] QList<DataChannelIdentifier>
    GetDataChannelIdentifiers(LogPassIdentifier const& identifier, QList<QString> const& mnemonics) const;

    // Storage
    [[nodiscard]] std::shared_ptr<StorageDataChannel> GetStorageDataChannel(int survey_key, int storage_key);
    [[nodiscard]] std::shared_ptr<StorageDataChannel const> GetStorageDataChannel(int survey_key,
                                                                                  int storage_key) const;
    [[nodiscard]] QList<int> GetStorageKeys(int survey_key) const;
    void AddStorageChannel(int survey_key, int storage_key,
                           std::shared_ptr<StorageDataChannel> const& channel);
    /// Copies a depth channel into the storage of any survey; the copy's identifier.
    DataChannelIdentifier CopyDataChannelToStorage(DataChannelIdentifier const& identifier, int survey_key);
    /// The storage key, or -1.
    int MoveStorageDataChannelToStorage(int survey_key, std::shared_ptr<StorageDataChannel> const& channel);
    /// Returns the name actually used.
    QString RenameStorageDataChannel(DataChannelIdentifier const& identifier, QString const& name);
    void DeleteStorageDataChannel(DataChannelIdentifier const& identifier);

    // Depth correction, metres. By channel identifier: a storage channel alone, or the whole pass of a log's
    // channel.
    void ApplyShift(LogPassIdentifier const& identifier, double delta);
    void ApplyShift(DataChannelIdentifier const& identifier, double delta);
    void ApplyStretch(LogPassIdentifier const& identifier, float start_drag_depth, float drag_depth,
                      float anchor_depth);
    void ApplyStretch(DataChannelIdentifier const& identifier, float start_drag_depth, float drag_depth,
                      float anchor_depth);
    /// Note the order: stretch, then shift.
    void SetDepthStretchShift(LogPassIdentifier const& identifier, float stretch, float shift);
    void SetDepthStretchShift(DataChannelIdentifier const& identifier, float stretch, float shift);

    // Interpretation
    [[nodiscard]] QList<Zone> const& GetInterpretationZones(int survey_key) const;
    void SetInterpretationZones(int survey_key, QList<Zone> const& zones);
    void AddInterpretationZone(int survey_key, Zone const& zone);
    [[nodiscard]] InterpretationParameters GetInterpretationParameters(int survey_key) const;
    void SetInterpretationParameters(int survey_key, InterpretationParameters const& parameters);

    // Well
    [[nodiscard]] QString const& GetWellName() const { return well_name_; }
    void SetWellName(QString const& name) { well_name_ = name; }
    /// The calculated stations.
    [[nodiscard]] std::vector<WellTrajectoryItem> const& GetTrajectorySurvey() const
    {
        return directional_survey_.GetWellTrajectoryData();
    }
    void SetTrajectorySurvey(std::vector<DirectionalSurveyItem> const& stations,
                             DirectionalSurveyTieInData const& tie_in);
    [[nodiscard]] DirectionalSurveyData const& GetDirectionalSurveyData() const
    {
        return directional_survey_;
    }
    [[nodiscard]] DirectionalSurveyTieInData GetDirectionalSurveyTieInData() const
    {
        return directional_survey_.GetDirectionalSurveyTieInData();
    }
    [[nodiscard]] std::vector<DirectionalSurveyItem> GetDirectionalSurveyVector() const
    {
        return directional_survey_.GetDirectionalSurveyVector();
    }
    /// Position and direction at a measured depth in metres; nothing outside the survey.
    [[nodiscard]] std::optional<WellTrajectoryItem> GetWellTrajectory(float measured_depth) const
    {
        return directional_survey_.InterpolateWellTrajectory(measured_depth);
    }
    [[nodiscard]] PipeStringData const& GetPipeStringData() const { return pipe_strings_; }
    void SetPipeStringData(std::vector<PipeString> const& strings)
    {
        pipe_strings_.SetPipeStringVector(strings);
    }
    [[nodiscard]] QList<WellComponent> const& GetComponents() const { return components_; }
    void SetComponents(QList<WellComponent> const& components) { components_ = components; }
    [[nodiscard]] QList<ZoneTrack> const& GetZoneTracks() const { return zone_tracks_; }
    void SetZoneTracks(QList<ZoneTrack> const& tracks) { zone_tracks_ = tracks; }
    [[nodiscard]] QList<Zone> const& GetPerforationZones() const { return perforation_zones_; }
    void SetPerforationZones(QList<Zone> const& zones) { perforation_zones_ = zones; }
    [[nodiscard]] QList<DepthMarker> const& GetMarkersA() const { return markers_a_; }
    void SetMarkersA(QList<DepthMarker> const& markers) { markers_a_ = markers; }
    [[nodiscard]] QList<DepthMarker> const& GetMarkersB() const { return markers_b_; }
    void SetMarkersB(QList<DepthMarker> const& markers) { markers_b_ = markers; }

    /// One survey, to the project file; defined with its format.
    void WriteState_DataContainer(int survey_key, QZ4SaveFile& file) const;

private:
    QString well_name_;
    SurveyMap surveys_;
    DirectionalSurveyData directional_survey_;
    PipeStringData pipe_strings_;
    QList<WellComponent> components_;
    QList<ZoneTrack> zone_tracks_;
    QList<Zone> perforation_zones_;
    QList<DepthMarker> markers_a_;
    QList<DepthMarker> markers_b_;
};
