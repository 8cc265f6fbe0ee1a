// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_FUZZ_EDITSCRIPT_H
#define TESTS_FUZZ_EDITSCRIPT_H

#include "changewatch.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

/// The lines of an input. What is no UTF-8 reads as replacement characters.
QStringList linesOf(const std::uint8_t *data, std::size_t size);

/**
 * Models that are edited by lines of text, as the inputs of the fuzz targets are: "name=value" sets
 * a property, "name" calls a slot, on every model that has it. Any other line does nothing.
 *
 * After each line it is required that announcements are as promised, and that what a slot wrote
 * into a text is a result: a number, a word for one that is none, an error text, or nothing.
 */
class EditScript
{
public:
    explicit EditScript(const std::vector<QObject *> &models);

    void run(const QString &line);

private:
    struct Model
    {
        QObject *object;
        std::unique_ptr<ChangeWatch> watch;
    };

    std::vector<Model> m_models;
};

/// Whether @p text is what a calculation may leave behind in a field.
bool isResult(const QString &text);

#endif
