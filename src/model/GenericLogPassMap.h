// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/ScalarTypes.h"
#include "model/LogPassMapSignals.h"

#include <QList>
#include <QString>

#include <iterator>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

/// The logs of one kind in one survey, by hash. The order is that of the hashes, not of the loading.
template <typename LogPassType>
class GenericLogPassMap : public LogPassMapSignals
{
public:
    explicit GenericLogPassMap(KeyType survey_key) : survey_key_(survey_key) {}

    [[nodiscard]] KeyType GetSurveyKey() const { return survey_key_; }
    [[nodiscard]] auto begin() const { return logs_.begin(); }
    [[nodiscard]] auto end() const { return logs_.end(); }
    [[nodiscard]] std::size_t size() const { return logs_.size(); }
    [[nodiscard]] bool empty() const { return logs_.empty(); }
    [[nodiscard]] bool contains(QString const& hash) const { return logs_.contains(hash); }

    /// @throws std::runtime_error for an unknown hash
    [[nodiscard]] std::shared_ptr<LogPassType> at(QString const& hash)
    {
        return Find(hash, __PRETTY_FUNCTION__);
    }
    [[nodiscard]] std::shared_ptr<LogPassType const> at(QString const& hash) const
    {
        return Find(hash, __PRETTY_FUNCTION__);
    }

    /// Takes the log unless its hash is there already; tells whether it did.
    bool Insert(QString const& hash, std::shared_ptr<LogPassType> const& log)
    {
        return log && logs_.emplace(hash, log).second;
    }
    void Delete(QString const& hash) { logs_.erase(hash); }

    [[nodiscard]] QList<QString> GetLogPassIdentifierHashes() const
    {
        QList<QString> hashes;
        for (auto const& [hash, log] : logs_) {
            hashes.append(hash);
        }
        return hashes;
    }

    /// File names of the logs, in map order; two may be equal.
    [[nodiscard]] QList<QString> GetLogNames() const
    {
        QList<QString> names;
        for (auto const& [hash, log] : logs_) {
            names.append(log->GetFileName());
        }
        return names;
    }

    /// Position in map order from 0, or -1.
    [[nodiscard]] int GetLogPassNumber(QString const& hash) const
    {
        auto const log = logs_.find(hash);
        return log == logs_.end() ? -1 : static_cast<int>(std::distance(logs_.begin(), log));
    }

private:
    [[nodiscard]] std::shared_ptr<LogPassType> Find(QString const& hash, char const* caller) const
    {
        auto const log = logs_.find(hash);
        if (log == logs_.end()) {
            throw std::runtime_error(std::string(caller) + ": Logpass key does not exist");
        }
        return log->second;
    }

    std::map<QString, std::shared_ptr<LogPassType>> logs_;
    KeyType survey_key_;
};
