// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/ScalarTypes.h"
#include "model/LASHeaderSection.h"
#include "model/LogPassProperties.h"

#include <QList>
#include <QString>

#include <memory>
#include <vector>

class QZ4SaveFile;

class LASFile;
struct BASE_LOGPASS_STRUCT;

/// What one LAS file becomes: its header sections and its sample vectors, one per curve. Channels point back
/// to their log, so a log neither moves nor copies; it lives in a shared pointer from the start.
class BaseLog
{
public:
    using SampleVector = std::vector<DataValueType>;
    using DataMatrix = std::vector<std::shared_ptr<SampleVector>>;

    /// Takes columns and sections out of `file` and mends the null samples.
    /// @throws UndefinedMnem when the well information section has no "NULL"; `file` is then untouched
    BaseLog(LASFile& file, QString const& path, LogPassIdentifier const& identifier, QPen const& pen);
    /// Restores a stored log, whose samples were mended when it was first loaded. Takes `data` over.
    BaseLog(BASE_LOGPASS_STRUCT const& record, DataMatrix data);
    BaseLog(BaseLog const&) = delete;
    BaseLog& operator=(BaseLog const&) = delete;
    virtual ~BaseLog();

    [[nodiscard]] LASHeaderSection const& GetVersionHeader() const { return version_header_; }
    [[nodiscard]] LASHeaderSection const& GetWellInfoHeader() const { return well_info_header_; }
    [[nodiscard]] LASHeaderSection const& GetParameterInfoHeader() const { return parameter_info_header_; }
    /// One row per curve, in the order of the data.
    [[nodiscard]] LASHeaderSection const& GetCurveInfoHeader() const { return curve_info_header_; }
    [[nodiscard]] LASHeaderSection const& GetOtherHeader() const { return other_header_; }
    /// Mnemonics of array curves, without index brackets.
    [[nodiscard]] QList<QString> const& GetArrayMnems() const { return array_mnems_; }

    [[nodiscard]] LogPassProperties const& GetProperties() const { return *properties_; }
    /// Channels and curves see the change at once. The log keeps its own identifier.
    void SetProperties(LogPassProperties const& properties);
    [[nodiscard]] LogPassIdentifier const& GetLogPassIdentifier() const { return properties_->identifier; }

    /// The file's "NULL"; no sample holds it any more, unless a whole curve is null.
    [[nodiscard]] DataValueType GetNullValue() const { return null_value_; }
    [[nodiscard]] QString const& GetFilePathAndName() const { return file_path_and_name_; }
    /// File name without folder: the name shown to the user.
    [[nodiscard]] QString GetFileName() const;

    /// The sample vectors, one per curve.
    [[nodiscard]] DataMatrix const& GetData() const { return data_; }

    /// Index of the first curve with exactly this mnemonic, or -1.
    [[nodiscard]] int FindDataChannelByMnem(QString const& mnemonic) const;
    /// All curve mnemonics in order.
    [[nodiscard]] QList<QString> GetDataChannelNames() const;
    /// Indices of the curves whose mnemonic matches a wildcard pattern such as "RADI*", in any case.
    [[nodiscard]] QList<int> GetDataChannelIndeces(QString const& pattern) const;

    /// Fills leading nulls with the first good sample, trailing ones with the last and gaps with the sample
    /// before them. A vector of nothing but nulls stays; NaN is not null.
    static void RemoveIllegalValues(SampleVector& samples, DataValueType null_value);

    /// To the project file; defined with its format.
    void WriteState_BaseLog(QZ4SaveFile& file) const;

protected:
    /// Gives every curve exactly `count` samples, so that samples and axis can be walked side by side.
    void FitSampleCount(std::size_t count);

private:
    void CompleteCurves();

    DataMatrix data_;
    LASHeaderSection version_header_;
    LASHeaderSection well_info_header_;
    LASHeaderSection parameter_info_header_;
    LASHeaderSection curve_info_header_;
    LASHeaderSection other_header_;
    QList<QString> array_mnems_;
    std::shared_ptr<LogPassProperties> properties_;
    DataValueType null_value_ = MISSING_VALUE;
    QString file_path_and_name_;
};
