// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>

#include <algorithm>
#include <iterator>
#include <limits>

namespace Quorrel {
/// The first of `name`, "name_#1", "name_#2", ... (numbers in the settings' format) that is not in `taken`.
[[nodiscard]] QString GenerateUniqueName(QString const& name, QSet<QString> const& taken);

/// The greatest key of a map with integer keys plus 1, or 0 for the empty map. A stored map may use up the
/// whole range; then the lowest free key from 0.
template <typename Map>
[[nodiscard]] typename Map::key_type NextKey(Map const& map)
{
    using Key = typename Map::key_type;
    if (map.empty()) {
        return 0;
    }
    Key const greatest = std::prev(map.end())->first;
    if (greatest < std::numeric_limits<Key>::max()) {
        return std::max<Key>(greatest + 1, 0);
    }
    Key key = 0;
    while (map.contains(key)) {
        ++key;
    }
    return key;
}
} // namespace Quorrel
