// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "converterpage.h"

#include "kellineedit.h"
#include "mainprofile.h"
#include "resources.h"
#include "settingsfile.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QTest>

ConverterPage::ConverterPage(QWidget &page) : m_page(page)
{
    m_page.resize(918, 583);
    m_page.show();
    m_page.activateWindow();
    if (!QTest::qWaitForWindowActive(&m_page))
        qFatal("the page does not become active");
}

KelLineEdit &ConverterPage::field(const QString &name) const
{
    return child<KelLineEdit>(name);
}

QComboBox &ConverterPage::combo(const QString &name) const
{
    return child<QComboBox>(name);
}

QLabel &ConverterPage::label(const QString &name) const
{
    return child<QLabel>(name);
}

void ConverterPage::focus(const QString &name) const
{
    child<QWidget>(name).setFocus(Qt::TabFocusReason);
}

void ConverterPage::type(const QString &name, const QString &text) const
{
    focus(name);
    field(name).selectAll();
    QTest::keyClicks(&field(name), text);
}

void ConverterPage::press(const QString &name, Qt::Key key, int times) const
{
    focus(name);
    for (int i = 0; i < times; ++i)
        QTest::keyClick(QApplication::focusWidget(), key);
}

QStringList ConverterPage::tabStops(const QString &first) const
{
    constexpr int kMoreThanAnyPageHas = 50;
    focus(first);
    const QWidget *const start = QApplication::focusWidget();
    QStringList stops;
    do {
        const QWidget *stop = QApplication::focusWidget();
        const auto *button = qobject_cast<const QAbstractButton *>(stop);
        stops.append(button && button->objectName().isEmpty() ? button->text()
                                                              : stop->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != start && stops.size() < kMoreThanAnyPageHas);
    return stops;
}

QStringList ConverterPage::items(const QString &name) const
{
    QStringList texts;
    for (int i = 0; i < combo(name).count(); ++i)
        texts.append(combo(name).itemText(i));
    return texts;
}

QString ConverterPage::fieldTexts() const
{
    QStringList texts;
    for (const QWidget *widget = m_page.nextInFocusChain(); widget != &m_page;
         widget = widget->nextInFocusChain()) {
        if (const auto *field = qobject_cast<const KelLineEdit *>(widget))
            texts.append(field->text());
    }
    return texts.join(QStringLiteral(" | "));
}

void loadDefaults()
{
    SettingsFile empty;
    MainProfile::instance().loadModuleSettings(empty.settings());
}

void loadFile(const QStringList &lines)
{
    SettingsFile file;
    for (const QString &line : lines) {
        const int equals = line.indexOf(QLatin1Char('='));
        file.settings().setValue(line.left(equals), line.mid(equals + 1));
    }
    MainProfile::instance().loadModuleSettings(file.settings());
}

void useProgramStyle()
{
    initDezimoResources();
    const QDir fonts(QStringLiteral(":/Global/Fonts"));
    const QStringList fontFiles = fonts.entryList();
    for (const QString &file : fontFiles)
        QFontDatabase::addApplicationFont(fonts.filePath(file));

    QString sheet;
    const QDir sheets(QStringLiteral(":/Global/Style"));
    const QStringList sheetFiles = sheets.entryList({QStringLiteral("*.qss")});
    for (const QString &name : sheetFiles) {
        QFile file(sheets.filePath(name));
        if (!name.endsWith(QStringLiteral("_dark.qss")) && file.open(QIODevice::ReadOnly))
            sheet += QString::fromLatin1(file.readAll());
    }
    qApp->setStyleSheet(sheet);
}
