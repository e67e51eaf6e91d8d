// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ViewOrder.h"

#include <algorithm>

namespace Quorrel {
QStringList const& DISPLAY_PRIORITY()
{
    static QStringList const names{"SPIN", "SPI1", "CCLC", "SCVL", "WTEP", "CVEL", "WPRE",
                                   "PFC1", "PFC2", "GR",   "CCLD", "CCL",  "CFB",  "ILS",
                                   "LSPD", "XCAL", "YCAL", "QP",   "TEMP"};
    return names;
}

std::vector<ViewSlot> ArrangeViews(std::vector<ViewSlot> views, QList<QString> const& names, int total_width)
{
    for (auto name = names.crbegin(); name != names.crend(); ++name) {
        auto const found = std::find_if(views.begin(), views.end(),
                                        [&](ViewSlot const& view) { return view.name == *name; });
        if (found == views.end()) {
            continue;
        }
        if (found->size == 0) {
            found->size = found->preferred_width.value_or(total_width / static_cast<int>(names.size()));
        }
        std::rotate(views.begin(), found, found + 1);
    }
    return views;
}

std::optional<int> FindMoveTarget(std::vector<ViewPlace> const& places, int moved, double pointer_x)
{
    int const moved_x = places.at(static_cast<std::size_t>(moved)).x;
    for (int i = 0; i < static_cast<int>(places.size()); ++i) {
        ViewPlace const& other = places[static_cast<std::size_t>(i)];
        if (i == moved || !other.is_visible) {
            continue;
        }
        int const middle = other.x + other.width / 2;
        if (other.x > moved_x ? pointer_x > middle : pointer_x < middle) {
            return i;
        }
    }
    return std::nullopt;
}

QList<int> ChooseFirstViews(QList<QString> const& names)
{
    qsizetype const wanted = std::min<qsizetype>(names.size(), 5);
    QList<int> chosen;
    for (QString const& name : DISPLAY_PRIORITY()) {
        if (chosen.size() == wanted) {
            return chosen;
        }
        if (qsizetype const index = names.indexOf(name); index >= 0) {
            chosen.append(static_cast<int>(index));
        }
    }
    for (qsizetype i = chosen.size(); i < wanted; ++i) {
        chosen.append(static_cast<int>(i));
    }
    return chosen;
}
} // namespace Quorrel
