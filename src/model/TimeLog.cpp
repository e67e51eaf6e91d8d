// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/TimeLog.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "formats/las/LASFile.h"
#include "model/LogDepthQuestion.h"

#include <utility>

TimeLog::TimeLog(LASFile& file, QString const& path, LogPassIdentifier const& identifier, QPen const& pen)
    : GenericLogPass(file, path, identifier, pen), time_(std::exchange(file.GetDepthVector(), {}))
{
    GenerateTimeLogDataChannels();
    log_depth_ = AskLogDepth();
}

TimeLog::TimeLog(BASE_LOGPASS_STRUCT const& record, DataMatrix data, std::vector<double> time,
                 float log_depth)
    : GenericLogPass(record, std::move(data)), time_(std::move(time)), log_depth_(log_depth)
{
    GenerateTimeLogDataChannels();
}

void TimeLog::GenerateTimeLogDataChannels()
{
    FitSampleCount(time_.size());
    GenerateDataChannels(this);
}

float TimeLog::AskLogDepth() const
{
    QString const title =
        QStringLiteral("Log Depth[") + SettingsSingleton::Instance().GetDepthUnit() + QStringLiteral("]");
    return Quorrel::SettingsDepthToMetricDepth(
        static_cast<float>(LogDepthQuestion::Ask(title, GetFileName())));
}

LogPassProperties const& TimeLogDataChannel::GetLogPassProperties() const
{
    return log_->GetProperties();
}

std::vector<double> const& TimeLogDataChannel::GetTime() const
{
    return log_->GetTime();
}

float TimeLogDataChannel::GetLogDepth() const
{
    return log_->GetLogDepth();
}
