// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/TieInWidget.h"

#include "app/kit/SettingsSingleton.h"
#include "well/DepthEdit.h"

#include <QHBoxLayout>
#include <QLabel>

TieInWidget::TieInWidget(QWidget* parent)
    : QGroupBox(tr("Tie-In [%1]").arg(SettingsSingleton::Instance().GetDepthUnit()), parent),
      tvd_(new DepthEdit),
      ns_(new DepthEdit),
      ew_(new DepthEdit)
{
    auto* layout = new QHBoxLayout(this);
    for (auto const& [name, edit] : {std::pair("TVD:", tvd_), std::pair("NS:", ns_), std::pair("EW:", ew_)}) {
        layout->addWidget(new QLabel(name));
        layout->addWidget(edit);
        edit->setMaximumWidth(160);
    }
    tvd_->setObjectName("TieInTvd");
    ns_->setObjectName("TieInNs");
    ew_->setObjectName("TieInEw");
    layout->addStretch();
}

void TieInWidget::SetTieIn(DirectionalSurveyTieInData const& tie_in)
{
    tvd_->SetDepth_metric(tie_in.tvd);
    ns_->SetDepth_metric(tie_in.ns);
    ew_->SetDepth_metric(tie_in.ew);
}

DirectionalSurveyTieInData TieInWidget::GetTieIn() const
{
    return {.tvd = tvd_->GetDepth_metric().value_or(0),
            .ns = ns_->GetDepth_metric().value_or(0),
            .ew = ew_->GetDepth_metric().value_or(0)};
}
