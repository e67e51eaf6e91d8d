// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellComponentInfo.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"

#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {
constexpr int DEPTH_DECIMALS = 2;
constexpr int LEAST_WIDTH = 320;
} // namespace

WellComponentInfo::WellComponentInfo(QWidget* parent, Interval const& md, Interval const& tvd,
                                     QString const& description)
    : QWidget(parent)
{
    setAutoFillBackground(true);
    setMinimumWidth(LEAST_WIDTH);
    auto* layout = new QVBoxLayout(this);
    auto* description_box = new QGroupBox(tr("Description"), this);
    auto* text = new QLineEdit(description, description_box);
    text->setObjectName(QStringLiteral("description"));
    text->setReadOnly(true);
    text->setCursorPosition(0);
    auto* description_layout = new QVBoxLayout(description_box);
    description_layout->addWidget(text);
    layout->addWidget(description_box);
    layout->addWidget(MakeIntervalBox(tr("Depth Interval[MD]"), md));
    layout->addWidget(MakeIntervalBox(tr("Depth Interval[TVD]"), tvd));
    installEventFilter(this);
    for (QWidget* child : findChildren<QWidget*>()) {
        child->installEventFilter(this);
    }
}

QGroupBox* WellComponentInfo::MakeIntervalBox(QString const& title, Interval const& interval)
{
    auto* box = new QGroupBox(title, this);
    auto* form = new QFormLayout(box);
    auto const add = [&](QString const& label, double metres) {
        auto* field = new QLineEdit(box);
        field->setReadOnly(true);
        field->setText(Quorrel::FloatTypeToString(
            Quorrel::MetricsDepthToSettingsDepth(static_cast<float>(metres)), DEPTH_DECIMALS));
        auto* row = new QHBoxLayout;
        row->addWidget(field);
        row->addWidget(new QLabel(
            QLatin1Char('[') + SettingsSingleton::Instance().GetDepthUnit() + QLatin1Char(']'), box));
        form->addRow(label, row);
    };
    add(tr("Top"), interval.lower);
    add(tr("Bottom"), interval.upper);
    return box;
}

bool WellComponentInfo::eventFilter(QObject* watched, QEvent* event)
{
    // The form itself would let clicks through to the overlay below; its fields keep their selection.
    bool const is_field = qobject_cast<QLineEdit*>(watched) != nullptr;
    if (!is_field &&
        (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease)) {
        event->accept();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
