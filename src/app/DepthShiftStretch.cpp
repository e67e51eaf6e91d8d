// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/DepthShiftStretch.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <cmath>
#include <optional>

namespace {
constexpr int SHIFT_DECIMALS = 2;
constexpr int STRETCH_DECIMALS = 4;
constexpr int MAX_DECIMALS = 9;

/// Nothing for text that is no finite number: the locale reads "inf" and "nan" too, which no depth survives.
std::optional<float> ToNumber(QString const& text)
{
    bool ok = false;
    float const value = Quorrel::StringToFloatType(text, &ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// At least `decimals`, and more where the text would otherwise read back as another number: opening and
/// accepting the form must not move the depths.
QString ToText(float value, int decimals)
{
    QString text = Quorrel::FloatTypeToString(value, decimals);
    while (Quorrel::StringToFloatType(text) != value && decimals < MAX_DECIMALS) {
        text = Quorrel::FloatTypeToString(value, ++decimals);
    }
    return text;
}
} // namespace

DepthShiftStretch::DepthShiftStretch(float shift, float stretch, QWidget* parent)
    : QWidget(parent),
      shift_(shift),
      stretch_(stretch),
      shift_edit_(new QLineEdit),
      stretch_edit_(new QLineEdit)
{
    shift_edit_->setObjectName(QStringLiteral("shift_edit"));
    stretch_edit_->setObjectName(QStringLiteral("stretch_edit"));
    for (QLineEdit* const edit : {shift_edit_, stretch_edit_}) {
        edit->setAlignment(Qt::AlignRight);
    }
    auto* const shift_label = new QLabel(tr("Depth S&hift"));
    shift_label->setBuddy(shift_edit_);
    auto* const stretch_label = new QLabel(tr("Depth S&tretch Factor"));
    stretch_label->setBuddy(stretch_edit_);
    auto* const reset = new QPushButton(tr("&Reset"));
    reset->setObjectName(QStringLiteral("reset_button"));
    reset->setAutoDefault(false);
    connect(reset, &QPushButton::clicked, this, &DepthShiftStretch::OnReset);

    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(shift_label, 0, 0);
    layout->addWidget(shift_edit_, 0, 1);
    layout->addWidget(new QLabel(SettingsSingleton::Instance().GetDepthUnit()), 0, 2);
    layout->addWidget(stretch_label, 1, 0);
    layout->addWidget(stretch_edit_, 1, 1);
    layout->addWidget(reset, 2, 1, Qt::AlignRight);
    layout->setColumnStretch(1, 1);

    Display(shift, stretch);
}

void DepthShiftStretch::Display(float shift, float stretch)
{
    shift_edit_->setText(ToText(Quorrel::MetricsDepthToSettingsDepth(shift), SHIFT_DECIMALS));
    stretch_edit_->setText(ToText(stretch, STRETCH_DECIMALS));
}

float DepthShiftStretch::GetDepthShift_metric() const
{
    std::optional<float> const shift = ToNumber(shift_edit_->text());
    return shift ? Quorrel::SettingsDepthToMetricDepth(*shift) : shift_;
}

float DepthShiftStretch::GetDepthStretchFactor() const
{
    return ToNumber(stretch_edit_->text()).value_or(stretch_);
}

void DepthShiftStretch::OnReset()
{
    Display(0.0F, 1.0F);
}
