// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/DirectionalSurveyItem.h"
#include "well/DirectionalSurveyTieInData.h"
#include "well/PipeString.h"
#include "well/WellComponent.h"
#include "well/Zone.h"

#include <QJsonObject>
#include <QList>
#include <QString>

#include <utility>
#include <vector>

class QJsonArray;

/// Reads a well details file (JSON). What is missing or of another type than it should be is an empty result
/// or 0, so any file can be asked for anything. Lengths come out in metres: the file's are feet unless
/// "Metric Depth" is true.
class WellDetailsImporter
{
public:
    /// A file that cannot be read, does not parse or exceeds 256 MiB counts as empty; see GetError().
    explicit WellDetailsImporter(QString const& path);
    [[nodiscard]] static WellDetailsImporter FromJson(QByteArray const& json);

    /// Why there is no document; empty when the file was understood.
    [[nodiscard]] QString const& GetError() const { return error_; }

    [[nodiscard]] QString GetWellname() const;
    /// As many stations as the shortest of the three arrays has elements.
    [[nodiscard]] std::pair<std::vector<DirectionalSurveyItem>, DirectionalSurveyTieInData>
    GetInclinationSurvey() const;
    [[nodiscard]] QList<Zone> GetPerforaitons() const;
    [[nodiscard]] std::vector<PipeString> GetCasingStringVector() const;
    [[nodiscard]] PipeString GetTubingString(QJsonObject const& object) const;
    [[nodiscard]] PipeString GetPipeString(QJsonObject const& object, bool tubing) const;
    /// The casing strings, then the tubing string.
    [[nodiscard]] std::vector<PipeString> GetPipeStringVector() const;
    [[nodiscard]] std::vector<PipeComponent> GetComponentVector(QJsonArray const& array) const;
    [[nodiscard]] QList<WellComponent> GetMiscComponents() const;

    /// The type for a word of the file, Undefined for an unknown word; exact case.
    [[nodiscard]] static WellComponentType ConvertStringTypeToComponentType(QString const& text);

private:
    WellDetailsImporter() = default;
    void Parse(QByteArray const& json);
    /// The number under `key` in metres, 0 when it is missing.
    [[nodiscard]] double GetDepth(QJsonObject const& object, QString const& key) const;
    [[nodiscard]] Interval GetDepthInterval(QJsonObject const& object) const;

    QJsonObject root_;
    double depth_factor_ = 1.0;
    QString error_;
};
