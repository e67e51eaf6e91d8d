// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/LASHeaderSection.h"

#include "model/UndefinedMnem.h"

#include <algorithm>
#include <stdexcept>

void LASHeaderSection::delete_element(std::size_t index)
{
    if (index >= rows_.size()) {
        throw std::out_of_range("LASHeaderSection::delete_element: no row " + std::to_string(index));
    }
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(index));
}

QString const& LASHeaderSection::GetData(QString const& mnemonic) const
{
    auto const row = std::find_if(rows_.begin(), rows_.end(), [&mnemonic](HeaderRow const& candidate) {
        return candidate.mnemonic == mnemonic;
    });
    if (row == rows_.end()) {
        throw UndefinedMnem(mnemonic.toStdString());
    }
    return row->data;
}
