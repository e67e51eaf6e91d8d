// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellTrajectoryDialog.h"

#include "app/kit/Quorrel.h"
#include "well/DirectionalSurveyData.h"
#include "well/WellTrajectoryTable.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

WellTrajectoryDialog::WellTrajectoryDialog(DirectionalSurveyData const& survey, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Well Trajectory"));
    auto* layout = new QVBoxLayout(this);
    if (survey.GetWellTrajectoryData().empty()) {
        layout->addWidget(new QLabel(tr("A trajectory takes at least two stations.")));
    }
    layout->addWidget(new WellTrajectoryTable(survey.GetWellTrajectoryData()));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    Quorrel::SetWindowSize(this, 0.55F, 0.6F);
}
