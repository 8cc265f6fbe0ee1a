// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "goldentrace.h"

#include "mainprofile.h"
#include "propertyvalues.h"

#include <QCryptographicHash>
#include <QPoint>
#include <QSize>

using namespace Dezimo;

namespace {

using Words = std::vector<const char *>;

QString lineOf(const Profile &profile, const QMetaProperty &property)
{
    return QStringLiteral("%1.%2 = %3")
        .arg(profile.group(), QLatin1String(property.name()), exactText(property.read(&profile)));
}

bool isCalculation(const QMetaMethod &method)
{
    return method.methodType() == QMetaMethod::Slot && method.parameterCount() == 0;
}

} // namespace

Announcements::Announcements(const Profile &profile, QStringList &lines)
    : m_profile(profile),
      m_lines(lines)
{
    const int slot = metaObject()->indexOfSlot("note()");
    for (const QMetaProperty &property : declaredProperties(profile))
        QMetaObject::connect(&profile, property.notifySignalIndex(), this, slot);
}

void Announcements::note()
{
    for (const QMetaProperty &property : declaredProperties(m_profile)) {
        if (property.notifySignalIndex() == senderSignalIndex())
            m_lines += lineOf(m_profile, property);
    }
}

GoldenTrace::GoldenTrace() : m_root(MainProfile::instance())
{
    std::vector<Profile *> profiles;
    for (ModuleProfile *module : m_root.modules())
        profiles.push_back(module);
    profiles.push_back(&m_root);
    for (Profile *profile : profiles) {
        m_announcements.push_back(std::make_unique<Announcements>(*profile, m_lines));
        Model model{profile, declaredProperties(*profile), {}};
        const QMetaObject &type = *profile->metaObject();
        for (int i = QObject::staticMetaObject.methodCount(); i < type.methodCount(); ++i) {
            if (isCalculation(type.method(i)))
                model.calculations.push_back(type.method(i));
        }
        m_models.push_back(model);
    }
    for (SettingsFile &store : m_stores)
        m_root.saveSettings(store.settings());
}

GoldenTrace::~GoldenTrace() = default;

QStringList GoldenTrace::playThousand()
{
    m_lines.clear();
    for (int i = 0; i < 1000; ++i)
        step();
    return m_lines;
}

QByteArray GoldenTrace::checksum(const QStringList &lines)
{
    const QByteArray text = lines.join(QLatin1Char('\n')).toUtf8();
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

/// Compilers choose the order in which they evaluate the parts of an expression, so each draw has a
/// statement of its own.
QString GoldenTrace::anyNumber()
{
    static const Words prefixes{"", "", "", "", "", "m", "k", "u", "M", "G"};
    const bool isLong = below(3) == 0;
    double number = below(isLong ? 100000 : 100);
    if (below(8) == 0)
        number = -number;
    if (below(2) == 0)
        number /= 16.0;
    return QString::number(number, 'g', 8) + QLatin1String(anyOf(prefixes));
}

QString GoldenTrace::anyOperand()
{
    static const Words units{"", "", "dBm", "dBW", "dB", "W", "mW", "µW", "V", "mV"};
    const QString number = anyNumber();
    return number + QString::fromUtf8(anyOf(units));
}

/// An expression, an operand, a plain number, or nonsense.
QString GoldenTrace::anyText()
{
    static const Words signs{"+", "-", "+", "-", "+-", " + ", "-("};
    static const Words oddities{"",      "inf", "nan",   "1e400",    "invalid input",
                                "NAN",   "2:1", "1,5mW", "()",       "(1dBm",
                                "1 : 1", "x",   "0",     "[1mW+2mW]"};
    if (below(6) == 0)
        return QString::fromUtf8(anyOf(oddities));
    QString text = anyOperand();
    for (int terms = below(4); terms > 0; --terms) {
        text += QLatin1String(anyOf(signs));
        text += anyOperand();
    }
    const int open = int(text.count(QLatin1Char('(')));
    return below(8) == 0 ? text : text + QString(open, QLatin1Char(')'));
}

QVariant GoldenTrace::anyValue(const QMetaProperty &property)
{
    const int first = below(2000);
    const int second = below(2000);
    switch (property.userType()) {
    case QMetaType::QString:
        return first < 1000 ? anyNumber() : anyText();
    case QMetaType::Int:
        return first % 5;
    case QMetaType::Double:
        return first % 721 - 360;
    case QMetaType::QPoint:
        return QPoint(first, second);
    case QMetaType::QSize:
        return QSize(first, second);
    default:
        return {};
    }
}

/// Sets a unit, a text or another property.
void GoldenTrace::edit(const Model &model)
{
    const QMetaProperty property = anyOf(model.properties);
    const QVariant value = anyValue(property);
    m_lines += QStringLiteral("set %1 to %2").arg(QLatin1String(property.name()), exactText(value));
    if (value.isValid())
        property.write(model.profile, value);
}

void GoldenTrace::calculate(const Model &model)
{
    if (model.calculations.empty())
        return;
    const QMetaMethod calculation = anyOf(model.calculations);
    m_lines += QLatin1String("call ") + QLatin1String(calculation.name());
    calculation.invoke(model.profile);
}

void GoldenTrace::save()
{
    SettingsFile &store = m_stores.at(size_t(below(int(m_stores.size()))));
    m_root.saveSettings(store.settings());
    m_lines += QStringLiteral("save");
    m_lines += store.lines();
}

void GoldenTrace::load()
{
    QSettings &store = m_stores.at(size_t(below(int(m_stores.size())))).settings();
    m_lines += QStringLiteral("load");
    if (below(2) == 0)
        m_root.loadSettings(store);
    else
        m_root.loadModuleSettings(store);
}

/// Loads a store in which one value has the wrong type or is out of range, and another one is
/// missing.
void GoldenTrace::loadForeign()
{
    static const Words values{"", "-1", "7", "1.5", "12 dBm", "@Size(1 2)", "true", "1e30"};
    SettingsFile store;
    m_root.saveSettings(store.settings());
    const QStringList keys = store.settings().allKeys();
    const QString &spoiled = keys.at(below(int(keys.size())));
    const QString value = QLatin1String(anyOf(values));
    const QString &removed = keys.at(below(int(keys.size())));
    m_lines += QStringLiteral("load with %1 as \"%2\" and without %3").arg(spoiled, value, removed);
    store.settings().setValue(spoiled, value);
    store.settings().remove(removed);
    m_root.loadSettings(store.settings());
}

void GoldenTrace::step()
{
    const Model &model = m_models.at(size_t(below(int(m_models.size()))));
    switch (below(50)) {
    case 0:
        save();
        break;
    case 1:
        load();
        break;
    case 2:
        loadForeign();
        break;
    default:
        edit(model);
        calculate(model);
    }
}
