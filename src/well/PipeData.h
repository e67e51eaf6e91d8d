// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/Pipe.h"

#include <QList>

#include <vector>

class PipeString;

/// The flat pipe table.
class PipeData
{
public:
    /// Stores the list as given.
    void SetPipes_OD_Sorted(QList<Pipe> const& pipes) { pipes_ = pipes; }
    [[nodiscard]] QList<Pipe> const& GetPipes() const { return pipes_; }
    /// The tubing rows, by depth.
    [[nodiscard]] QList<Pipe> FindTubingAssembly_Depth_Sorted() const;

private:
    QList<Pipe> pipes_;
};

/// Appends the table's strings: each row that is no tubing as a string of its own, then all tubing rows as
/// one string named "Tubing", whose joints are stacked up from its lowest depth (gaps between the rows
/// vanish).
void ConvertPipeListToPipeStringVector(QList<Pipe> const& pipes, std::vector<PipeString>& strings);
