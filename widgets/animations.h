// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_ANIMATIONS_H
#define WIDGETS_ANIMATIONS_H

#include <QEasingCurve>
#include <QPropertyAnimation>

/// Every animation of the program takes this long.
constexpr int kAnimationMilliseconds = 200;

/// An animation of a widget's property between two values, not started yet. It belongs to the
/// widget; start it with QAbstractAnimation::DeleteWhenStopped.
inline QPropertyAnimation *makeAnimation(QObject *target, const QByteArray &property,
                                         const QVariant &from, const QVariant &to,
                                         QEasingCurve::Type easing = QEasingCurve::Linear)
{
    auto *animation = new QPropertyAnimation(target, property, target);
    animation->setDuration(kAnimationMilliseconds);
    animation->setStartValue(from);
    animation->setEndValue(to);
    animation->setEasingCurve(easing);
    return animation;
}

#endif
