// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kellineedit.h"
#include "testmain.h"
#include "windowsystem.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <memory>

class KelLineEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hasNoLabelsAtFirst();
    void showsThePrefixAtTheLeftEnd();
    void showsTheSuffixAtTheRightEnd();
    void anEmptyTextHidesItsLabelAndItsMargin();
    void resizingMovesTheSuffix();
    void showingRaisesTheLabelsToTheMinimumHeight();
    void aNewLabelFontIsLaidOut();
    void isLaidOutAsSoonAsItIsShown();
    void labelsAreNeitherMarkupNorInTheWay();

    void error_data();
    void error();
    void errorIsAnnouncedOnlyWhenItChanges();
    void errorFollowsTheListOfTexts();
    void styleSheetFollowsTheError();
    void aQuietErrorStaysAnError();
    void styleSheetFollowsTheQuiet();

    void placeholderKeepsItsColorUnderAStyleSheet();

    void describesItsLabels();
    void keepsADescriptionOfItsOwn();
    void hidesItsLabelsFromScreenReaders();

private:
    QLabel *label(const char *name) const
    {
        return m_edit->findChild<QLabel *>(QLatin1String(name));
    }

    std::unique_ptr<QWidget> m_window;
    KelLineEdit *m_edit = nullptr;
};

void KelLineEditTest::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(400, 100);
    m_edit = new KelLineEdit(m_window.get());
    m_edit->setGeometry(10, 10, 200, 30);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void KelLineEditTest::cleanup()
{
    m_window.reset();
    qApp->setStyleSheet(QString());
}

void KelLineEditTest::hasNoLabelsAtFirst()
{
    QVERIFY(!label("prefixLabel")->isVisible());
    QVERIFY(!label("suffixLabel")->isVisible());
    QCOMPARE(m_edit->textMargins(), QMargins(0, 0, 0, 0));
    QVERIFY(!m_edit->testAttribute(Qt::WA_MacShowFocusRect));
}

void KelLineEditTest::showsThePrefixAtTheLeftEnd()
{
    m_edit->setPrefixText(QStringLiteral("P1 ="));

    const QLabel *prefix = label("prefixLabel");
    QVERIFY(prefix->isVisible());
    QCOMPARE(prefix->text(), QStringLiteral("P1 ="));
    QCOMPARE(prefix->pos(), QPoint(12, 0));
    QCOMPARE(prefix->size(), prefix->sizeHint().expandedTo(prefix->minimumSize()));
    QVERIFY(prefix->width() > 0);
    QCOMPARE(m_edit->textMargins(), QMargins(prefix->width() + 12, 0, 0, 0));
    QVERIFY(!label("suffixLabel")->isVisible());
}

void KelLineEditTest::showsTheSuffixAtTheRightEnd()
{
    m_edit->setSuffixText(QStringLiteral("dBm"));

    const QLabel *suffix = label("suffixLabel");
    QVERIFY(suffix->isVisible());
    // The right edge is the last pixel column, 199, and the label ends 12 pixels before it.
    QCOMPARE(suffix->pos(), QPoint(199 - 12 - suffix->width(), 0));
    QCOMPARE(m_edit->textMargins(), QMargins(0, 0, suffix->width() + 12, 0));
    QVERIFY(!label("prefixLabel")->isVisible());
}

void KelLineEditTest::anEmptyTextHidesItsLabelAndItsMargin()
{
    m_edit->setPrefixText(QStringLiteral("P1 ="));
    m_edit->setSuffixText(QStringLiteral("W"));
    const int suffixMargin = label("suffixLabel")->width() + 12;

    m_edit->setPrefixText(QString());
    QVERIFY(!label("prefixLabel")->isVisible());
    QCOMPARE(m_edit->textMargins(), QMargins(0, 0, suffixMargin, 0));

    m_edit->setSuffixText(QString());
    QVERIFY(!label("suffixLabel")->isVisible());
    QCOMPARE(m_edit->textMargins(), QMargins(0, 0, 0, 0));
}

void KelLineEditTest::resizingMovesTheSuffix()
{
    m_edit->setSuffixText(QStringLiteral("mW"));
    m_edit->resize(150, 30);

    // The last pixel column is 149.
    QCOMPARE(label("suffixLabel")->x(), 149 - 12 - label("suffixLabel")->width());
}

void KelLineEditTest::showingRaisesTheLabelsToTheMinimumHeight()
{
    m_edit->hide();
    m_edit->setMinimumHeight(50);
    m_edit->setPrefixText(QStringLiteral("V"));
    QCOMPARE(label("prefixLabel")->minimumHeight(), 0);

    m_edit->show();
    QCOMPARE(label("prefixLabel")->minimumHeight(), 50);
    QCOMPARE(label("suffixLabel")->minimumHeight(), 50);
    QCOMPARE(label("prefixLabel")->height(), 50);
}

