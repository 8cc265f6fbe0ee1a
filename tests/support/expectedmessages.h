// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_EXPECTEDMESSAGES_H
#define TESTS_SUPPORT_EXPECTEDMESSAGES_H

#include <QStringList>
#include <QtGlobal>

/**
 * While it exists, it swallows messages that begin with one of the given texts, however often Qt
 * logs them. All others reach the test's log and fail the test as usual. Use it for warnings of Qt
 * whose number does not matter, and QTest::ignoreMessage() where it does. Only one object may exist
 * at a time.
 */
class ExpectedMessages
{
public:
    explicit ExpectedMessages(const QStringList &beginnings);
    ~ExpectedMessages();
    ExpectedMessages(const ExpectedMessages &) = delete;
    ExpectedMessages &operator=(const ExpectedMessages &) = delete;

    /// How many messages it has swallowed so far.
    int count() const { return m_count; }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);

    const QStringList m_beginnings;
    int m_count = 0;
};

/// What Qt's offscreen platform logs when a popup opens.
QStringList offscreenPopupMessages();

#endif
