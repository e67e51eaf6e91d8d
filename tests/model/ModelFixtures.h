// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/las/LASFile.h"
#include "model/StorageDataChannel.h"
#include "support/NumberFormats.h"

using Samples = std::vector<float>;

struct Curve
{
    QString mnemonic;
    Samples samples;
};

/// A loaded file as the reader would hand it over, with the null value -999.25.
inline LASFile MakeFile(HeaderRow const& index_row, std::vector<double> index,
                        std::vector<Curve> const& curves)
{
    LASFile file;
    file.GetLASVersion().push_back(HeaderRow("VERS", "", "2.0", ""));
    file.GetLASWellInfo().push_back(HeaderRow("NULL", "", "-999.25", ""));
    file.GetIndexRow() = index_row;
    file.GetDepthVector() = std::move(index);
    for (Curve const& curve : curves) {
        file.GetLASCurveInfo().push_back(HeaderRow(curve.mnemonic, "u", "", ""));
        file.GetDataMatrix().push_back(std::make_shared<Samples>(curve.samples));
    }
    return file;
}

/// A metric depth log.
inline LASFile MakeDepthFile(std::vector<double> depths, std::vector<Curve> const& curves)
{
    return MakeFile(HeaderRow("DEPT", "M", "", ""), std::move(depths), curves);
}

inline LASFile MakeTimeFile(std::vector<double> times, std::vector<Curve> const& curves)
{
    return MakeFile(HeaderRow("Time", "S", "", ""), std::move(times), curves);
}

/// Depths first, first + step, ... in metres.
inline std::vector<double> Depths(double first, double step, std::size_t count)
{
    std::vector<double> depths(count);
    for (std::size_t i = 0; i < count; ++i) {
        depths[i] = first + static_cast<double>(i) * step;
    }
    return depths;
}

inline std::shared_ptr<StorageDataChannel> MakeChannel(std::vector<double> const& depths,
                                                       Samples const& samples,
                                                       QString const& name = "channel",
                                                       DataChannelIdentifier const& identifier = {})
{
    auto const shared_samples = std::make_shared<Samples>(samples);
    return std::make_shared<StorageDataChannel>(shared_samples, DepthChannel(depths, true), name,
                                                HeaderRow("GR", "gAPI", "", ""), identifier);
}

/// `size` samples at first, first + step, ...
inline std::shared_ptr<StorageDataChannel> MakeRegularChannel(std::size_t size, double first, double step,
                                                              std::function<float(std::size_t)> const& sample)
{
    Samples samples(size);
    for (std::size_t i = 0; i < size; ++i) {
        samples[i] = sample(i);
    }
    return MakeChannel(Depths(first, step, size), samples);
}

inline Samples Values(BaseDataChannel const& channel)
{
    return Samples(channel.begin(), channel.end());
}
