// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/PipeString.h"

#include <QWidget>

class DepthEdit;
class NameEdit;
class PipeComponentTable;
class QCheckBox;
class QGroupBox;

/// Edits one pipe string: name, set depth, tubing flag, components and the cement outside of it.
class IndividualPipeStringTabWidget : public QWidget
{
    Q_OBJECT
public:
    explicit IndividualPipeStringTabWidget(PipeString const& pipe_string, QWidget* parent = nullptr);

    [[nodiscard]] PipeComponentTable* GetPipeComponentTable() const { return table_; }
    /// The string built anew from the fields. Its cement interval is as it was given unless it was edited,
    /// which puts it in ascending order.
    /// @throws std::invalid_argument for wrong input
    [[nodiscard]] PipeString GetPipeString();

signals:
    void NameChanged_Signal(QString const& name);

private:
    [[nodiscard]] QGroupBox* MakeCementGroup();
    void InitializeOutsideCementData(PipeString const& pipe_string);
    /// Takes the cement's interval from its fields.
    void UpdateOutsideCementDepths();
    void UpdateSetDepth();

    NameEdit* name_;
    DepthEdit* set_depth_;
    QCheckBox* is_tubing_;
    PipeComponentTable* table_;
    NameEdit* cement_description_;
    DepthEdit* cement_top_;
    DepthEdit* cement_bottom_;
    Interval cement_depth_;
};
