// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

/// What the user enters for the flow interpretation of one survey.
class InterpretationParameters
{
public:
    /// Total rate, barrels per day.
    [[nodiscard]] std::int32_t GetFlowRate() const { return flow_rate_; }
    void SetFlowRate(std::int32_t rate) { flow_rate_ = rate; }
    /// Velocity profile correction factor.
    [[nodiscard]] float GetVpcf() const { return vpcf_; }
    void SetVpcf(float vpcf) { vpcf_ = vpcf; }
    /// Spinner thresholds, ft/min.
    [[nodiscard]] float GetThresholdPos() const { return threshold_pos_; }
    void SetThresholdPos(float threshold) { threshold_pos_ = threshold; }
    [[nodiscard]] float GetThresholdNeg() const { return threshold_neg_; }
    void SetThresholdNeg(float threshold) { threshold_neg_ = threshold; }
    /// Spinner slopes, rps per ft/min.
    [[nodiscard]] float GetSlopePos() const { return slope_pos_; }
    void SetSlopePos(float slope) { slope_pos_ = slope; }
    [[nodiscard]] float GetSlopeNeg() const { return slope_neg_; }
    void SetSlopeNeg(float slope) { slope_neg_ = slope; }
    [[nodiscard]] QString const& GetSpinnerMnem() const { return spinner_mnem_; }
    void SetSpinnerMnem(QString const& mnemonic) { spinner_mnem_ = mnemonic; }
    [[nodiscard]] QString const& GetCableSpeedMnem() const { return cable_speed_mnem_; }
    void SetCableSpeedMnem(QString const& mnemonic) { cable_speed_mnem_ = mnemonic; }
    [[nodiscard]] bool GetUseFixedId() const { return use_fixed_id_; }
    void SetUseFixedId(bool use) { use_fixed_id_ = use; }
    /// Pipe inner diameter, inches.
    [[nodiscard]] float GetFixedIdValue() const { return fixed_id_value_; }
    void SetFixedIdValue(float inches) { fixed_id_value_ = inches; }
    [[nodiscard]] bool GetUseSecondCaliper() const { return use_second_caliper_; }
    void SetUseSecondCaliper(bool use) { use_second_caliper_ = use; }
    [[nodiscard]] QString const& GetFirstCaliperMnem() const { return first_caliper_mnem_; }
    void SetFirstCaliperMnem(QString const& mnemonic) { first_caliper_mnem_ = mnemonic; }
    [[nodiscard]] QString const& GetSecondCaliperMnem() const { return second_caliper_mnem_; }
    void SetSecondCaliperMnem(QString const& mnemonic) { second_caliper_mnem_ = mnemonic; }

    [[nodiscard]] bool operator==(InterpretationParameters const&) const = default;

private:
    std::int32_t flow_rate_ = 0;
    float vpcf_ = 0.83F;
    float threshold_pos_ = 0;
    float threshold_neg_ = 0;
    float slope_pos_ = 0;
    float slope_neg_ = 0;
    QString spinner_mnem_;
    QString cable_speed_mnem_;
    bool use_fixed_id_ = false;
    float fixed_id_value_ = 0;
    bool use_second_caliper_ = true;
    QString first_caliper_mnem_;
    QString second_caliper_mnem_;
};
