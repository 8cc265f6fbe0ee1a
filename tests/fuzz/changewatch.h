// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_FUZZ_CHANGEWATCH_H
#define TESTS_FUZZ_CHANGEWATCH_H

#include <QMetaProperty>
#include <QObject>
#include <QStringList>

#include <vector>

/**
 * Requires that an object announces its properties as every model promises: it announces every
 * change, and it announces nothing that has not changed.
 */
class ChangeWatch final : public QObject
{
    Q_OBJECT

public:
    explicit ChangeWatch(const QObject &object);

    /// Requires that nothing has changed without an announcement.
    void requireAllAnnounced() const;
    /// The present contents of those texts that have changed since the last call.
    QStringList takeChangedTexts();

private Q_SLOTS:
    void note();

private:
    struct Watched
    {
        QMetaProperty property;
        QString announced;
        bool hasChanged = false;
    };

    QString valueOf(const Watched &watched) const;

    const QObject &m_object;
    std::vector<Watched> m_watched;
};

#endif
