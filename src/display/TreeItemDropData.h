// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DataChannelIdentifier.h"

#include <Qt>

#include <optional>

class QByteArray;
class QMimeData;

/// Kinds of items in the data browser's tree; the numbers are the items' type numbers. 1013 is not used.
enum class TreeItemType : int
{
    Survey = 1001,
    LogPassSection = 1002,
    TimeLog = 1003,
    LogPass = 1004,
    TimeLogDataChannel = 1005,
    LogPassDataChannel = 1006,
    StorageSection = 1007,
    ViewsSection = 1008,
    ImageViewsSection = 1009,
    UserViewsSection = 1010,
    UserView = 1011,
    ImageView = 1012,
    UserViewDataChannel = 1014,
    StorageDataChannel = 1015,
};

/// Data roles under which a tree item keeps what it knows of itself; they travel with a drag.
enum TreeItemRole : int
{
    TREE_ITEM_TYPE_ROLE = Qt::UserRole + 1, ///< int, a TreeItemType
    TREE_ITEM_SURVEY_ROLE,                  ///< int
    TREE_ITEM_HASH_ROLE,                    ///< QString
    TREE_ITEM_INDEX_ROLE,                   ///< int
};

/// What a tree item knows of itself.
struct TreeItemData
{
    TreeItemType type = TreeItemType::Survey;
    DataChannelIdentifier identifier;

    [[nodiscard]] bool operator==(TreeItemData const&) const = default;
};

namespace Quorrel {
/// The mime type of a drag out of an item view.
inline constexpr char const* TREE_ITEM_MIME_TYPE = "application/x-qabstractitemmodeldatalist";

/// Reads the first item of such a payload; nothing when it is damaged or lacks one of the roles.
[[nodiscard]] std::optional<TreeItemData> ReadTreeItemDropData(QByteArray const& payload);
/// The same from a drag; nothing when it has no such payload.
[[nodiscard]] std::optional<TreeItemData> ReadTreeItemDropData(QMimeData const* mime);
} // namespace Quorrel
