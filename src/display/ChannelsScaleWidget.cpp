// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ChannelsScaleWidget.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "display/BaseDataView.h"
#include "display/InputStyle.h"
#include "display/ScaleEditTarget.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

namespace {
QString EndText(double value)
{
    return SettingsSingleton::Instance().GetLocale().toString(value, 'g', 6);
}

std::optional<double> ParseEnd(QString const& text)
{
    bool ok = false;
    float const value = Quorrel::StringToFloatType(text.trimmed(), &ok);
    return ok && std::isfinite(value) ? std::optional<double>(static_cast<double>(value)) : std::nullopt;
}

/// The end as typed; an end left as it was shown keeps the digits that were not shown.
double StoredEnd(double present, QString const& text)
{
    return text == EndText(present) ? present : ParseEnd(text).value_or(present);
}
} // namespace

ChannelsScaleWidget::ChannelsScaleWidget(QWidget* parent, ScaleEditTarget* target)
    : QWidget(parent),
      target_(target),
      curves_box_(new QComboBox(this)),
      left_edit_(new QLineEdit(this)),
      right_edit_(new QLineEdit(this)),
      left_unit_label_(new QLabel(tr("[ unit]"), this)),
      right_unit_label_(new QLabel(tr("[ unit]"), this)),
      pb_apply_to_all_(new QPushButton(tr("Apply to all curves"), this)),
      pb_apply_to_similar_(new QPushButton(tr("Apply to similar curves"), this)),
      pb_entire_interval_(new QPushButton(tr("Entire Interval"), this)),
      pb_visible_interval_(new QPushButton(tr("Visible Interval"), this))
{
    curves_box_->setObjectName(QStringLiteral("cb_curves"));
    left_edit_->setObjectName(QStringLiteral("le_left"));
    right_edit_->setObjectName(QStringLiteral("le_right"));
    pb_apply_to_all_->setObjectName(QStringLiteral("pb_apply_to_all"));
    pb_apply_to_similar_->setObjectName(QStringLiteral("pb_apply_to_similar"));
    pb_entire_interval_->setObjectName(QStringLiteral("pb_entire_interval"));
    pb_visible_interval_->setObjectName(QStringLiteral("pb_visible_interval"));
    for (QPushButton* const button :
         {pb_apply_to_all_, pb_apply_to_similar_, pb_entire_interval_, pb_visible_interval_}) {
        button->setAutoDefault(false);
    }
    pb_apply_to_similar_->setToolTip(tr("Curves with the same unit"));
    BuildLayout();

    for (auto const& record : target_->GetScales()) {
        scales_.push_back(std::make_shared<ScaleItemParameters>(*record));
        curves_box_->addItem(record->header.mnemonic);
        if (record->is_selected) {
            current_index_ = static_cast<int>(scales_.size()) - 1;
        }
    }
    if (current_index_ < 0 && !scales_.empty()) {
        current_index_ = 0;
    }
    curves_box_->setCurrentIndex(current_index_);
    setEnabled(!scales_.empty());
    UpdateLineEdits(current_index_);

    connect(curves_box_, &QComboBox::currentIndexChanged, this, &ChannelsScaleWidget::CurvesCBChanged);
    connect(left_edit_, &QLineEdit::textChanged, this, &ChannelsScaleWidget::OnMinIntervalChanged);
    connect(right_edit_, &QLineEdit::textChanged, this, &ChannelsScaleWidget::OnMaxIntervalChanged);
    connect(pb_apply_to_all_, &QPushButton::clicked, this, &ChannelsScaleWidget::OnApplyToAllCurves);
    connect(pb_apply_to_similar_, &QPushButton::clicked, this, &ChannelsScaleWidget::OnApplyToSimilarCurves);
    connect(pb_entire_interval_, &QPushButton::clicked, this, &ChannelsScaleWidget::OnEntireInterval);
    connect(pb_visible_interval_, &QPushButton::clicked, this, &ChannelsScaleWidget::OnVisibleInterval);
    connect(this, &ChannelsScaleWidget::InputChange, this, &ChannelsScaleWidget::HandleInputChange);
}