void KelLineEditTest::aNewLabelFontIsLaidOut()
{
    m_edit->setSuffixText(QStringLiteral("dBm"));
    const int before = label("suffixLabel")->width();
    m_edit->setStyleSheet(QStringLiteral("QLabel { font-size: 40px }"));

    QTRY_VERIFY(label("suffixLabel")->width() > before);
    const int width = label("suffixLabel")->sizeHint().width();
    QCOMPARE(label("suffixLabel")->width(), width);
    QCOMPARE(label("suffixLabel")->x(), 199 - 12 - width);
    QCOMPARE(m_edit->textMargins().right(), width + 12);
}

/// Its first picture is not one with labels of another size.
void KelLineEditTest::isLaidOutAsSoonAsItIsShown()
{
    m_edit->setSuffixText(QStringLiteral("dBm"));
    m_edit->hide();
    m_edit->setStyleSheet(QStringLiteral("QLabel { font-size: 40px }"));
    m_edit->show();
    QCOMPARE(label("suffixLabel")->width(), label("suffixLabel")->sizeHint().width());
    QCOMPARE(m_edit->textMargins().right(), label("suffixLabel")->width() + 12);
}

void KelLineEditTest::labelsAreNeitherMarkupNorInTheWay()
{
    m_edit->setSuffixText(QStringLiteral("<b>W</b>"));
    const QLabel *suffix = label("suffixLabel");
    QCOMPARE(suffix->textFormat(), Qt::PlainText);

    m_window->activateWindow();
    QVERIFY(waitForKeyboard(*m_window));
    m_edit->clearFocus();
    QVERIFY(!m_edit->hasFocus());
    const QPoint onLabel = suffix->mapTo(m_window.get(), suffix->rect().center());
    QTest::mouseClick(m_window->childAt(onLabel), Qt::LeftButton);
    QVERIFY(m_edit->hasFocus());
}

void KelLineEditTest::error_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isError");

    QTest::newRow("the first word of the list") << "invalid input" << true;
    QTest::newRow("the last word of the list") << "NAN" << true;
    QTest::newRow("no text") << "" << false;
    QTest::newRow("a number") << "12.5" << false;
    QTest::newRow("a word in small letters") << "nan" << false;
    QTest::newRow("a word with a blank after it") << "NAN " << false;
    QTest::newRow("part of a word") << "invalid" << false;
}

void KelLineEditTest::error()
{
    QFETCH(QString, text);
    QFETCH(bool, isError);

    m_edit->setErrorTexts({QStringLiteral("invalid input"), QStringLiteral("NAN")});
    m_edit->setText(text);
    QCOMPARE(m_edit->hasError(), isError);
    QCOMPARE(m_edit->property("error").toBool(), isError);
}

void KelLineEditTest::errorIsAnnouncedOnlyWhenItChanges()
{
    m_edit->setErrorTexts({QStringLiteral("invalid"), QStringLiteral("NAN")});
    QSignalSpy changes(m_edit, &KelLineEdit::errorChanged);

    m_edit->setText(QStringLiteral("1"));
    QCOMPARE(changes.count(), 0);
    m_edit->setText(QStringLiteral("invalid"));
    QCOMPARE(changes.count(), 1);
    m_edit->setText(QStringLiteral("NAN"));
    QCOMPARE(changes.count(), 1);
    m_edit->setText(QStringLiteral("1"));
    QCOMPARE(changes.count(), 2);
}

void KelLineEditTest::errorFollowsTheListOfTexts()
{
    m_edit->setText(QStringLiteral("unit missing"));
    QVERIFY(!m_edit->hasError());
    m_edit->setErrorTexts({QStringLiteral("unit missing")});
    QVERIFY(m_edit->hasError());
    m_edit->setErrorTexts({});
    QVERIFY(!m_edit->hasError());
}

void KelLineEditTest::styleSheetFollowsTheError()
{
    qApp->setStyleSheet(QStringLiteral("KelLineEdit[error=\"true\"] { color: rgb(200, 0, 0) }"));
    m_edit->setErrorTexts({QStringLiteral("NAN")});
    const QColor error(200, 0, 0);
    QVERIFY(m_edit->palette().color(QPalette::Text) != error);

    m_edit->setText(QStringLiteral("NAN"));
    QCOMPARE(m_edit->palette().color(QPalette::Text), error);
    m_edit->setText(QStringLiteral("1"));
    QVERIFY(m_edit->palette().color(QPalette::Text) != error);
}

