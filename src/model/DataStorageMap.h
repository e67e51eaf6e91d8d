// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/StorageDataChannel.h"

#include <QList>
#include <QSet>

#include <map>
#include <memory>

class QZ4SaveFile;

/// Stands for the hash of a log in the identifiers of storage channels.
inline constexpr char DATA_STORAGE_HASH[] = "DATA_STORAGE_IDENTIFIER";

/// The calculated channels of a survey, by storage key.
class DataStorageMap
{
public:
    /// @throws std::out_of_range "map::at"
    [[nodiscard]] std::shared_ptr<StorageDataChannel> at(int key) { return channels_.at(key); }
    [[nodiscard]] std::shared_ptr<StorageDataChannel const> at(int key) const { return channels_.at(key); }
    [[nodiscard]] std::size_t size() const { return channels_.size(); }

    /// Restores a channel under its stored key, in place of one that is there.
    void AddDataChannelToDataStorage(int key, std::shared_ptr<StorageDataChannel> const& channel);
    /// Takes a new channel in under the next key, which it returns; gives it its identifier and, where its
    /// name is taken, the name with "_" and the key behind it. -1 for a null pointer.
    int MoveStorageDataChannelToStorage(std::shared_ptr<StorageDataChannel> const& channel,
                                        KeyType survey_key);
    void DeleteStorageDataChannel(DataChannelIdentifier const& identifier);

    [[nodiscard]] QList<int> GetStorageKeys() const;
    /// `name`, or with "_#1", "_#2" ... behind it, whatever no channel is called yet.
    [[nodiscard]] QString GenerateUniqueStorageChannelName(QString const& name) const;
    /// Returns the name actually used. @throws std::out_of_range "map::at"
    QString RenameStorageDataChannel(DataChannelIdentifier const& identifier, QString const& name);

    /// To the project file; defined with its format.
    void WriteState_DataStorageMap(QZ4SaveFile& file) const;

private:
    [[nodiscard]] QSet<QString> GetNames() const;

    std::map<int, std::shared_ptr<StorageDataChannel>> channels_;
};
