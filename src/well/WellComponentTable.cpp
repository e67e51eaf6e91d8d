// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellComponentTable.h"

#include "well/WellComponentModel.h"
#include "well/WellComponentTypeDelegate.h"
#include "well/WellTablePaste.h"

#include <QHeaderView>

WellComponentTable::WellComponentTable(QWidget* parent) : WellComponentTable(new WellComponentModel, parent)
{
}

WellComponentTable::WellComponentTable(WellComponentModel* model, QWidget* parent)
    : BaseModelTable(model, parent), model_(model)
{
    setItemDelegateForColumn(WellComponentModel::TYPE_COLUMN, new WellComponentTypeDelegate(this));
    horizontalHeader()->resizeSection(WellComponentModel::TYPE_COLUMN, 190);
}

void WellComponentTable::InitializeTable(QList<WellComponent> const& components)
{
    model_->Clear();
    model_->AppendComponents(components);
}

void WellComponentTable::AddRow(WellComponent const& component)
{
    model_->AppendComponents({component});
    ShowRow(model_->rowCount() - 1);
}

void WellComponentTable::AddRow()
{
    AddRow(WellComponent(Interval(0, 0), QString(), WellComponentType::Undefined));
}

QList<WellComponent> WellComponentTable::GetComponents() const
{
    auto components = model_->GetComponents();
    OrderWellComponentInterval(components);
    return components;
}

void WellComponentTable::OrderWellComponentInterval(QList<WellComponent>& components)
{
    for (auto& component : components) {
        component.depth.Sort();
    }
}

void WellComponentTable::ParsePasteAction()
{
    AppendPasted(*this, WellTablePaste::ReadComponents(GetClipboardText()),
                 tr("No Component data found in pasted data. Check number format and try again"),
                 [this](auto const& rows) {
                     model_->AppendComponents(QList<WellComponent>(rows.cbegin(), rows.cend()));
                 });
}
