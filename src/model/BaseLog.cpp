// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/BaseLog.h"

#include "formats/las/LASFile.h"
#include "model/BaseLogPassRecord.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace {
DataValueType ReadNullValue(LASHeaderSection const& well_info)
{
    return static_cast<DataValueType>(well_info.GetData(QStringLiteral("NULL")).toDouble());
}

bool ContainsValue(DataValueType const* samples, std::size_t count, DataValueType value)
{
    int hits = 0; // counted without leaving early, so that the loop runs on vectors
    for (std::size_t i = 0; i < count; ++i) {
        hits += samples[i] == value ? 1 : 0;
    }
    return hits > 0;
}
} // namespace

BaseLog::BaseLog(LASFile& file, QString const& path, LogPassIdentifier const& identifier, QPen const& pen)
    : properties_(std::make_shared<LogPassProperties>()),
      null_value_(ReadNullValue(file.GetLASWellInfo())),
      file_path_and_name_(path)
{
    data_ = std::exchange(file.GetDataMatrix(), {});
    version_header_ = std::exchange(file.GetLASVersion(), {});
    well_info_header_ = std::exchange(file.GetLASWellInfo(), {});
    parameter_info_header_ = std::exchange(file.GetLASParameterInfo(), {});
    curve_info_header_ = std::exchange(file.GetLASCurveInfo(), {});
    other_header_ = std::exchange(file.GetLASOtherInfo(), {});
    CompleteCurves();
    for (std::shared_ptr<SampleVector> const& samples : data_) {
        RemoveIllegalValues(*samples, null_value_);
    }
    for (std::string const& mnemonic : file.GetArrayMnems()) {
        array_mnems_.append(QString::fromStdString(mnemonic));
    }
    properties_->identifier = identifier;
    properties_->pen = pen;
}

BaseLog::BaseLog(BASE_LOGPASS_STRUCT const& record, DataMatrix data)
    : data_(std::move(data)),
      version_header_(record.version_header),
      well_info_header_(record.well_info_header),
      parameter_info_header_(record.parameter_info_header),
      curve_info_header_(record.curve_info_header),
      other_header_(record.other_header),
      array_mnems_(record.array_mnems),
      properties_(std::make_shared<LogPassProperties>(record.properties)),
      file_path_and_name_(record.file_path_and_name)
{
    auto const null_row =
        std::find_if(well_info_header_.begin(), well_info_header_.end(),
                     [](HeaderRow const& row) { return row.mnemonic == QLatin1String("NULL"); });
    if (null_row != well_info_header_.end()) {
        null_value_ = static_cast<DataValueType>(null_row->data.toDouble());
    }
    CompleteCurves();
}

BaseLog::~BaseLog() = default;

void BaseLog::CompleteCurves()
{
    for (std::shared_ptr<SampleVector>& samples : data_) {
        if (!samples) {
            samples = std::make_shared<SampleVector>();
        }
    }
    while (curve_info_header_.size() < data_.size()) {
        curve_info_header_.push_back(HeaderRow());
    }
}

void BaseLog::FitSampleCount(std::size_t count)
{
    for (std::shared_ptr<SampleVector> const& samples : data_) {
        if (samples->size() != count) {
            samples->resize(count, MISSING_VALUE);
        }
    }
}

void BaseLog::SetProperties(LogPassProperties const& properties)
{
    LogPassIdentifier const identifier = properties_->identifier;
    *properties_ = properties;
    properties_->identifier = identifier;
}

QString BaseLog::GetFileName() const
{
    return QFileInfo(file_path_and_name_).fileName();
}

int BaseLog::FindDataChannelByMnem(QString const& mnemonic) const
{
    for (std::size_t i = 0; i < data_.size(); ++i) {
        if (curve_info_header_.at(i).mnemonic == mnemonic) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

QList<QString> BaseLog::GetDataChannelNames() const
{
    QList<QString> names;
    names.reserve(static_cast<qsizetype>(data_.size()));
    for (std::size_t i = 0; i < data_.size(); ++i) {
        names.append(curve_info_header_.at(i).mnemonic);
    }
    return names;
}

QList<int> BaseLog::GetDataChannelIndeces(QString const& pattern) const
{
    QRegularExpression const expression = QRegularExpression::fromWildcard(pattern);
    QList<int> indices;
    for (std::size_t i = 0; i < data_.size(); ++i) {
        if (expression.match(curve_info_header_.at(i).mnemonic).hasMatch()) {
            indices.append(static_cast<int>(i));
        }
    }
    return indices;
}

void BaseLog::RemoveIllegalValues(SampleVector& samples, DataValueType null_value)
{
    auto const is_good = [null_value](DataValueType value) { return value != null_value; };
    auto const first_good = std::find_if(samples.begin(), samples.end(), is_good);
    if (first_good == samples.end()) {
        return;
    }
    std::fill(samples.begin(), first_good, *first_good);
    // The first sample is good now, so each gap has a mended sample before it; this also fills what is behind
    // the last good sample.
    constexpr std::size_t block = 2048;
    for (std::size_t begin = 1; begin < samples.size(); begin += block) {
        std::size_t const end = std::min(begin + block, samples.size());
        if (!ContainsValue(samples.data() + begin, end - begin, null_value)) {
            continue;
        }
        DataValueType last = samples[begin - 1];
        for (std::size_t i = begin; i < end; ++i) {
            last = samples[i] == null_value ? last : samples[i];
            samples[i] = last;
        }
    }
}
