// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/PipeComponentTable.h"

#include "well/PipeComponentModel.h"
#include "well/WellTablePaste.h"

PipeComponentTable::PipeComponentTable(QWidget* parent) : PipeComponentTable(new PipeComponentModel, parent)
{
}

PipeComponentTable::PipeComponentTable(PipeComponentModel* model, QWidget* parent)
    : BaseModelTable(model, parent), model_(model)
{
    StretchColumn(*this, PipeComponentModel::DESCRIPTION_COLUMN);
}

void PipeComponentTable::InitializeTable(std::vector<PipeComponent> const& components)
{
    model_->Clear();
    model_->AppendComponents(components);
}

void PipeComponentTable::AddRow(PipeComponent const& component)
{
    model_->AppendComponents({component});
    ShowRow(model_->rowCount() - 1);
}

void PipeComponentTable::AddRow()
{
    AddRow(PipeComponent(PipeComponent::NULL_DIAMETER, PipeComponent::NULL_DIAMETER, 0, 0, QString()));
}

void PipeComponentTable::SetSetDepth(double set_depth)
{
    model_->SetSetDepth(set_depth);
}

std::vector<PipeComponent> PipeComponentTable::GetPipeComponents() const
{
    return model_->GetPipeComponents();
}

void PipeComponentTable::ParsePasteAction()
{
    AppendPasted(*this, WellTablePaste::ReadPipeComponents(GetClipboardText()),
                 tr("No Pipe Component data found in pasted data. Check number format and try again"),
                 [this](auto const& rows) { model_->AppendComponents(rows); });
}
