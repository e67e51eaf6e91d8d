// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/CombinedLogMap.h"
#include "model/DataStorageMap.h"
#include "model/InterpretationParameters.h"
#include "well/Zone.h"

#include <QList>
#include <QString>

class QZ4SaveFile;

/// The logs of one logging job, the channels calculated from them and their interpretation. Where a log's
/// hash is unknown: std::runtime_error; a bad channel index or storage key: std::out_of_range.
class Survey
{
public:
    /// Stands in a DataChannelIdentifier for the hash of a log: the index is then a storage key.
    static QString const DATA_STORAGE_NAME_IDENTIFIER;

    Survey(KeyType key, QString const& name);

    [[nodiscard]] KeyType GetSurveyKey() const { return key_; }
    [[nodiscard]] QString const& GetName() const { return name_; }
    void SetName(QString const& name) { name_ = name; }
    /// Free notes.
    [[nodiscard]] QString const& GetSurveyText() const { return text_; }
    void SetSurveyText(QString const& text) { text_ = text; }

    // Logs
    /// Makes a log of `file`, whose data it takes. Nothing when the path is there already.
    std::optional<LogPassIdentifier> AddLogPass(LASFile& file, QString const& path);
    void AddDepthLogPass(std::shared_ptr<DepthLogPass> const& log_pass) { logs_.AddDepthLogPass(log_pass); }
    void AddTimeLog(std::shared_ptr<TimeLog> const& log) { logs_.AddTimeLog(log); }
    void DeleteLogPass(QString const& hash) { logs_.DeleteLogPass(hash); }
    [[nodiscard]] std::shared_ptr<DepthLogPass> GetDepthLogPass(QString const& hash)
    {
        return logs_.GetDepthLogPass(hash);
    }
    [[nodiscard]] std::shared_ptr<DepthLogPass const> GetDepthLogPass(QString const& hash) const
    {
        return logs_.GetDepthLogPass(hash);
    }
    [[nodiscard]] std::shared_ptr<TimeLog> GetTimeLog(QString const& hash) { return logs_.GetTimeLog(hash); }
    [[nodiscard]] std::shared_ptr<TimeLog const> GetTimeLog(QString const& hash) const
    {
        return logs_.GetTimeLog(hash);
    }
    [[nodiscard]] QList<QString> GetDepthLogNames() const { return logs_.GetDepthLogNames(); }
    [[nodiscard]] QList<QString> GetDepthLogIdentifierHashes() const
    {
        return logs_.GetDepthLogIdentifierHashes();
    }
    [[nodiscard]] QList<QString> GetTimeLogIdentifierHashes() const
    {
        return logs_.GetTimeLogIdentifierHashes();
    }
    [[nodiscard]] int GetLogPassNumber(QString const& hash) const { return logs_.GetLogPassNumber(hash); }
    [[nodiscard]] LogPassProperties GetLogPassProperties(QString const& hash) const
    {
        return logs_.GetLogPassProperties(hash);
    }
    void SetLogPassProperties(QString const& hash, LogPassProperties const& properties)
    {
        logs_.SetLogPassProperties(hash, properties);
    }
    [[nodiscard]] Interval GetTotalDepthInterval() const { return logs_.GetTotalDepthInterval(); }
    [[nodiscard]] CombinedLogMap const& GetLogs() const { return logs_; }

    // Channels; the hash DATA_STORAGE_NAME_IDENTIFIER means the storage
    [[nodiscard]] std::shared_ptr<BaseDataChannel const> GetDataChannel(QString const& hash, int index) const;
    [[nodiscard]] std::shared_ptr<BaseDepthDataChannel const> GetDepthDataChannel(QString const& hash,
                                                                                  int index) const;
    [[nodiscard]] std::shared_ptr<TimeLogDataChannel const>
    GetTimeDataChannel(DataChannelIdentifier const& identifier) const
    {
        return logs_.GetTimeDataChannel(identifier);
    }
    [[nodiscard]] QList<QString> GetDataChannelNames(QString const& hash) const
    {
        return logs_.GetDataChannelNames(hash);
    }
    /// Identifiers of all channels of a log whose mnemonic matches a wildcard pattern.
    [[nodiscard]] QList<DataChannelIdentifier> GetDataIdentifiers(QString const& hash,
                                                                  QString const& pattern) const
    {
        return logs_.GetDataIdentifiers(hash, pattern);
    }

    // Storage
    [[nodiscard]] std::shared_ptr<StorageDataChannel> GetStorageDataChannel(int key)
    {
        return storage_.at(key);
    }
    [[nodiscard]] std::shared_ptr<StorageDataChannel const> GetStorageDataChannel(int key) const
    {
        return storage_.at(key);
    }
    [[nodiscard]] QList<int> GetStorageKeys() const { return storage_.GetStorageKeys(); }
    void AddDataChannelToDataStorage(int key, std::shared_ptr<StorageDataChannel> const& channel)
    {
        storage_.AddDataChannelToDataStorage(key, channel);
    }
    /// Stores a deep copy and returns its key, or -1 for a channel that is gone.
    int CopyDataChannelToStorage(std::weak_ptr<BaseDepthDataChannel const> const& channel,
                                 int log_pass_number);
    int MoveStorageDataChannelToStorage(std::shared_ptr<StorageDataChannel> const& channel)
    {
        return storage_.MoveStorageDataChannelToStorage(channel, key_);
    }
    QString RenameStorageDataChannel(DataChannelIdentifier const& identifier, QString const& name)
    {
        return storage_.RenameStorageDataChannel(identifier, name);
    }
    void DeleteStorageDataChannel(DataChannelIdentifier const& identifier)
    {
        storage_.DeleteStorageDataChannel(identifier);
    }

    // Interpretation
    [[nodiscard]] QList<Zone> const& GetInterpretationZones() const { return interpretation_zones_; }
    void SetInterpretationZones(QList<Zone> const& zones) { interpretation_zones_ = zones; }
    void AddInterpretationZone(Zone const& zone) { interpretation_zones_.append(zone); }
    [[nodiscard]] InterpretationParameters const& GetInterpretationParameters() const { return parameters_; }
    void SetInterpretationParameters(InterpretationParameters const& parameters) { parameters_ = parameters; }

    /// To the project file; defined with its format.
    void WriteState_Survey(QZ4SaveFile& file) const;

private:
    CombinedLogMap logs_;
    DataStorageMap storage_;
    InterpretationParameters parameters_;
    QList<Zone> interpretation_zones_;
    KeyType key_;
    QString name_;
    QString text_;
};
