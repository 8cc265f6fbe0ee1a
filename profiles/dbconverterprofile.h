// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_DBCONVERTERPROFILE_H
#define PROFILES_DBCONVERTERPROFILE_H

#include "announced.h"
#include "moduleprofile.h"

#include <QString>

namespace Dezimo {

struct Unit;

/**
 * The dB converter: two operands, their ratio and the ratio in dB, once for powers (P1, P2) and
 * once for voltages (V1, V2). Finishing any of the four fields of a half computes the others.
 *
 * An operand is a plain number or one in W, dBm or dBW; both are compared in watts, and the same
 * unit words are read on the voltage side. Error texts replace the text of a field and are
 * read back like any other text.
 *
 * The latest-run codes keep a field from being calculated twice when it is left again without
 * typing: a calculation that finds its own code does nothing, and typing sets the code to 0.
 */
class DbConverterProfile final : public ModuleProfile
{
    Q_OBJECT
    Q_PROPERTY(QString p1 READ p1 WRITE setP1 NOTIFY p1Changed)
    Q_PROPERTY(QString p2 READ p2 WRITE setP2 NOTIFY p2Changed)
    Q_PROPERTY(QString v1 READ v1 WRITE setV1 NOTIFY v1Changed)
    Q_PROPERTY(QString v2 READ v2 WRITE setV2 NOTIFY v2Changed)
    Q_PROPERTY(QString pRatio READ pRatio WRITE setPRatio NOTIFY pRatioChanged)
    Q_PROPERTY(QString pDb READ pDb WRITE setPDb NOTIFY pDbChanged)
    Q_PROPERTY(QString vRatio READ vRatio WRITE setVRatio NOTIFY vRatioChanged)
    Q_PROPERTY(QString vDb READ vDb WRITE setVDb NOTIFY vDbChanged)
    Q_PROPERTY(int currentMode READ currentMode WRITE setCurrentMode NOTIFY currentModeChanged)
    Q_PROPERTY(int pLatestRun READ pLatestRun WRITE setPLatestRun NOTIFY pLatestRunChanged)
    Q_PROPERTY(int vLatestRun READ vLatestRun WRITE setVLatestRun NOTIFY vLatestRunChanged)

public:
    using ModuleProfile::ModuleProfile;

    QString p1() const { return m_powers.first.get(); }
    QString p2() const { return m_powers.second.get(); }
    QString v1() const { return m_voltages.first.get(); }
    QString v2() const { return m_voltages.second.get(); }
    QString pRatio() const { return m_powers.ratio.get(); }
    QString pDb() const { return m_powers.db.get(); }
    QString vRatio() const { return m_voltages.ratio.get(); }
    QString vDb() const { return m_voltages.db.get(); }
    /// 0: powers, 1: voltages.
    int currentMode() const { return m_currentMode.get(); }
    int pLatestRun() const { return m_powers.latestRun.get(); }
    int vLatestRun() const { return m_voltages.latestRun.get(); }

    void setP1(const QString &text) { m_powers.first.set(text); }
    void setP2(const QString &text) { m_powers.second.set(text); }
    void setV1(const QString &text) { m_voltages.first.set(text); }
    void setV2(const QString &text) { m_voltages.second.set(text); }
    void setPRatio(const QString &text) { m_powers.ratio.set(text); }
    void setPDb(const QString &text) { m_powers.db.set(text); }
    void setVRatio(const QString &text) { m_voltages.ratio.set(text); }
    void setVDb(const QString &text) { m_voltages.db.set(text); }
    void setCurrentMode(int mode) { m_currentMode.set(mode); }
    void setPLatestRun(int code) { m_powers.latestRun.set(code); }
    void setVLatestRun(int code) { m_voltages.latestRun.set(code); }

    void saveSettings(QSettings &settings) override;
    void loadSettings(QSettings &settings) override;

public Q_SLOTS:
    void calculateFromP1() { m_powers.calculateFromFirst(); }
    void calculateFromP2() { m_powers.calculateFromSecond(); }
    void calculateFromPRatio() { m_powers.calculateFromRatio(); }
    void calculateFromPDb() { m_powers.calculateFromDb(); }
    void calculateFromV1() { m_voltages.calculateFromFirst(); }
    void calculateFromV2() { m_voltages.calculateFromSecond(); }
    void calculateFromVRatio() { m_voltages.calculateFromRatio(); }
    void calculateFromVDb() { m_voltages.calculateFromDb(); }

Q_SIGNALS:
    void p1Changed();
    void p2Changed();
    void v1Changed();
    void v2Changed();
    void pRatioChanged();
    void pDbChanged();
    void vRatioChanged();
    void vDbChanged();
    void currentModeChanged();
    void pLatestRunChanged();
    void vLatestRunChanged();

private:
    struct Rule;

    /// The four fields of one tab, of which each is calculated from the others.
    struct Half
    {
        Announced<QString> first;
        Announced<QString> second;
        Announced<QString> ratio;
        Announced<QString> db;
        Announced<int> latestRun;
        const Rule &rule;
        /// Whose digits the results have.
        const ModuleProfile &model;

        void calculateFromFirst();
        void calculateFromSecond();
        void calculateFromRatio();
        void calculateFromDb();

    private:
        void run(void (Half::*finish)(), int guard, int code);
        void finishFirst();
        void finishSecond();
        void finishRatio();
        void finishDb();
        QString operandText(double watt, const Unit &unit) const;
        void showRatio(double linear);
        void showDbOf(double linear);
        void clearResults(const QString &ratioText = {});
        void deriveFirst(double linear);
        void deriveSecond(double linear);
        void deriveMissingOperand(double linear);
    };

    static const Rule kPowers;
    static const Rule kVoltages;

    using Self = DbConverterProfile;
    Half m_powers{{this, &Self::p1Changed},
                  {this, &Self::p2Changed},
                  {this, &Self::pRatioChanged},
                  {this, &Self::pDbChanged},
                  {this, &Self::pLatestRunChanged},
                  kPowers,
                  *this};
    Half m_voltages{{this, &Self::v1Changed},
                    {this, &Self::v2Changed},
                    {this, &Self::vRatioChanged},
                    {this, &Self::vDbChanged},
                    {this, &Self::vLatestRunChanged},
                    kVoltages,
                    *this};
    Announced<int> m_currentMode{this, &Self::currentModeChanged};
};

} // namespace Dezimo

#endif
