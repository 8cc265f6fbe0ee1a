// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_EXPECTEDMESSAGES_H
#define TESTS_SUPPORT_EXPECTEDMESSAGES_H

#include <QStringList>
#include <QtGlobal>

/**
 * While it lives, messages that begin with one of the given texts are taken, however often Qt logs
 * them; all others reach the test's log and fail it as ever. For warnings of Qt whose number is not
 * the point; where it is, QTest::ignoreMessage() is the tool. One object at a time.
 */
class ExpectedMessages
{
public:
    explicit ExpectedMessages(const QStringList &beginnings);
    ~ExpectedMessages();
    ExpectedMessages(const ExpectedMessages &) = delete;
    ExpectedMessages &operator=(const ExpectedMessages &) = delete;

    /// How many messages were taken so far.
    int count() const { return m_count; }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);

    const QStringList m_beginnings;
    int m_count = 0;
};

/// What Qt's offscreen platform logs when a popup opens.
QStringList offscreenPopupMessages();

#endif
