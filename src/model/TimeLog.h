// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/GenericLogPass.h"
#include "model/TimeLogDataChannel.h"

class QZ4SaveFile;

/// A log over time, measured with the tool standing at one depth.
class TimeLog final : public GenericLogPass<TimeLogDataChannel>
{
public:
    /// Takes the data out of `file`, then asks LogDepthQuestion for the logging depth.
    /// @throws UndefinedMnem without "NULL" in the well information section
    TimeLog(LASFile& file, QString const& path, LogPassIdentifier const& identifier, QPen const& pen);
    /// Restores a stored log; `log_depth` in metres.
    TimeLog(BASE_LOGPASS_STRUCT const& record, DataMatrix data, std::vector<double> time, float log_depth);

    /// In the file's unit.
    [[nodiscard]] std::vector<double> const& GetTime() const { return time_; }
    /// Metres.
    [[nodiscard]] float GetLogDepth() const { return log_depth_; }
    void SetLogDepth(float log_depth_metres) { log_depth_ = log_depth_metres; }

    /// The axis, to the project file; defined with its format.
    void WriteState_SpecializedLogPass(QZ4SaveFile& file) const;

private:
    void GenerateTimeLogDataChannels();
    [[nodiscard]] float AskLogDepth() const;

    std::vector<double> time_;
    float log_depth_ = 0;
};
