// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

// The build puts this in front of every test source: the test framework, the standard library's usual
// headers, messages of exceptions, and readable texts in failed expectations.

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

/// The message of the exception that the call throws; empty when it throws none of this type.
template <typename Exception = std::exception, typename Call>
std::string MessageOf(Call const& call)
{
    try {
        call();
    } catch (Exception const& exception) {
        return exception.what();
    }
    return {};
}

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
