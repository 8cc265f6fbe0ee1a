// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_APP_DAMAGEDSTORECASE_H
#define TESTS_APP_DAMAGEDSTORECASE_H

#include "mainwindow.h"

#include <QObject>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

/// Harmful files, such as no program writes by itself.
namespace DamagedStore {

constexpr int kMebibyte = 1024 * 1024;

/// Settings with @p value for the key p1 of the dB converter, between harmless neighbors.
QByteArray amongNeighbors(const QByteArray &value);
/// A list that holds a list that holds a list and so on.
QByteArray deeplyNestedLists();
/// A value of @p type that claims to have four thousand million elements. Several types can.
QByteArray hugeCount(int type);

void write(const QString &fileName, const QByteArray &text);
QByteArray read(const QString &fileName);
bool makePipe(const QString &fileName);
/// Makes a sparse file. It takes no room on the disk, but reading it would take all memory.
bool makeHuge(const QString &fileName);

} // namespace DamagedStore

/// A test of what the window does with such files. Before each test function there are no settings,
/// and the field P1 holds 1W.
class DamagedStoreCase : public QObject
{
    Q_OBJECT

protected:
    QString settingsFile() const { return m_settingsFile; }
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    /// Makes a new window, which reads what is stored now.
    void restart();
    QString fieldText(const char *name) const;

    std::unique_ptr<MainWindow> m_window;

private Q_SLOTS:
    void init();
    void cleanup();

private:
    /// Read at the start, because a test may make files that QSettings must not open.
    const QString m_settingsFile = QSettings().fileName();
    std::unique_ptr<QTemporaryDir> m_folder;
};

#endif
