// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/BuildDate.h"

#include <QStringList>

QString BuildDate::GetDate()
{
    return FromCompilerDate(QStringLiteral(__DATE__));
}

QString BuildDate::GetVersionFileName()
{
    return QStringLiteral("Quorrel_%1.zip").arg(GetDate());
}

QString BuildDate::GetSiteName()
{
    return QStringLiteral("quorrel.example");
}

QString BuildDate::FromCompilerDate(QString const& date)
{
    QStringList const parts = date.simplified().split(QLatin1Char(' '));
    if (parts.size() != 3) {
        return date;
    }
    return QStringLiteral("%1-%2-%3").arg(parts[1].rightJustified(2, QLatin1Char('0')), parts[0], parts[2]);
}
