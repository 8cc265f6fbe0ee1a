// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "aboutwindowcase.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>

void AboutWindowCase::init()
{
    m_product = {QStringLiteral("Dezimo"), QStringLiteral("calculates levels"),
                 QStringLiteral("3.2.1.0"), QStringLiteral("2022"), QStringLiteral("7TK31")};
    m_facts.questions.clear();
    m_facts.system = {
        {QStringLiteral("Operating System"),
         {{QStringLiteral("Product name"), QStringLiteral("Debian GNU/Linux 12")},
          {QStringLiteral("Admin rights"), QStringLiteral("No")}}},
        {QStringLiteral("VISA"), {{QStringLiteral("Version"), QStringLiteral("---")}}}};
    m_facts.drivers = {
        {QStringLiteral("VXI drivers"),
         {{QString(), QStringLiteral("kela.dll (Version 1.0)")},
          {QString(), QStringLiteral("kelb.dll (Version 2.0)")}}},
        {QStringLiteral("USB drivers"), {{QString(), QStringLiteral("No USB driver found")}}}};
}

void AboutWindowCase::cleanup()
{
    delete m_window;
    QGuiApplication::clipboard()->clear();
    qApp->setStyleSheet(QString());
}

void AboutWindowCase::open()
{
    m_window = new KelAboutWindow(m_product, std::make_unique<FakeOsInfo>(m_facts));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

QLabel *AboutWindowCase::cell(int row, int column) const
{
    auto *grid = qobject_cast<QGridLayout *>(child<QWidget>("scroll_content")->layout());
    return qobject_cast<QLabel *>(grid->itemAtPosition(row, column)->widget());
}

QVector<AboutWindowCase::Message> AboutWindowCase::pressCopy() const
{
    return messagesOf([this] { child<QPushButton>("copyButton")->click(); });
}

QVector<AboutWindowCase::Message>
AboutWindowCase::messagesOf(const std::function<void()> &action) const
{
    QVector<Message> messages;
    QTimer watcher;
    // A failed comparison would leave the message open, so nothing is compared while it is shown.
    connect(&watcher, &QTimer::timeout, m_window, [&messages] {
        auto *box = qobject_cast<KelMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        const auto *label = box->findChild<QLabel *>(QStringLiteral("messageLabel"));
        const auto *buttons = box->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
        messages.append({box->windowTitle(), label->text(), buttons->standardButtons(),
                         box->state(), box->parentWidget() != nullptr});
        box->close();
    });
    watcher.start(0);
    action();
    return messages;
}

QTextCharFormat markupFormat(const QLabel *label)
{
    QTextDocument document;
    document.setHtml(label->text());
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::NextCharacter);
    return cursor.charFormat();
}

QString plainText(const QLabel *label)
{
    QTextDocument document;
    document.setHtml(label->text());
    return document.toPlainText();
}

QString fileText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString themeSheet(const QString &otherTheme)
{
    QString sheet;
    const QDir folder(QStringLiteral(":/Global/Style"));
    const QStringList names = folder.entryList();
    for (const QString &name : names) {
        if (!name.endsWith(otherTheme + QLatin1String(".qss")))
            sheet += fileText(folder.filePath(name));
    }
    return sheet;
}

void addApplicationFonts()
{
    const QDir folder(QStringLiteral(":/Global/Fonts"));
    const QStringList names = folder.entryList();
    for (const QString &name : names)
        QFontDatabase::addApplicationFont(folder.filePath(name));
}
