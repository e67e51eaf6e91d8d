// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/TreeItemDropData.h"

#include <QByteArray>
#include <QDataStream>
#include <QMap>
#include <QMimeData>
#include <QVariant>

namespace Quorrel {
std::optional<TreeItemData> ReadTreeItemDropData(QByteArray const& payload)
{
    // An item view writes row, column and the map of roles for each dragged item.
    QDataStream stream(payload);
    int row = 0;
    int column = 0;
    QMap<int, QVariant> roles;
    stream >> row >> column >> roles;
    if (stream.status() != QDataStream::Ok) {
        return std::nullopt;
    }
    for (int const role :
         {TREE_ITEM_TYPE_ROLE, TREE_ITEM_SURVEY_ROLE, TREE_ITEM_HASH_ROLE, TREE_ITEM_INDEX_ROLE}) {
        if (!roles.contains(role)) {
            return std::nullopt;
        }
    }
    TreeItemData data;
    data.type = static_cast<TreeItemType>(roles.value(TREE_ITEM_TYPE_ROLE).toInt());
    data.identifier = DataChannelIdentifier(roles.value(TREE_ITEM_SURVEY_ROLE).toInt(),
                                            roles.value(TREE_ITEM_HASH_ROLE).toString(),
                                            roles.value(TREE_ITEM_INDEX_ROLE).toInt());
    return data;
}

std::optional<TreeItemData> ReadTreeItemDropData(QMimeData const* mime)
{
    QString const type = QString::fromLatin1(TREE_ITEM_MIME_TYPE);
    if (mime == nullptr || !mime->hasFormat(type)) {
        return std::nullopt;
    }
    return ReadTreeItemDropData(mime->data(type));
}
} // namespace Quorrel
