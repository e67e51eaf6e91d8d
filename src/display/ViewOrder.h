// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// Which views of a column stand where; plain functions on what the splitter holds, from left to right.
namespace Quorrel {
/// Mnemonics that are shown first when a column shows no data yet.
[[nodiscard]] QStringList const& DISPLAY_PRIORITY();

/// One view of the splitter.
struct ViewSlot
{
    int index = -1; ///< where it stands now
    QString name;
    int size = 0;                       ///< width in pixels, 0 while it has none
    std::optional<int> preferred_width; ///< for a view that asks for a width of its own; pixels
};

/// The order in which the named views stand first, in the order of the names, and the others after them in
/// their present order. A named view without a size gets its preferred width, or an equal share of
/// `total_width` for each name. Unknown names are skipped.
[[nodiscard]] std::vector<ViewSlot> ArrangeViews(std::vector<ViewSlot> views, QList<QString> const& names,
                                                 int total_width);

/// Position and width of one view on the screen; pixels.
struct ViewPlace
{
    int x = 0;
    int width = 0;
    bool is_visible = true;
};

/// The index to which the view at `moved` goes while the pointer that drags it is at `pointer_x`: that of the
/// first visible view whose middle the pointer has passed. None leaves the order.
[[nodiscard]] std::optional<int> FindMoveTarget(std::vector<ViewPlace> const& places, int moved,
                                                double pointer_x);

/// The views to show in a column without data views: up to five, by DISPLAY_PRIORITY, and where those do not
/// make five, whatever stands at the indices left over.
[[nodiscard]] QList<int> ChooseFirstViews(QList<QString> const& names);
} // namespace Quorrel
