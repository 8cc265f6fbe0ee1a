// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_PROFILES_GOLDENTRACE_H
#define TESTS_PROFILES_GOLDENTRACE_H

#include "settingsfile.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QObject>
#include <QStringList>

#include <array>
#include <memory>
#include <random>
#include <vector>

namespace Dezimo {
class MainProfile;
class Profile;
} // namespace Dezimo

/// Writes down each announcement of an object as "Class.property = value", in the order in which
/// they come.
class Announcements final : public QObject
{
    Q_OBJECT

public:
    Announcements(const Dezimo::Profile &profile, QStringList &lines);

private Q_SLOTS:
    void note();

private:
    const Dezimo::Profile &m_profile;
    QStringList &m_lines;
};

/**
 * Plays edits, unit choices, calculations, saves and loads through all models, always the same
 * ones, and writes down what the models announce and what they store. A change of the models that
 * is meant to change nothing leaves every line as it is.
 */
class GoldenTrace
{
public:
    GoldenTrace();
    ~GoldenTrace();

    static constexpr int kThousands = 10;

    /// What the next thousand steps leave behind, a line for each step, announcement and stored
    /// value.
    QStringList playThousand();
    /// Equal for equal lines, and short enough to be kept.
    static QByteArray checksum(const QStringList &lines);

private:
    struct Model
    {
        Dezimo::Profile *profile;
        std::vector<QMetaProperty> properties;
        std::vector<QMetaMethod> calculations;
    };

    /// Equal on every system, unlike the distributions of the standard library.
    int below(int bound) { return int(m_random() % unsigned(bound)); }
    template <typename Container>
    auto anyOf(const Container &container)
    {
        return container.at(size_t(below(int(container.size()))));
    }

    QString anyNumber();
    QString anyOperand();
    QString anyText();
    QVariant anyValue(const QMetaProperty &property);
    void edit(const Model &model);
    void calculate(const Model &model);
    void save();
    void load();
    void loadForeign();
    void step();

    std::mt19937 m_random{20220531};
    QStringList m_lines;
    Dezimo::MainProfile &m_root;
    std::vector<Model> m_models;
    std::vector<std::unique_ptr<Announcements>> m_announcements;
    std::array<SettingsFile, 4> m_stores;
};

#endif