void KelLineEditTest::aQuietErrorStaysAnError()
{
    m_edit->setErrorTexts({QStringLiteral("NAN")});
    QVERIFY(!m_edit->isQuiet());
    QSignalSpy changes(m_edit, &KelLineEdit::quietChanged);
    m_edit->setQuiet(true);
    m_edit->setQuiet(true);
    QCOMPARE(changes.count(), 1);

    m_edit->setText(QStringLiteral("NAN"));
    QVERIFY(m_edit->hasError());
    QVERIFY(m_edit->property("quiet").toBool());
    m_edit->setText(QStringLiteral("1"));
    QVERIFY(m_edit->isQuiet());
    m_edit->setQuiet(false);
    QCOMPARE(changes.count(), 2);
}

void KelLineEditTest::styleSheetFollowsTheQuiet()
{
    qApp->setStyleSheet(
        QStringLiteral("KelLineEdit[error=\"true\"][quiet=\"true\"] { color: rgb(0, 200, 0) }"));
    m_edit->setErrorTexts({QStringLiteral("NAN")});
    const QColor quiet(0, 200, 0);
    const auto isShownQuiet = [&] {
        return m_edit->palette().color(QPalette::Text) == quiet;
    };
    m_edit->setQuiet(true);
    QVERIFY(!isShownQuiet());
    m_edit->setText(QStringLiteral("NAN"));
    QVERIFY(isShownQuiet());
    m_edit->setQuiet(false);
    QVERIFY(!isShownQuiet());
    m_edit->setQuiet(true);
    QVERIFY(isShownQuiet());
}

void KelLineEditTest::placeholderKeepsItsColorUnderAStyleSheet()
{
    const auto placeholder = [this] {
        return m_edit->palette().color(QPalette::PlaceholderText);
    };
    qApp->setStyleSheet(QStringLiteral("QWidget { color: #102030 }"
                                       "KelLineEdit { qproperty-placeholderColor: #405060 }"));
    QCOMPARE(m_edit->placeholderColor(), QColor(0x40, 0x50, 0x60));
    QCOMPARE(placeholder(), QColor(0x40, 0x50, 0x60));
    QCOMPARE(m_edit->palette().color(QPalette::Text), QColor(0x10, 0x20, 0x30));

    m_edit->setStyleSheet(QStringLiteral("font-size: 20px"));
    m_edit->setErrorTexts({QStringLiteral("invalid input")});
    m_edit->setText(QStringLiteral("invalid input"));
    QCOMPARE(placeholder(), QColor(0x40, 0x50, 0x60));

    const QSignalSpy changed(m_edit, &KelLineEdit::placeholderColorChanged);
    m_edit->setPlaceholderColor(QColor(0x40, 0x50, 0x60));
    QCOMPARE(changed.count(), 0);
    m_edit->setPlaceholderColor(Qt::black);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(placeholder(), QColor(Qt::black));
}

void KelLineEditTest::describesItsLabels()
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(m_edit);
    QCOMPARE(accessible->text(QAccessible::Description), QString());

    m_edit->setSuffixText(QStringLiteral("dBm"));
    QCOMPARE(accessible->text(QAccessible::Description), QStringLiteral("dBm"));
    m_edit->setPrefixText(QStringLiteral("P1 ="));
    QCOMPARE(accessible->text(QAccessible::Description), QStringLiteral("P1 = dBm"));
    m_edit->setPrefixText(QString());
    m_edit->setSuffixText(QString());
    QCOMPARE(accessible->text(QAccessible::Description), QString());
}

void KelLineEditTest::keepsADescriptionOfItsOwn()
{
    m_edit->setAccessibleDescription(QStringLiteral("Power of the generator"));
    m_edit->setSuffixText(QStringLiteral("W"));
    QCOMPARE(m_edit->accessibleDescription(), QStringLiteral("Power of the generator"));
}

void KelLineEditTest::hidesItsLabelsFromScreenReaders()
{
    m_edit->setSuffixText(QStringLiteral("dBm"));
    QVERIFY(label("suffixLabel")->isVisible());
    QVERIFY(QAccessible::queryAccessibleInterface(label("suffixLabel"))->state().invisible);

    QLabel elsewhere(m_window.get());
    elsewhere.show();
    QVERIFY(!QAccessible::queryAccessibleInterface(&elsewhere)->state().invisible);
}

DEZIMO_TEST_MAIN(QApplication, KelLineEditTest)

#include "tst_kellineedit.moc"
