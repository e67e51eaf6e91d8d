// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/SettingsSingleton.h"

/// Number formats and depth units for tests that go through all of them.
struct NumberFormat
{
    Separator_Selection selection = US;
    bool is_metric = true;

    /// A number written by hand in US format ("1,234.50") in this format, as the program writes it.
    [[nodiscard]] QString Text(QString us) const
    {
        QChar const thousands = selection == International ? QChar('.') : QChar(0x202F);
        if (selection != US) {
            us.replace('.', '\1').replace(',', thousands).replace('\1', ',');
        }
        return us;
    }

    [[nodiscard]] static std::vector<NumberFormat> All()
    {
        return {{US, true},  {International, true},  {AlternativeInternational, true},
                {US, false}, {International, false}, {AlternativeInternational, false}};
    }
};

/// Puts settings in force for a test and the defaults back at its end.
class NumberFormatScope
{
public:
    explicit NumberFormatScope(NumberFormat const& format = {}) { Set(format); }
    ~NumberFormatScope() { Set({US, false}); }
    NumberFormatScope(NumberFormatScope const&) = delete;
    NumberFormatScope& operator=(NumberFormatScope const&) = delete;

    static void Set(NumberFormat const& format)
    {
        SettingsSingleton::Instance().SetSeparatorSelection(format.selection);
        SettingsSingleton::Instance().SetMetricDepth(format.is_metric);
    }
};
