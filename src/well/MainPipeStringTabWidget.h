// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/PipeStringData.h"

#include <QTabWidget>

class IndividualPipeStringTabWidget;
class PipeComponentTable;

/// Edits the pipe strings, one tab each.
class MainPipeStringTabWidget : public QTabWidget
{
    Q_OBJECT
public:
    explicit MainPipeStringTabWidget(QWidget* parent = nullptr);

    /// Replaces all tabs.
    void SetPipeStrings(std::vector<PipeString> const& pipe_strings);
    /// Adds a tab and shows it.
    void AddPipeString(PipeString const& pipe_string);
    void DeleteCurrentPipeString();
    /// In the order of the tabs.
    /// @throws std::invalid_argument for wrong input; the tab with it is shown then
    [[nodiscard]] std::vector<PipeString> GetPipeStrings();
    /// The same in the order of the data.
    [[nodiscard]] PipeStringData GetPipeStringData();
    /// Null without strings.
    [[nodiscard]] PipeComponentTable* GetCurrentPipeComponentTable() const;

private:
    [[nodiscard]] IndividualPipeStringTabWidget* GetTab(int index) const;
};
