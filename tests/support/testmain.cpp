// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <array>
#include <cstdio>

#ifdef Q_OS_WIN
#include "privateregistry.h"
#endif
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace {

/// What Qt's platforms log by themselves: offscreen for every window with a minimum or maximum size
/// and for every menu that opens, Wayland when a menu closes.
constexpr std::array<const char *, 4> kPlatformMessages = {
    "This plugin does not support propagateSizeHints()",
    "This plugin does not support raise()",
    "This plugin does not support grabbing the keyboard",
    "Wayland does not support QWindow::requestActivate()",
};

void setPrivateFolder(const QString &root, const char *variable)
{
    const QString folder = root + QLatin1Char('/') + QString::fromLatin1(variable).toLower();
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv(variable, QFile::encodeName(folder));
}

bool isOfThePlatform(const QString &line)
{
    return std::any_of(kPlatformMessages.cbegin(), kPlatformMessages.cend(),
                       [&line](const char *end) { return line.endsWith(QLatin1String(end)); });
}

/// The lines of QTest's text log that report a logged message, without those of the platform.
QStringList unexpectedMessages(const QString &log)
{
    static const QRegularExpression message(
        QStringLiteral("^(QDEBUG|QINFO|QWARN|QSYSTEM|QCRITICAL) .*$"),
        QRegularExpression::MultilineOption);
    QStringList found;
    for (auto it = message.globalMatch(log); it.hasNext();) {
        const QString line = it.next().captured();
        if (!isOfThePlatform(line))
            found += line;
    }
    return found;
}

} // namespace

TestHome::TestHome()
{
    for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME",
                                 "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
        setPrivateFolder(m_folder.path(), variable);
#ifdef Q_OS_WIN
    m_registry = std::make_shared<PrivateRegistry>(PrivateRegistry::Root::User);
#else
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
}

LeakCheckPause::LeakCheckPause()
{
#if defined(__SANITIZE_ADDRESS__)
    __lsan_disable();
#endif
}

LeakCheckPause::~LeakCheckPause()
{
#if defined(__SANITIZE_ADDRESS__)
    __lsan_enable();
#endif
}

int runTestStrictly(QObject &test, int argc, char **argv)
{
    const QTemporaryDir folder;
    const QString logName = folder.filePath(QStringLiteral("log.txt"));
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    arguments << QStringLiteral("-o") << logName + QLatin1String(",txt") << QStringLiteral("-o")
              << QStringLiteral("-,txt");
    const int failures = QTest::qExec(&test, arguments);

    QFile log(logName);
    if (!log.open(QIODevice::ReadOnly))
        return failures; // there is no log if only a list of functions was asked for
    const QStringList messages = unexpectedMessages(QString::fromUtf8(log.readAll()));
    for (const QString &message : messages)
        std::fprintf(stderr, "unexpected message: %s\n", qPrintable(message));
    return failures + int(messages.size());
}
