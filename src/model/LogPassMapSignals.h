// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QObject>

#include <array>

/// The common base of the maps of logs, which being templates cannot be QObject classes by themselves.
class LogPassMapSignals : public QObject
{
    Q_OBJECT
public:
    static constexpr std::array<Qt::GlobalColor, 6> LogPassColors{Qt::red,     Qt::green,  Qt::cyan,
                                                                  Qt::magenta, Qt::yellow, Qt::white};

    LogPassMapSignals();
    ~LogPassMapSignals() override;

    /// Pen colour of a new log where `log_count` logs of its kind are there already.
    [[nodiscard]] static QColor CalculatePenColor(qsizetype log_count);
};
