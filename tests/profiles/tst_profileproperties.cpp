// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "everyprofile.h"
#include "mainprofile.h"
#include "propertyvalues.h"
#include "table.h"
#include "testmain.h"

#include <QMetaMethod>
#include <QTest>

using namespace Dezimo;

/// What holds for each property of each profile.
class ProfilePropertiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isReadWrittenAndAnnounced_data();
    void isReadWrittenAndAnnounced();
    void settersSignalOnce_data();
    void settersSignalOnce();
    void everySignalAnnouncesAProperty_data();
    void everySignalAnnouncesAProperty();
};

namespace {

/// Fresh profiles. A test looks at the one of the present row.
class Profiles
{
public:
    int count() { return int(everyProfile(m_root).size()); }
    Profile &at(int index) { return *everyProfile(m_root).at(std::size_t(index)); }

private:
    MainProfile m_root;
};

void addProperties()
{
    columns<int, QByteArray>({"profileIndex", "name"});

    Profiles profiles;
    for (int i = 0; i < profiles.count(); ++i) {
        const Profile &profile = profiles.at(i);
        for (const QMetaProperty &property : declaredProperties(profile))
            QTest::addRow("%s.%s", qPrintable(profile.group()), property.name())
                << i << QByteArray(property.name());
    }
}

QMetaProperty propertyNamed(const Profile &profile, const QByteArray &name)
{
    const QMetaObject *type = profile.metaObject();
    return type->property(type->indexOfProperty(name.constData()));
}

} // namespace

void ProfilePropertiesTest::isReadWrittenAndAnnounced_data()
{
    addProperties();
}

void ProfilePropertiesTest::isReadWrittenAndAnnounced()
{
    QFETCH(int, profileIndex);
    QFETCH(QByteArray, name);

    Profiles profiles;
    const QMetaProperty property = propertyNamed(profiles.at(profileIndex), name);
    QVERIFY(property.isReadable());
    QVERIFY(property.isWritable());
    QVERIFY(property.hasNotifySignal());
    QCOMPARE(property.notifySignal().methodSignature(), QByteArray(name + "Changed()"));
}

void ProfilePropertiesTest::settersSignalOnce_data()
{
    addProperties();
}

void ProfilePropertiesTest::settersSignalOnce()
{
    QFETCH(int, profileIndex);
    QFETCH(QByteArray, name);

    Profiles profiles;
    Profile &profile = profiles.at(profileIndex);
    const QMetaProperty property = propertyNamed(profile, name);
    const QVariant before = property.read(&profile);
    const QVariant other = otherValue(before);
    ChangeLog log(profile);
    QVERIFY(property.write(&profile, before));
    QCOMPARE(log.take(), QStringList());
    QVERIFY(property.write(&profile, other));
    QCOMPARE(property.read(&profile), other);
    QCOMPARE(log.take(), QStringList{QString::fromLatin1(name)});
    QVERIFY(property.write(&profile, other));
    QCOMPARE(log.take(), QStringList());
}

void ProfilePropertiesTest::everySignalAnnouncesAProperty_data()
{
    columns<int>({"profileIndex"});

    Profiles profiles;
    for (int i = 0; i < profiles.count(); ++i)
        row(qPrintable(profiles.at(i).group()), i);
}

void ProfilePropertiesTest::everySignalAnnouncesAProperty()
{
    QFETCH(int, profileIndex);

    Profiles profiles;
    const Profile &profile = profiles.at(profileIndex);
    QStringList announced;
    for (const QMetaProperty &property : declaredProperties(profile))
        announced += QString::fromLatin1(property.notifySignal().name());
    announced.sort();

    QStringList declared;
    for (const QMetaObject *type = profile.metaObject(); type != &QObject::staticMetaObject;
         type = type->superClass())
        declared += signalNames(*type);
    declared.sort();
    QCOMPARE(declared, announced);
}

DEZIMO_TEST_MAIN(QCoreApplication, ProfilePropertiesTest)

#include "tst_profileproperties.moc"
