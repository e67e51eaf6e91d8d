// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>
#include <vector>

/// What a chart of a time log's channel shows.
struct TimeLogChart
{
    QString window_title;
    QString title;
    QString x_axis_title;
    QString y_axis_title;
    std::shared_ptr<std::vector<float> const> x; ///< time, in the file's unit
    std::shared_ptr<std::vector<float> const> y; ///< samples; as many as times
};
