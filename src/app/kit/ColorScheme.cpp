// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/ColorScheme.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QStyleHints>

ColorScheme::ColorScheme(QObject* parent) : QObject(parent), was_dark_(IsDark())
{
    // Older toolkits announce a change only as a new application palette, and newer ones do both.
    qApp->installEventFilter(this);
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this, &ColorScheme::Update);
#endif
}

bool ColorScheme::IsDark()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    if (QGuiApplication::styleHints()->colorScheme() != Qt::ColorScheme::Unknown) {
        return QGuiApplication::styleHints()->colorScheme() == Qt::ColorScheme::Dark;
    }
#endif
    QPalette const palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

bool ColorScheme::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
        Update();
    }
    return QObject::eventFilter(watched, event);
}

void ColorScheme::Update()
{
    if (bool const is_dark = IsDark(); is_dark != was_dark_) {
        was_dark_ = is_dark;
        emit Changed_Signal();
    }
}
