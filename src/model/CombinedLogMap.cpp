// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/CombinedLogMap.h"

#include "formats/las/LASFile.h"

#include <QCryptographicHash>

#include <algorithm>
#include <type_traits>

namespace {
/// A channel's handle that keeps its log alive too, since the channel looks into the log.
template <typename LogType>
auto ChannelOf(std::shared_ptr<LogType> const& log, int index)
{
    auto const channel = log->GetDataChannel(index);
    return std::remove_const_t<decltype(channel)>(log, channel.get());
}
} // namespace

CombinedLogMap::CombinedLogMap(int survey_key) : time_logs_(survey_key), depth_logs_(survey_key) {}

QString CombinedLogMap::GenerateHash(QString const& path) const
{
    return QString::fromLatin1(QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Md5).toHex());
}

std::optional<LogPassIdentifier> CombinedLogMap::AddLogPass(LASFile& file, QString const& path,
                                                            int survey_key)
{
    LogPassIdentifier const identifier(survey_key, GenerateHash(path));
    auto const add_to = [&]<typename LogType>(GenericLogPassMap<LogType>& logs) {
        if (logs.contains(identifier.hash)) {
            return false;
        }
        QPen const pen(CalculatePenColor(logs.GetLogPassIdentifierHashes().size()));
        return logs.Insert(identifier.hash, std::make_shared<LogType>(file, path, identifier, pen));
    };
    bool const added = file.IsTimeLog() ? add_to(time_logs_) : add_to(depth_logs_);
    return added ? std::optional(identifier) : std::nullopt;
}

void CombinedLogMap::AddDepthLogPass(std::shared_ptr<DepthLogPass> const& log_pass)
{
    if (log_pass) {
        depth_logs_.Insert(log_pass->GetLogPassIdentifier().hash, log_pass);
    }
}

void CombinedLogMap::AddTimeLog(std::shared_ptr<TimeLog> const& log)
{
    if (log) {
        time_logs_.Insert(log->GetLogPassIdentifier().hash, log);
    }
}

void CombinedLogMap::DeleteLogPass(QString const& hash)
{
    depth_logs_.Delete(hash);
    time_logs_.Delete(hash);
}

BaseLog const& CombinedLogMap::GetLog(QString const& hash) const
{
    if (depth_logs_.contains(hash)) {
        return *depth_logs_.at(hash);
    }
    return *time_logs_.at(hash);
}

std::shared_ptr<BaseDepthDataChannel const> CombinedLogMap::GetDepthDataChannel(QString const& hash,
                                                                                int index) const
{
    return ChannelOf(depth_logs_.at(hash), index);
}

std::shared_ptr<TimeLogDataChannel const>
CombinedLogMap::GetTimeDataChannel(DataChannelIdentifier const& identifier) const
{
    return ChannelOf(time_logs_.at(identifier.GetHash()), identifier.GetIndex());
}

std::shared_ptr<BaseDataChannel const> CombinedLogMap::GetDataChannel(QString const& hash, int index) const
{
    if (depth_logs_.contains(hash)) {
        return ChannelOf(depth_logs_.at(hash), index);
    }
    return ChannelOf(time_logs_.at(hash), index);
}

QList<DataChannelIdentifier> CombinedLogMap::GetDataIdentifiers(QString const& hash,
                                                                QString const& pattern) const
{
    BaseLog const& log = GetLog(hash);
    QList<DataChannelIdentifier> identifiers;
    for (int const index : log.GetDataChannelIndeces(pattern)) {
        identifiers.append(DataChannelIdentifier(log.GetLogPassIdentifier(), index));
    }
    return identifiers;
}

LogPassProperties CombinedLogMap::GetLogPassProperties(QString const& hash) const
{
    return GetLog(hash).GetProperties();
}

void CombinedLogMap::SetLogPassProperties(QString const& hash, LogPassProperties const& properties)
{
    if (depth_logs_.contains(hash)) {
        depth_logs_.at(hash)->SetProperties(properties);
    } else {
        time_logs_.at(hash)->SetProperties(properties);
    }
}

QList<QString> CombinedLogMap::GetDataChannelNames(QString const& hash) const
{
    return GetLog(hash).GetDataChannelNames();
}

int CombinedLogMap::GetLogPassNumber(QString const& hash) const
{
    return depth_logs_.contains(hash) ? depth_logs_.GetLogPassNumber(hash)
                                      : time_logs_.GetLogPassNumber(hash);
}

Interval CombinedLogMap::GetTotalDepthInterval() const
{
    Interval const depth = depth_logs_.GetTotalDepthInterval();
    Interval const time = time_logs_.GetTotalDepthInterval();
    return {std::min(depth.lower, time.lower), std::max(depth.upper, time.upper)};
}
