// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DepthLogPassMap.h"
#include "model/TimeLogMap.h"

#include <optional>

class QZ4SaveFile;

/// The depth and time logs of a survey as one collection; decides for each call which of the two is meant.
/// Here a LASFile becomes a log. Where a hash is needed and neither map holds it: std::runtime_error.
class CombinedLogMap final : public LogPassMapSignals
{
public:
    explicit CombinedLogMap(int survey_key);

    /// MD5 of the path's UTF-8 bytes in lower-case hexadecimal. The file's content does not count.
    [[nodiscard]] QString GenerateHash(QString const& path) const;
    /// Makes a depth pass or time log of `file`, whose data it takes. Nothing when the path is there already.
    /// @throws UndefinedMnem without "NULL" in the well information section
    std::optional<LogPassIdentifier> AddLogPass(LASFile& file, QString const& path, int survey_key);
    /// A restored log, under the hash of its own identifier, unless that is there already.
    void AddDepthLogPass(std::shared_ptr<DepthLogPass> const& log_pass);
    void AddTimeLog(std::shared_ptr<TimeLog> const& log);
    void DeleteLogPass(QString const& hash);

    [[nodiscard]] std::shared_ptr<DepthLogPass> GetDepthLogPass(QString const& hash)
    {
        return depth_logs_.at(hash);
    }
    [[nodiscard]] std::shared_ptr<DepthLogPass const> GetDepthLogPass(QString const& hash) const
    {
        return depth_logs_.at(hash);
    }
    [[nodiscard]] std::shared_ptr<TimeLog> GetTimeLog(QString const& hash) { return time_logs_.at(hash); }
    [[nodiscard]] std::shared_ptr<TimeLog const> GetTimeLog(QString const& hash) const
    {
        return time_logs_.at(hash);
    }
    /// Whichever log has the hash.
    [[nodiscard]] BaseLog const& GetLog(QString const& hash) const;

    // Channel handles keep the whole log alive while they are held; weak ones made of them do not.
    /// @throws std::out_of_range for a bad index
    [[nodiscard]] std::shared_ptr<BaseDepthDataChannel const> GetDepthDataChannel(QString const& hash,
                                                                                  int index) const;
    [[nodiscard]] std::shared_ptr<TimeLogDataChannel const>
    GetTimeDataChannel(DataChannelIdentifier const& identifier) const;
    [[nodiscard]] std::shared_ptr<BaseDataChannel const> GetDataChannel(QString const& hash, int index) const;
    /// Identifiers of the channels of a log whose mnemonic matches a wildcard pattern.
    [[nodiscard]] QList<DataChannelIdentifier> GetDataIdentifiers(QString const& hash,
                                                                  QString const& pattern) const;

    [[nodiscard]] LogPassProperties GetLogPassProperties(QString const& hash) const;
    /// Sets the pen too; the log keeps its identifier.
    void SetLogPassProperties(QString const& hash, LogPassProperties const& properties);

    /// Curve mnemonics of a log in curve order.
    [[nodiscard]] QList<QString> GetDataChannelNames(QString const& hash) const;
    /// File name of each depth pass, in map order; two may be equal.
    [[nodiscard]] QList<QString> GetDepthLogNames() const { return depth_logs_.GetLogNames(); }
    [[nodiscard]] QList<QString> GetDepthLogIdentifierHashes() const
    {
        return depth_logs_.GetLogPassIdentifierHashes();
    }
    [[nodiscard]] QList<QString> GetTimeLogIdentifierHashes() const
    {
        return time_logs_.GetLogPassIdentifierHashes();
    }
    /// Position of the log in the map of its kind, by ascending hash from 0; -1 if unknown.
    [[nodiscard]] int GetLogPassNumber(QString const& hash) const;
    /// All pass depths and all logging depths, metres; the empty Interval without logs.
    [[nodiscard]] Interval GetTotalDepthInterval() const;

    [[nodiscard]] DepthLogPassMap const& GetDepthLogPasses() const { return depth_logs_; }
    [[nodiscard]] TimeLogMap const& GetTimeLogs() const { return time_logs_; }

    /// To the project file; defined with its format.
    void WriteState_CombinedLogMap(QZ4SaveFile& file) const;

private:
    TimeLogMap time_logs_;
    DepthLogPassMap depth_logs_;
};
