// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TOOLS_TOUR_TOUR_H
#define TOOLS_TOUR_TOUR_H

#include <QStringList>

#include <vector>

class QWidget;

namespace Tour {

/// One thing that a person does: type a text into the field and leave it, or choose the item with
/// that text in a selector, a switch or a tab bar.
struct Step
{
    const char *objectName;
    const char *text;
};

/// What is read off the window afterwards, with the words around it.
struct Shown
{
    const char *before;
    const char *objectName;
    const char *after;
};

struct Example
{
    int module;
    const char *picture; ///< file name without extension; empty where no picture is taken
    const char *typed;   ///< what is done, in words
    std::vector<Step> steps;
    std::vector<Shown> shown;
};

const std::vector<Example> &examples();

struct Played
{
    QString line;        ///< what was typed and what the window shows
    QStringList missing; ///< widgets and items that the example names and the window lacks
};

/// Plays @p example in @p window. It failed if anything is missing.
Played play(QWidget &window, const Example &example);

} // namespace Tour

#endif
