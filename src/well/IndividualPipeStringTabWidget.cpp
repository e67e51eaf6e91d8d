// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/IndividualPipeStringTabWidget.h"

#include "app/kit/SettingsSingleton.h"
#include "well/DepthEdit.h"
#include "well/NameEdit.h"
#include "well/PipeComponentTable.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>
#include <stdexcept>

IndividualPipeStringTabWidget::IndividualPipeStringTabWidget(PipeString const& pipe_string, QWidget* parent)
    : QWidget(parent),
      name_(new NameEdit(pipe_string.GetName())),
      set_depth_(new DepthEdit),
      is_tubing_(new QCheckBox(tr("Tubing"))),
      table_(new PipeComponentTable),
      cement_description_(new NameEdit),
      cement_top_(new DepthEdit),
      cement_bottom_(new DepthEdit)
{
    name_->setObjectName("PipeStringName");
    set_depth_->setObjectName("SetDepth");
    set_depth_->setMaximumWidth(160);
    is_tubing_->setChecked(pipe_string.GetIsTubing());
    set_depth_->SetDepth_metric(pipe_string.GetSetDepth_metric());
    table_->InitializeTable(pipe_string.GetPipeComponentVector());
    UpdateSetDepth();
    InitializeOutsideCementData(pipe_string);

    auto* fields = new QHBoxLayout;
    fields->addWidget(new QLabel(tr("Name:")));
    fields->addWidget(name_);
    fields->addWidget(new QLabel(tr("Set Depth [%1]:").arg(SettingsSingleton::Instance().GetDepthUnit())));
    fields->addWidget(set_depth_);
    fields->addWidget(is_tubing_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(table_);
    layout->addWidget(MakeCementGroup());

    connect(name_, &QLineEdit::textChanged, this, &IndividualPipeStringTabWidget::NameChanged_Signal);
    connect(set_depth_, &QLineEdit::textChanged, this, &IndividualPipeStringTabWidget::UpdateSetDepth);
}

QGroupBox* IndividualPipeStringTabWidget::MakeCementGroup()
{
    QString const unit = SettingsSingleton::Instance().GetDepthUnit();
    auto* group = new QGroupBox(tr("Outside Cement"));
    auto* layout = new QHBoxLayout(group);
    layout->addWidget(new QLabel(tr("Description:")));
    layout->addWidget(cement_description_);
    layout->addWidget(new QLabel(tr("Top [%1]:").arg(unit)));
    layout->addWidget(cement_top_);
    layout->addWidget(new QLabel(tr("Bottom [%1]:").arg(unit)));
    layout->addWidget(cement_bottom_);
    for (auto* edit : {cement_top_, cement_bottom_}) {
        edit->setMaximumWidth(160);
    }
    cement_description_->setObjectName("CementDescription");
    cement_top_->setObjectName("CementTop");
    cement_bottom_->setObjectName("CementBottom");
    return group;
}

void IndividualPipeStringTabWidget::InitializeOutsideCementData(PipeString const& pipe_string)
{
    auto const [description, depth] = pipe_string.GetOuterCementData();
    cement_depth_ = depth;
    cement_description_->setText(description);
    if (!(depth == Interval())) {
        cement_top_->SetDepth_metric(std::min(depth.lower, depth.upper));
        cement_bottom_->SetDepth_metric(std::max(depth.lower, depth.upper));
    }
}

void IndividualPipeStringTabWidget::UpdateOutsideCementDepths()
{
    auto const top = cement_top_->GetDepth_metric();
    auto const bottom = cement_bottom_->GetDepth_metric();
    if (top.has_value() != bottom.has_value() || (!top && !cement_description_->text().isEmpty())) {
        throw std::invalid_argument(
            tr("Pipe string \"%1\": the outside cement needs its top and bottom depth.")
                .arg(name_->text().left(80))
                .toStdString());
    }
    Interval depth = top ? Interval(*top, *bottom) : Interval();
    Interval unedited = cement_depth_;
    if (top) {
        depth.Sort();
        unedited.Sort();
    }
    if (!(depth == unedited)) {
        cement_depth_ = depth;
    }
}

void IndividualPipeStringTabWidget::UpdateSetDepth()
{
    try {
        table_->SetSetDepth(set_depth_->GetRequiredDepth_metric());
    } catch (std::invalid_argument const&) {
        return; // the field is marked; the depths stay until it holds a number again
    }
}

PipeString IndividualPipeStringTabWidget::GetPipeString()
{
    UpdateOutsideCementDepths();
    PipeString pipe_string(name_->text(), set_depth_->GetRequiredDepth_metric(), is_tubing_->isChecked(),
                           table_->GetPipeComponents());
    pipe_string.SetOuterCementData(cement_depth_.lower, cement_depth_.upper, cement_description_->text());
    return pipe_string;
}
