// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

// Readable texts in failed expectations. Every test source sees this header, so that all print alike.
inline void PrintTo(QString const& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(QByteArray const& bytes, std::ostream* out)
{
    *out << '"'
         << QString::fromLatin1(bytes.toPercentEncoding(" !\"#$&'()*+,/:;<=>?@[\\]^`{|}\n\t")).toStdString()
         << '"';
}
