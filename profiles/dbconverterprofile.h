// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef PROFILES_DBCONVERTERPROFILE_H
#define PROFILES_DBCONVERTERPROFILE_H

#include "profile.h"

#include <QString>

/**
 * The dB converter: two operands, their ratio and the ratio in dB, once for powers (P1, P2) and
 * once for voltages (V1, V2). Finishing any of the four fields of a half computes the others.
 *
 * An operand is a plain number or one in W, dBm or dBW; both are compared in watts, and the same
 * unit words are read on the voltage side. Error texts stand in the field that they replace and are
 * read back like any other text.
 *
 * The latest-run codes keep a field that is left again without typing from being calculated twice:
 * a calculation that finds its own code does nothing, and typing sets the code to 0.
 */
class DbConverterProfile final : public Profile
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
    explicit DbConverterProfile(QObject *parent = nullptr);

    QString p1() const { return m_p1; }
    QString p2() const { return m_p2; }
    QString v1() const { return m_v1; }
    QString v2() const { return m_v2; }
    QString pRatio() const { return m_pRatio; }
    QString pDb() const { return m_pDb; }
    QString vRatio() const { return m_vRatio; }
    QString vDb() const { return m_vDb; }
    /// 0: powers, 1: voltages.
    int currentMode() const { return m_currentMode; }
    int pLatestRun() const { return m_pLatestRun; }
    int vLatestRun() const { return m_vLatestRun; }

    void setP1(const QString &text);
    void setP2(const QString &text);
    void setV1(const QString &text);
    void setV2(const QString &text);
    void setPRatio(const QString &text);
    void setPDb(const QString &text);
    void setVRatio(const QString &text);
    void setVDb(const QString &text);
    void setCurrentMode(int mode);
    void setPLatestRun(int code);
    void setVLatestRun(int code);

    void saveSettings(QSettings &settings) override;
    void loadSettings(QSettings &settings) override;

public Q_SLOTS:
    void calculateFromP1();
    void calculateFromP2();
    void calculateFromPRatio();
    void calculateFromPDb();
    void calculateFromV1();
    void calculateFromV2();
    void calculateFromVRatio();
    void calculateFromVDb();

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
    struct Field;
    struct Half;

    QString text(const Field &field) const;
    void setText(const Field &field, const QString &text);

    using Step = void (DbConverterProfile::*)(const Half &);
    void run(const Half &half, Step step, int guard, int code);
    void finishFirst(const Half &half);
    void finishSecond(const Half &half);
    void finishRatio(const Half &half);
    void finishDb(const Half &half);

    void showRatio(const Half &half, double ratio);
    void showDbOf(const Half &half, double ratio);
    void clearResults(const Half &half, const QString &ratioText = {});
    void deriveFirst(const Half &half, double ratio);
    void deriveSecond(const Half &half, double ratio);
    void deriveMissingOperand(const Half &half, double ratio);

    static const Half kPowers;
    static const Half kVoltages;

    QString m_p1;
    QString m_p2;
    QString m_v1;
    QString m_v2;
    QString m_pRatio;
    QString m_pDb;
    QString m_vRatio;
    QString m_vDb;
    int m_currentMode = 0;
    int m_pLatestRun = 0;
    int m_vLatestRun = 0;
};

#endif
