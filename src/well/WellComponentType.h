// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>
#include <map>

/// What a well component is; the numbers stand in project files and in the clipboard's tables. A number that
/// is not listed is kept and has neither name nor drawing.
enum class WellComponentType : std::int32_t
{
    Undefined = 0,
    HUD = 1, ///< hold-up depth
    Plug = 2,
    Fish = 3,
    Restriction = 4,
    SafetyValve = 5,
    SidePocketMandrel = 6,
    PermanentDownholeGauge = 7,
    Sleeve = 8,
    Nipple = 9,
    ProductionPacker = 10,
    Leak = 11,
    Formation = 12,
    Cut = 13,
    AnnularSafetyValvePacker = 14,
    Perforation = 15,
    OpenholePacker = 16,
    Straddle = 17,
    CementPlug = 18,
    TubingPunch = 19
};

/// The name shown for each type, in the order of the types.
extern std::map<WellComponentType, QString> const ComponentTypesMap;

/// Empty for a type without a name.
[[nodiscard]] QString ConvertComponentTypeToName(WellComponentType type);
/// Undefined for a name that is none; exact case.
[[nodiscard]] WellComponentType ConvertNameToComponentType(QString const& name);
