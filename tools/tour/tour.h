// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TOOLS_TOUR_TOUR_H
#define TOOLS_TOUR_TOUR_H

#include <QStringList>

#include <vector>

class QWidget;

namespace Tour {

/// One thing that a person does: types a text into the field and leaves it, or chooses the item
/// with that text in a selector, a switch or a tab bar.
struct Step
{
    const char *objectName;
    const char *text;
};

/// What is read from the window afterwards, with the words around it.
struct Shown
{
    const char *before;
    const char *objectName;
    const char *after;
};

struct Example
{
    int module;
    const char *picture; ///< file name without extension; empty if no picture is taken
    const char *typed;   ///< what is done, in words
    std::vector<Step> steps;
    std::vector<Shown> shown;
};

const std::vector<Example> &examples();

struct Played
{
    QString line;        ///< what was typed and what the window shows
    QStringList missing; ///< widgets and items that the example names and the window does not have
};

/// Plays @p example in @p window. If anything is missing, it has failed.
Played play(QWidget &window, const Example &example);

} // namespace Tour

#endif
