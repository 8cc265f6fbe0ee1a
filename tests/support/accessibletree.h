// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_ACCESSIBLETREE_H
#define TESTS_SUPPORT_ACCESSIBLETREE_H

#include <QAccessible>
#include <QStringList>

class QWidget;

/**
 * A window as a screen reader walks through it: what is visible, in the order of the tree, without
 * the frames that only hold other controls.
 */
namespace AccessibleTree {

/// One line per control: role, name, after a slash the description, and the states in brackets, for
/// example "EditableText Result / dBm [read-only]". The lists inside combo boxes are left out.
QStringList controls(const QWidget *root);

/// The texts that a person reads without being able to change them.
QStringList texts(const QWidget *root);

/// The control with this role and name below @p root, as a screen reader would look for it. Null if
/// there is none or more than one.
QAccessibleInterface *find(const QWidget *root, QAccessible::Role role, const QString &name);

} // namespace AccessibleTree

#endif
