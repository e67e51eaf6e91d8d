// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DataStorageMap.h"

#include "model/UniqueNames.h"

void DataStorageMap::AddDataChannelToDataStorage(int key, std::shared_ptr<StorageDataChannel> const& channel)
{
    if (channel) {
        channels_[key] = channel;
    }
}

int DataStorageMap::MoveStorageDataChannelToStorage(std::shared_ptr<StorageDataChannel> const& channel,
                                                    KeyType survey_key)
{
    if (!channel) {
        return -1;
    }
    int const key = Quorrel::NextKey(channels_);
    if (GetNames().contains(channel->GetName())) {
        channel->SetName(channel->GetName() + QStringLiteral("_") + QString::number(key));
    }
    channel->SetDataChannelIdentifier({survey_key, QString::fromLatin1(DATA_STORAGE_HASH), key});
    channels_.emplace(key, channel);
    return key;
}

void DataStorageMap::DeleteStorageDataChannel(DataChannelIdentifier const& identifier)
{
    channels_.erase(identifier.GetIndex());
}

QList<int> DataStorageMap::GetStorageKeys() const
{
    QList<int> keys;
    for (auto const& [key, channel] : channels_) {
        keys.append(key);
    }
    return keys;
}

QString DataStorageMap::GenerateUniqueStorageChannelName(QString const& name) const
{
    return Quorrel::GenerateUniqueName(name, GetNames());
}

QString DataStorageMap::RenameStorageDataChannel(DataChannelIdentifier const& identifier, QString const& name)
{
    StorageDataChannel& channel = *channels_.at(identifier.GetIndex());
    channel.SetName(GenerateUniqueStorageChannelName(name));
    return channel.GetName();
}

QSet<QString> DataStorageMap::GetNames() const
{
    QSet<QString> names;
    for (auto const& [key, channel] : channels_) {
        names.insert(channel->GetName());
    }
    return names;
}
