// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "editscript.h"

#include "errortexts.h"
#include "require.h"

#include <cmath>

using namespace Dezimo;

namespace {

/// Selectors have fewer entries, so this includes invalid indexes at both ends.
constexpr int kFarthestIndex = 10;

/// @p text as a value that a widget or a loader could pass to the property. Invalid if neither
/// would pass it.
QVariant valueFor(const QMetaProperty &property, const QString &text)
{
    bool ok = false;
    switch (property.type()) {
    case QVariant::String:
        return text;
    case QVariant::Int: {
        const int value = text.toInt(&ok);
        return ok && std::abs(value) <= kFarthestIndex ? QVariant(value) : QVariant();
    }
    case QVariant::Double: {
        const double value = text.toDouble(&ok);
        return ok && std::isfinite(value) ? QVariant(value) : QVariant();
    }
    default:
        return {};
    }
}

void setProperty(QObject &object, const QByteArray &name, const QString &text)
{
    const QMetaObject *type = object.metaObject();
    const QMetaProperty property = type->property(type->indexOfProperty(name.constData()));
    const QVariant value = property.isValid() ? valueFor(property, text) : QVariant();
    if (value.isValid())
        property.write(&object, value);
}

void callSlot(QObject &object, const QByteArray &name)
{
    const QMetaObject *type = object.metaObject();
    const QByteArray signature = name + "()";
    const int slot = type->indexOfSlot(signature.constData());
    // QObject's own slots are left out, because deleteLater() would delete the model.
    if (slot >= QObject::staticMetaObject.methodCount())
        type->method(slot).invoke(&object, Qt::DirectConnection);
}

} // namespace

QStringList linesOf(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), int(size))
        .split(QLatin1Char('\n'));
}

EditScript::EditScript(const std::vector<QObject *> &models)
{
    for (QObject *model : models)
        m_models.push_back({model, std::make_unique<ChangeWatch>(*model)});
}

void EditScript::run(const QString &line)
{
    const auto sign = line.indexOf(QLatin1Char('='));
    const bool isSlot = sign < 0;
    const QByteArray name = line.left(sign).toLatin1();
    for (Model &model : m_models) {
        if (isSlot)
            callSlot(*model.object, name);
        else
            setProperty(*model.object, name, line.mid(sign + 1));
        model.watch->requireAllAnnounced();
        const QStringList texts = model.watch->takeChangedTexts();
        for (const QString &text : texts)
            require(!isSlot || isResult(text), "a calculation leaves a result", text);
    }
}

bool isResult(const QString &text)
{
    static const QStringList words = ErrorText::all() << QString() << QStringLiteral("INF")
                                                      << QStringLiteral("-INF");
    // When the dB converter calculates one operand, it appends the unit of the other one.
    QString number = text;
    for (const char *unit : {"dBm", "dBW", "W"})
        number.remove(QLatin1String(unit));
    bool ok = false;
    number.toDouble(&ok);
    return ok || words.contains(number);
}
