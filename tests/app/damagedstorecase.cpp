// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "damagedstorecase.h"

#include "mainprofile.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>

#include <sys/stat.h>

using namespace Dezimo;

namespace {

QByteArray escapedInteger(quint32 value)
{
    QByteArray bytes;
    for (const int shift : {24, 16, 8, 0})
        bytes += "\\x" + QByteArray::number((value >> unsigned(shift)) & 0xffU, 16);
    return bytes;
}

} // namespace

QByteArray DamagedStore::amongNeighbors(const QByteArray &value)
{
    return "[DbConverterProfile]\np2=7W\np1=" + value + "\npDb=3.00\ncurrentMode=1\n";
}

/// Each level is the type's number and the count of elements.
QByteArray DamagedStore::deeplyNestedLists()
{
    const QByteArray level = escapedInteger(QMetaType::QVariantList) + escapedInteger(1);
    return "@Variant(" + level.repeated(200000) + ")";
}

QByteArray DamagedStore::hugeCount(int type)
{
    return "@Variant(" + escapedInteger(quint32(type)) + escapedInteger(0xfffffffeU) + ")";
}

void DamagedStore::write(const QString &fileName, const QByteArray &text)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(fileName));
}

QByteArray DamagedStore::read(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool DamagedStore::makePipe(const QString &fileName)
{
    return mkfifo(qPrintable(fileName), S_IRUSR | S_IWUSR) == 0;
}

bool DamagedStore::makeHuge(const QString &fileName)
{
    write(fileName, QByteArray());
    return QFile::resize(fileName, qint64(5) * 1024 * kMebibyte);
}

void DamagedStoreCase::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QDir(QFileInfo(settingsFile()).path()).removeRecursively();
    MainProfile::instance().setWindowPosition({});
    restart();
    MainProfile::instance().dbConverter().setP1(QStringLiteral("1W"));
}

void DamagedStoreCase::cleanup()
{
    m_window.reset();
}

void DamagedStoreCase::restart()
{
    m_window.reset();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
}

QString DamagedStoreCase::fieldText(const char *name) const
{
    return m_window->findChild<QLineEdit *>(QLatin1String(name))->text();
}
