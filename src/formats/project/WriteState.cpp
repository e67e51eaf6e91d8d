// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/QZ4SaveFile.h"
#include "model/DataContainer.h"

// How the objects of the data model hand themselves to the project file. The members stand here, above the
// model, so that the model does not know the file.

void DepthChannel::WriteState_DepthChannel(QZ4SaveFile& file) const
{
    file.SaveBaseDepthChannel(*this);
}

void StorageDataChannel::WriteState_StorageDataChannel(QZ4SaveFile& file) const
{
    file.SaveStorageDataChannel({GetName(), GetCurveInfo(), GetDataChannelIdentifier()}, *GetSamples());
    GetDepth().WriteState_DepthChannel(file);
}

void BaseLog::WriteState_BaseLog(QZ4SaveFile& file) const
{
    BASE_LOGPASS_STRUCT record;
    record.properties = GetProperties();
    record.version_header = GetVersionHeader();
    record.well_info_header = GetWellInfoHeader();
    record.curve_info_header = GetCurveInfoHeader();
    record.parameter_info_header = GetParameterInfoHeader();
    record.other_header = GetOtherHeader();
    record.file_path_and_name = GetFilePathAndName();
    record.array_mnems = GetArrayMnems();
    file.SaveBaseLogPass(record);
    file.SaveGenericLogPass(GetData());
}

void DepthLogPass::WriteState_SpecializedLogPass(QZ4SaveFile& file) const
{
    GetDepth().WriteState_DepthChannel(file);
}

void TimeLog::WriteState_SpecializedLogPass(QZ4SaveFile& file) const
{
    file.SaveTimeLog(GetLogDepth(), GetTime());
}

void CombinedLogMap::WriteState_CombinedLogMap(QZ4SaveFile& file) const
{
    auto const write = [&file](auto const& logs) {
        file.SaveGenericLogPassMap(logs.size());
        for (auto const& [hash, log] : logs) {
            log->WriteState_BaseLog(file);
            log->WriteState_SpecializedLogPass(file);
        }
    };
    write(GetDepthLogPasses());
    write(GetTimeLogs());
}

void DataStorageMap::WriteState_DataStorageMap(QZ4SaveFile& file) const
{
    file.SaveDataStorageMap(channels_.size());
    for (auto const& [key, channel] : channels_) {
        file.SaveDataStorageChannelKey(key);
        channel->WriteState_StorageDataChannel(file);
    }
}

void Survey::WriteState_Survey(QZ4SaveFile& file) const
{
    file.SaveSurveyData({interpretation_zones_, parameters_, text_});
    logs_.WriteState_CombinedLogMap(file);
    storage_.WriteState_DataStorageMap(file);
}

void DataContainer::WriteState_DataContainer(int survey_key, QZ4SaveFile& file) const
{
    file.SaveDataContainer();
    if (auto const survey = GetSurvey(survey_key).lock()) {
        survey->WriteState_Survey(file);
    }
}
