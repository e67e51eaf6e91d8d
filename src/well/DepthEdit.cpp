// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DepthEdit.h"

#include "display/InputStyle.h"
#include "well/TableNumber.h"

#include <cmath>
#include <stdexcept>

DepthEdit::DepthEdit(QWidget* parent) : QLineEdit(parent)
{
    setAlignment(Qt::AlignRight);
    connect(this, &QLineEdit::textChanged, this, [this] {
        bool const is_valid = text().trimmed().isEmpty() || Read();
        setStyleSheet(is_valid ? Quorrel::VALID_INPUT_STYLE : Quorrel::INVALID_INPUT_STYLE);
    });
}

void DepthEdit::SetDepth_metric(std::optional<double> depth)
{
    depth_ = depth;
    shown_text_ = depth ? TableNumber::DepthText(*depth) : QString();
    setText(shown_text_);
}

std::optional<double> DepthEdit::Read() const
{
    if (depth_ && text() == shown_text_) {
        return std::isfinite(*depth_) ? depth_ : std::nullopt;
    }
    auto const depth = TableNumber::ParseDepth(text());
    return depth ? std::optional(static_cast<double>(*depth)) : std::nullopt;
}

std::optional<double> DepthEdit::GetDepth_metric() const
{
    if (text().trimmed().isEmpty()) {
        return std::nullopt;
    }
    return GetRequiredDepth_metric();
}

double DepthEdit::GetRequiredDepth_metric() const
{
    auto const depth = Read();
    if (!depth) {
        throw std::invalid_argument(TableNumber::FormatError(text()).toStdString());
    }
    return *depth;
}
