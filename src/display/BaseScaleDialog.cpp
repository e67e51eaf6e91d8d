// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseScaleDialog.h"

#include "app/kit/Quorrel.h"
#include "display/ChannelsScaleWidget.h"
#include "display/ScaleEditTarget.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

BaseScaleDialog::BaseScaleDialog(QWidget* parent, ScaleEditTarget* target)
    : QDialog(parent),
      target_(target),
      widget_(new ChannelsScaleWidget(this, target)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply,
                                    this))
{
    setWindowTitle(tr("Scales Dialog"));
    // Opened over a view, it would take over the view's blank cursor.
    setCursor(Qt::ArrowCursor);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(widget_);
    layout->addStretch();
    layout->addWidget(buttons_);
    connect(buttons_, &QDialogButtonBox::accepted, this, &BaseScaleDialog::OnAccept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons_->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            &BaseScaleDialog::OnApply);
    connect(widget_, &ChannelsScaleWidget::InputChange, this, &BaseScaleDialog::OnInputChanged);
    Quorrel::SetWindowSize(this, 0.25F, 0.3F);
}

void BaseScaleDialog::OnApply()
{
    target_->SetScales(widget_->GetScaleVector());
}

void BaseScaleDialog::OnAccept()
{
    OnApply();
    accept();
}

void BaseScaleDialog::OnInputChanged(bool valid)
{
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(valid);
    buttons_->button(QDialogButtonBox::Apply)->setEnabled(valid);
}
