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

/// The lines of an input. Bytes that are not valid UTF-8 become replacement characters.
QStringList linesOf(const std::uint8_t *data, std::size_t size);

/**
 * Edits models by lines of text, which the inputs of the fuzz targets consist of: "name=value" sets
 * a property and "name" calls a slot, on every model that has it. Any other line does nothing.
 *
 * After each line it requires that announcements are as promised, and that a text that a slot has
 * changed is a result: a number, a word for infinity, an error text, or nothing.
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
