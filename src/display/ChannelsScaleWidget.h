// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class ScaleEditTarget;
struct ScaleItemParameters;

/// The form of the scale dialog. Works on copies of the target's scale records.
class ChannelsScaleWidget : public QWidget
{
    Q_OBJECT
public:
    /// `target` outlives the widget.
    ChannelsScaleWidget(QWidget* parent, ScaleEditTarget* target);

    /// The copies, with what stands in the edits now.
    [[nodiscard]] std::vector<std::shared_ptr<ScaleItemParameters>> GetScaleVector();
    /// Stores what stands in the edits in entry `index`; text that is no number is not stored.
    void UpdateScaleVector(int index);
    void UpdateLineEdits(int index);
    /// Stores what stands in the edits in the current curve's entry.
    void OnApply();

    void CurvesCBChanged(int index);
    void OnMinIntervalChanged(QString const& text);
    void OnMaxIntervalChanged(QString const& text);
    void OnApplyToAllCurves();
    void OnApplyToSimilarCurves();
    void OnEntireInterval();
    void OnVisibleInterval();
    /// Enables the buttons of the form.
    void HandleInputChange(bool valid);

signals:
    void InputChange(bool valid);

private:
    void BuildLayout();
    /// Nothing while an edit holds no number.
    [[nodiscard]] std::optional<Interval> ParseEdits() const;
    /// Null beyond the last.
    [[nodiscard]] ScaleItemParameters* EntryAt(int index) const;
    void OnIntervalTextChanged(QLineEdit* edit, QString const& text);
    void FitCurrentEntry(std::vector<Interval> const& extents);

    ScaleEditTarget* target_;
    std::vector<std::shared_ptr<ScaleItemParameters>> scales_;
    int current_index_ = -1;
    QComboBox* curves_box_;
    QLineEdit* left_edit_;
    QLineEdit* right_edit_;
    QLabel* left_unit_label_;
    QLabel* right_unit_label_;
    QPushButton* pb_apply_to_all_;
    QPushButton* pb_apply_to_similar_;
    QPushButton* pb_entire_interval_;
    QPushButton* pb_visible_interval_;
};
