// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasLoadingThread.h"

#include <QFile>

#include <exception>
#include <new>
#include <utility>

LasLoadingThread::LasLoadingThread(QObject* parent, QString const& path, DisableToken token)
    : QThread(parent), path_(path), token_(std::move(token))
{
}

void LasLoadingThread::run()
{
    std::shared_ptr<LASFile> result;
    QString message;
    auto const fail_with = [&](QString text) {
        message = "Exception cought while importing " + path_ + ":<BR>" + text.replace('\n', "<BR>");
    };
    try {
        LASFile file(QFile::encodeName(path_).toStdString());
        result = std::make_shared<LASFile>(std::move(file));
    } catch (std::bad_alloc const&) {
        message = "Out of memory. Unable to import: " + path_;
    } catch (std::exception const& exception) {
        fail_with(QString::fromStdString(exception.what()));
    } catch (...) {
        fail_with("Unknown failure");
    }
    bool const success = result != nullptr;
    emit resultReady(std::move(result), path_, success, message, token_);
}
