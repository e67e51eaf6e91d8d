// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/Survey.h"

QString const Survey::DATA_STORAGE_NAME_IDENTIFIER = QString::fromLatin1(DATA_STORAGE_HASH);

Survey::Survey(KeyType key, QString const& name) : logs_(key), key_(key), name_(name) {}

std::optional<LogPassIdentifier> Survey::AddLogPass(LASFile& file, QString const& path)
{
    return logs_.AddLogPass(file, path, key_);
}

std::shared_ptr<BaseDataChannel const> Survey::GetDataChannel(QString const& hash, int index) const
{
    if (hash == DATA_STORAGE_NAME_IDENTIFIER) {
        return storage_.at(index);
    }
    return logs_.GetDataChannel(hash, index);
}

std::shared_ptr<BaseDepthDataChannel const> Survey::GetDepthDataChannel(QString const& hash, int index) const
{
    if (hash == DATA_STORAGE_NAME_IDENTIFIER) {
        return storage_.at(index);
    }
    return logs_.GetDepthDataChannel(hash, index);
}

int Survey::CopyDataChannelToStorage(std::weak_ptr<BaseDepthDataChannel const> const& channel,
                                     int log_pass_number)
{
    std::shared_ptr<BaseDepthDataChannel const> const source = channel.lock();
    if (!source) {
        return -1;
    }
    return MoveStorageDataChannelToStorage(
        std::make_shared<StorageDataChannel>(source.get(), log_pass_number));
}