void ChannelsScaleWidget::BuildLayout()
{
    auto* curve_form = new QFormLayout;
    curve_form->addRow(tr("Select Curve"), curves_box_);

    auto* interval_group = new QGroupBox(tr("Scale Interval"), this);
    auto* interval_form = new QFormLayout(interval_group);
    auto const add_end = [interval_form](QString const& text, QLineEdit* edit, QLabel* unit) {
        auto* row = new QHBoxLayout;
        row->addWidget(edit, 1);
        row->addWidget(unit);
        interval_form->addRow(text, row);
    };
    add_end(tr("Left"), left_edit_, left_unit_label_);
    add_end(tr("Right"), right_edit_, right_unit_label_);

    auto* fit_row = new QHBoxLayout;
    fit_row->addWidget(new QLabel(tr("Fit scale to:"), this));
    fit_row->addWidget(pb_entire_interval_, 1);
    fit_row->addWidget(pb_visible_interval_, 1);
    interval_form->addRow(fit_row);

    auto* apply_row = new QHBoxLayout;
    apply_row->addWidget(pb_apply_to_all_, 1);
    apply_row->addWidget(pb_apply_to_similar_, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(curve_form);
    layout->addWidget(interval_group);
    layout->addLayout(apply_row);
}

ScaleItemParameters* ChannelsScaleWidget::EntryAt(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < scales_.size()
               ? scales_[static_cast<std::size_t>(index)].get()
               : nullptr;
}

std::optional<Interval> ChannelsScaleWidget::ParseEdits() const
{
    ScaleItemParameters const* const entry = EntryAt(current_index_);
    if (entry == nullptr || !ParseEnd(left_edit_->text()) || !ParseEnd(right_edit_->text())) {
        return std::nullopt;
    }
    return Interval(StoredEnd(entry->scale.lower, left_edit_->text()),
                    StoredEnd(entry->scale.upper, right_edit_->text()));
}

std::vector<std::shared_ptr<ScaleItemParameters>> ChannelsScaleWidget::GetScaleVector()
{
    UpdateScaleVector(current_index_);
    return scales_;
}

void ChannelsScaleWidget::UpdateScaleVector(int index)
{
    ScaleItemParameters* const entry = EntryAt(index);
    std::optional<Interval> const scale = ParseEdits();
    if (entry != nullptr && scale) {
        entry->scale = *scale;
    }
}

void ChannelsScaleWidget::OnApply()
{
    UpdateScaleVector(current_index_);
}

void ChannelsScaleWidget::UpdateLineEdits(int index)
{
    ScaleItemParameters const* const entry = EntryAt(index);
    QSignalBlocker const left_blocker(left_edit_);
    QSignalBlocker const right_blocker(right_edit_);
    left_edit_->setText(entry != nullptr ? EndText(entry->scale.lower) : QString());
    right_edit_->setText(entry != nullptr ? EndText(entry->scale.upper) : QString());
    left_edit_->setStyleSheet(Quorrel::VALID_INPUT_STYLE);
    right_edit_->setStyleSheet(Quorrel::VALID_INPUT_STYLE);
    QString const unit =
        entry != nullptr ? QLatin1Char('[') + entry->header.unit + QLatin1Char(']') : QString();
    left_unit_label_->setText(unit);
    right_unit_label_->setText(unit);
    emit InputChange(entry != nullptr);
}

void ChannelsScaleWidget::CurvesCBChanged(int index)
{
    UpdateScaleVector(current_index_);
    current_index_ = index;
    UpdateLineEdits(index);
}

void ChannelsScaleWidget::OnMinIntervalChanged(QString const& text)
{
    OnIntervalTextChanged(left_edit_, text);
}

void ChannelsScaleWidget::OnMaxIntervalChanged(QString const& text)
{
    OnIntervalTextChanged(right_edit_, text);
}

void ChannelsScaleWidget::OnIntervalTextChanged(QLineEdit* edit, QString const& text)
{
    edit->setStyleSheet(ParseEnd(text) ? Quorrel::VALID_INPUT_STYLE : Quorrel::INVALID_INPUT_STYLE);
    emit InputChange(ParseEdits().has_value());
}

void ChannelsScaleWidget::HandleInputChange(bool valid)
{
    // The two fits stay available: they replace whatever was typed.
    pb_apply_to_all_->setEnabled(valid);
    pb_apply_to_similar_->setEnabled(valid);
}

void ChannelsScaleWidget::OnApplyToAllCurves()
{
    if (std::optional<Interval> const scale = ParseEdits()) {
        for (auto const& entry : scales_) {
            entry->scale = *scale;
        }
    }
}

void ChannelsScaleWidget::OnApplyToSimilarCurves()
{
    ScaleItemParameters const* const current = EntryAt(current_index_);
    std::optional<Interval> const scale = ParseEdits();
    if (current == nullptr || !scale) {
        return;
    }
    QString const unit = current->header.unit.toLower();
    for (auto const& entry : scales_) {
        if (entry->header.unit.toLower() == unit) {
            entry->scale = *scale;
        }
    }
}

void ChannelsScaleWidget::OnEntireInterval()
{
    FitCurrentEntry(target_->GetMinMaxInInterval(std::numeric_limits<float>::lowest(),
                                                 std::numeric_limits<float>::max()));
}

void ChannelsScaleWidget::OnVisibleInterval()
{
    FitCurrentEntry(target_->GetMinMaxInVisibleInterval());
}

void ChannelsScaleWidget::FitCurrentEntry(std::vector<Interval> const& extents)
{
    ScaleItemParameters* const entry = EntryAt(current_index_);
    auto const position = static_cast<std::size_t>(current_index_);
    if (entry == nullptr || position >= extents.size() || !extents[position].IsValid()) {
        return;
    }
    entry->scale = BaseDataView::CalculateDefaultHorizontalScale(extents[position]);
    UpdateLineEdits(current_index_);
}
