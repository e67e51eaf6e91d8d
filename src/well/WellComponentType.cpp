// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellComponentType.h"

std::map<WellComponentType, QString> const ComponentTypesMap = {
    {WellComponentType::Undefined, ""},
    {WellComponentType::HUD, "HUD"},
    {WellComponentType::Plug, "Plug"},
    {WellComponentType::Fish, "Fish"},
    {WellComponentType::Restriction, "Restriction"},
    {WellComponentType::SafetyValve, "Safety Valve"},
    {WellComponentType::SidePocketMandrel, "SPM"},
    {WellComponentType::PermanentDownholeGauge, "PDHG"},
    {WellComponentType::Sleeve, "Sleeve"},
    {WellComponentType::Nipple, "Nipple"},
    {WellComponentType::ProductionPacker, "Production Packer"},
    {WellComponentType::Leak, "Leak"},
    {WellComponentType::Formation, "Formation"},
    {WellComponentType::Cut, "Cut"},
    {WellComponentType::AnnularSafetyValvePacker, "ASV Packer"},
    {WellComponentType::Perforation, "Perforation"},
    {WellComponentType::OpenholePacker, "Openhole Packer"},
    {WellComponentType::Straddle, "Straddle"},
    {WellComponentType::CementPlug, "Cement Plug"},
    {WellComponentType::TubingPunch, "Tubing Punch"},
};

QString ConvertComponentTypeToName(WellComponentType type)
{
    auto const found = ComponentTypesMap.find(type);
    return found != ComponentTypesMap.end() ? found->second : QString();
}

WellComponentType ConvertNameToComponentType(QString const& name)
{
    for (auto const& [type, type_name] : ComponentTypesMap) {
        if (type_name == name) {
            return type;
        }
    }
    return WellComponentType::Undefined;
}
