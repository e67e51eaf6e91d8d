// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/BaseDepthDataChannel.h"
#include "model/DataStorageChannelRecord.h"

class QZ4SaveFile;

class DepthLogPass;

/// A free-standing calculated channel held in a survey's storage, with a depth axis of its own.
class StorageDataChannel final : public BaseDepthDataChannel
{
public:
    /// Empty; the depth is added later with AddDepth.
    explicit StorageDataChannel(QString const& name);
    /// Empty samples on a pass's depth, to be filled with push_back. Defined with DepthLogPass.
    StorageDataChannel(DepthLogPass const* log_pass, QString const& name);
    /// Deep copy of the samples on the same depth, named "S<survey key>_L<log_pass_number>_<mnemonic>".
    StorageDataChannel(BaseDepthDataChannel const* source, int log_pass_number);
    /// @throws std::bad_weak_ptr
    StorageDataChannel(std::weak_ptr<SampleVector> const& samples, DepthChannel const& depth,
                       QString const& name, HeaderRow const& curve_info,
                       DataChannelIdentifier const& identifier);
    /// Restores a stored channel; shift (metres) before stretch. Takes `depths` over.
    StorageDataChannel(DATA_STORAGE_CHANNEL_Struct const& record, bool is_metric, float shift, float stretch,
                       std::vector<double>& depths, std::shared_ptr<SampleVector> const& samples);

    [[nodiscard]] QString GetName() const override { return name_; }
    [[nodiscard]] LogPassProperties const& GetLogPassProperties() const override
    {
        return dummy_log_pass_properties_;
    }
    [[nodiscard]] bool IsDependentOn(DataChannelIdentifier const& identifier) const override;
    [[nodiscard]] DepthChannel const& GetDepth() const override { return depth_; }
    [[nodiscard]] DepthChannel& GetDepth() { return depth_; }

    void SetCurveInfo(HeaderRow const& curve_info) { curve_info_ = curve_info; }
    void SetName(QString const& name) { name_ = name; }
    void SetDataChannelIdentifier(DataChannelIdentifier const& identifier) { identifier_ = identifier; }
    /// @throws std::invalid_argument when the number of depths differs from the number of samples
    void AddDepth(DepthChannel const& depth);

    /// Centred boxcar in place over `length_metres`; about half a window keeps its values at each end.
    void MovingAverage(float length_metres);
    /// Forward difference in place, per foot or metre as the settings say at the time.
    /// @throws std::invalid_argument with fewer than two samples
    void Differentiate();
    /// Takes the target's depth axis and this channel's values at its depths.
    /// @throws std::invalid_argument without depth overlap
    void ResampleDepth(BaseDepthDataChannel const* target);

    /// To the project file; defined with its format.
    void WriteState_StorageDataChannel(QZ4SaveFile& file) const;

    static LogPassProperties dummy_log_pass_properties_;

private:
    DepthChannel depth_;
    QString name_;
};
