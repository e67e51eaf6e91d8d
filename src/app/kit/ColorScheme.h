// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/// Tells whether the desktop's colour scheme is dark, and when that changes. Uses QStyleHints::colorScheme
/// where the toolkit has it, otherwise the lightness of the application palette.
class ColorScheme : public QObject
{
    Q_OBJECT
public:
    explicit ColorScheme(QObject* parent = nullptr);
    [[nodiscard]] static bool IsDark();

signals:
    void Changed_Signal();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Update();

    bool was_dark_;
};
