// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/MainPipeStringTabWidget.h"

#include "well/IndividualPipeStringTabWidget.h"
#include "well/TabTitle.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

MainPipeStringTabWidget::MainPipeStringTabWidget(QWidget* parent) : QTabWidget(parent) {}

IndividualPipeStringTabWidget* MainPipeStringTabWidget::GetTab(int index) const
{
    return static_cast<IndividualPipeStringTabWidget*>(widget(index));
}

void MainPipeStringTabWidget::SetPipeStrings(std::vector<PipeString> const& pipe_strings)
{
    int const current = currentIndex();
    while (count() > 0) {
        DeleteCurrentPipeString();
    }
    for (auto const& pipe_string : pipe_strings) {
        AddPipeString(pipe_string);
    }
    setCurrentIndex(std::clamp(current, 0, std::max(count() - 1, 0)));
}

void MainPipeStringTabWidget::AddPipeString(PipeString const& pipe_string)
{
    auto* tab = new IndividualPipeStringTabWidget(pipe_string);
    setCurrentIndex(addTab(tab, TabTitle(pipe_string.GetName())));
    connect(tab, &IndividualPipeStringTabWidget::NameChanged_Signal, this,
            [this, tab](QString const& name) { setTabText(indexOf(tab), TabTitle(name)); });
}

void MainPipeStringTabWidget::DeleteCurrentPipeString()
{
    std::unique_ptr<QWidget> const tab(currentWidget());
    removeTab(currentIndex());
}

std::vector<PipeString> MainPipeStringTabWidget::GetPipeStrings()
{
    std::vector<PipeString> pipe_strings;
    for (int i = 0; i < count(); ++i) {
        try {
            pipe_strings.push_back(GetTab(i)->GetPipeString());
        } catch (std::exception const&) {
            setCurrentIndex(i);
            throw;
        }
    }
    return pipe_strings;
}

PipeStringData MainPipeStringTabWidget::GetPipeStringData()
{
    PipeStringData data;
    data.SetPipeStringVector(GetPipeStrings());
    return data;
}

PipeComponentTable* MainPipeStringTabWidget::GetCurrentPipeComponentTable() const
{
    auto const* tab = GetTab(currentIndex());
    return tab != nullptr ? tab->GetPipeComponentTable() : nullptr;
}
