// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_APP_DAMAGEDSTORECASE_H
#define TESTS_APP_DAMAGEDSTORECASE_H

#include "mainwindow.h"

#include <QObject>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

/// Files that no program writes, made to do harm.
namespace DamagedStore {

constexpr int kMebibyte = 1024 * 1024;

/// @p value of the key p1 of the dB converter, and harmless neighbors before and after it.
QByteArray amongNeighbors(const QByteArray &value);
/// A list that holds a list that holds a list and so on.
QByteArray deeplyNestedLists();
/// Several types say of themselves that they have four thousand million elements.
QByteArray hugeCount(int type);

void write(const QString &fileName, const QByteArray &text);
QByteArray read(const QString &fileName);
bool makePipe(const QString &fileName);
/// A sparse file takes no room on the disk, yet would take the memory.
bool makeHuge(const QString &fileName);

} // namespace DamagedStore

/// A test of what the window makes of such a store. Before each test function there are no
/// settings, and the field P1 holds 1W.
class DamagedStoreCase : public QObject
{
    Q_OBJECT

protected:
    QString settingsFile() const { return m_settingsFile; }
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    /// A new window reads what is stored now.
    void restart();
    QString fieldText(const char *name) const;

    std::unique_ptr<MainWindow> m_window;

private Q_SLOTS:
    void init();
    void cleanup();

private:
    /// Taken from QSettings while it can still be made.
    const QString m_settingsFile = QSettings().fileName();
    std::unique_ptr<QTemporaryDir> m_folder;
};

#endif
