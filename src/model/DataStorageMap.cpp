// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DataStorageMap.h"

#include "model/UniqueNames.h"

#include <algorithm>

void DataStorageMap::AddDataChannelToDataStorage(int key, std::shared_ptr<StorageDataChannel> const& channel)
{
    if (channel) {
        channels_[key] = channel;
    }
}

int DataStorageMap::MoveStorageDataChannelToStorage(std::shared_ptr<StorageDataChannel> const& channel,
                                                    KeyType survey_key)
{
    int const key = Quorrel::NextKey(channels_);
    if (ContainsName(channel->GetName())) {
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
    return Quorrel::GenerateUniqueName(name,
                                       [this](QString const& candidate) { return ContainsName(candidate); });
}

QString DataStorageMap::RenameStorageDataChannel(DataChannelIdentifier const& identifier, QString const& name)
{
    StorageDataChannel& channel = *channels_.at(identifier.GetIndex());
    channel.SetName(GenerateUniqueStorageChannelName(name));
    return channel.GetName();
}

bool DataStorageMap::ContainsName(QString const& name) const
{
    return std::any_of(channels_.begin(), channels_.end(),
                       [&name](auto const& entry) { return entry.second->GetName() == name; });
}
