// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelapplication.h"
#include "testmain.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QIcon>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

#include <utility>

/// Every resource that code, forms or style sheets name exists and draws something.
class ResourcePathsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyNamedResourceIsThere_data();
    void everyNamedResourceIsThere();
};

namespace {

/// The ":/..." paths in the sources of a folder, with their place markers.
QStringList pathsIn(const QString &folder)
{
    static const QRegularExpression path(QStringLiteral("[\">(](:/[^\"<)\\s]*)[\"<)]"));
    QStringList paths;
    QDirIterator files(folder,
                       {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui"),
                        QStringLiteral("*.qss")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        for (auto it = path.globalMatch(QString::fromUtf8(file.readAll())); it.hasNext();)
            paths += it.next().captured(1);
    }
    return paths;
}

/// The paths that a path with place markers stands for. The markers become both theme words, and
/// the names of the mode button's icons and of the fonts.
QStringList filledIn(const QString &pattern)
{
    if (pattern == QLatin1String(":/Global/Fonts/%1.ttf"))
        return {QStringLiteral(":/Global/Fonts/Tessan_v3_Regular_02.ttf"),
                QStringLiteral(":/Global/Fonts/TessanCd_v3_Bold_02.ttf")};
    QStringList paths;
    for (const char *theme : {"bright", "dark"}) {
        QString path = pattern;
        path.replace(QLatin1String("%0"), QLatin1String(theme));
        path.replace(QLatin1String("%1"), QLatin1String(theme));
        path.replace(QLatin1String("@theme"), QLatin1String(theme));
        if (!path.contains(QLatin1String("%2")))
            paths += path;
        else
            paths << QString(path).replace(QLatin1String("%2"), QLatin1String("Add"))
                  << QString(path).replace(QLatin1String("%2"), QLatin1String("Minus"));
    }
    paths.removeDuplicates();
    return paths;
}

bool drawsSomething(const QString &path)
{
    const QImage image = QIcon(path).pixmap(48, 48).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                return true;
        }
    }
    return false;
}

} // namespace

void ResourcePathsTest::everyNamedResourceIsThere_data()
{
    QTest::addColumn<QString>("path");

    QStringList paths;
    for (const char *folder : {"app", "views", "widgets", "resources/style"}) {
        const QStringList patterns =
            pathsIn(QStringLiteral(DEZIMO_SOURCE_DIR "/") + QLatin1String(folder));
        for (const QString &pattern : patterns)
            paths += filledIn(pattern);
    }
    paths.removeDuplicates();
    QVERIFY(paths.size() > 30);
    for (const QString &path : std::as_const(paths))
        QTest::newRow(qPrintable(path)) << path;
}

void ResourcePathsTest::everyNamedResourceIsThere()
{
    QFETCH(QString, path);

    if (path.endsWith(QLatin1Char('/'))) {
        QVERIFY(QFileInfo(path).isDir());
        return;
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.size() > 0);
    if (path.endsWith(QLatin1String(".svg")))
        QVERIFY(drawsSomething(path));
    if (path.endsWith(QLatin1String(".ttf")))
        QVERIFY(QFontDatabase::addApplicationFontFromData(file.readAll()) >= 0);
}

int main(int argc, char **argv)
{
    return runTestMain<KelApplication, ResourcePathsTest>(argc, argv, true);
}

#include "tst_resourcepaths.moc"
