// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// Texts that stand between bars.
inline QStringList List(char const* texts)
{
    return QString(texts).split('|');
}

/// What `text`, a function or a member such as &QAction::text, gives for each element.
template <class Range, class Text>
QStringList Texts(Range const& range, Text const& text)
{
    QStringList texts;
    for (auto const& element : range) {
        texts << std::invoke(text, element);
    }
    return texts;
}

/// What `text` gives for each index of a widget such as a combo box, list or tab bar.
template <class Widget, class Text>
QStringList IndexedTexts(Widget const& widget, Text const& text)
{
    QStringList texts;
    for (int i = 0; i < widget.count(); ++i) {
        texts << std::invoke(text, widget, i);
    }
    return texts;
}
