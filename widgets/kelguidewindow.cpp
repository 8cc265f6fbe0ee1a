// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelguidewindow.h"

#include "ui_kelguidewindow.h"

#include <QFile>
#include <QScreen>
#include <QShortcut>

namespace {

constexpr QTextDocument::FindFlags kForward;
constexpr QTextDocument::FindFlags kBackward = QTextDocument::FindBackward;

QUrl pageAt(const QString &anchor)
{
    QUrl url(QStringLiteral("qrc:/Global/Html/guide.html"));
    if (!anchor.isEmpty())
        url.setFragment(anchor);
    return url;
}

QString textOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

KelGuideWindow::KelGuideWindow(QWidget *parent)
    : QMainWindow(parent),
      m_ui(std::make_unique<Ui::GuideWindow>())
{
    m_ui->setupUi(this);
    m_ui->findLine->hide();
    m_ui->findLineEdit->setCleaningPastes(false); // words have blanks between them
    connectKeyboard();
    onThemeChanged(Bright);
}

KelGuideWindow::~KelGuideWindow() = default;

QSize KelGuideWindow::windowSize() const
{
    return isMaximized() || isFullScreen() ? normalGeometry().size() : size();
}

void KelGuideWindow::setWindowSize(const QSize &size)
{
    const QSize wanted = size.isEmpty() ? this->size() : size;
    resize(wanted.boundedTo(screen()->availableSize()));
}

/// The window is shown first, because only then it knows the lines that it can scroll to.
void KelGuideWindow::openAt(const QString &anchor)
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    m_ui->pageBrowser->setFocus();
    m_ui->pageBrowser->setSource(pageAt(anchor));
}

void KelGuideWindow::onThemeChanged(ApplicationTheme theme)
{
    const QString word = themeWord(theme);
    m_ui->pageBrowser->setPageStyle(textOf(QStringLiteral(":/Global/Html/guide_%1.css").arg(word)));
    const QString up = QStringLiteral(":/Global/Icons_SVG/%1/Icon_Arrow_Up_16_%1.svg").arg(word);
    const QString down =
        QStringLiteral(":/Global/Icons_SVG/%1/Icon_Arrow_Down_16_%1.svg").arg(word);
    m_ui->previousButton->setIcon(QIcon(up));
    m_ui->nextButton->setIcon(QIcon(down));
}

/// While the word is typed, the place that is found stays as long as it fits.
void KelGuideWindow::on_findLineEdit_textEdited()
{
    QTextCursor place = m_ui->pageBrowser->textCursor();
    place.setPosition(place.selectionStart());
    m_ui->pageBrowser->setTextCursor(place);
    find(kForward);
}

void KelGuideWindow::on_findLineEdit_returnPressed()
{
    find(kForward);
}

void KelGuideWindow::on_previousButton_clicked()
{
    find(kBackward);
}

void KelGuideWindow::on_nextButton_clicked()
{
    find(kForward);
}

void KelGuideWindow::connectKeyboard()
{
    const auto on = [this](const QKeySequence &keys, QWidget *where, const auto &action) {
        const auto *shortcut = new QShortcut(keys, where);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    on(QKeySequence::Find, this, [this] { openFindLine(); });
    on(Qt::Key_Escape, this, [this] { closeFindLineOrWindow(); });
    on(Qt::Key_F3, this, [this] { find(kForward); });
    on(QStringLiteral("Shift+F3"), this, [this] { find(kBackward); });
    // The edit would take Return with Shift for Return. They count while the edit can be seen.
    on(QStringLiteral("Shift+Return"), m_ui->findLineEdit, [this] { find(kBackward); });
    on(QStringLiteral("Shift+Enter"), m_ui->findLineEdit, [this] { find(kBackward); });
}

void KelGuideWindow::openFindLine()
{
    if (m_ui->findLine->isHidden()) {
        m_ui->pageBrowser->findFromHere();
        m_ui->findLine->show();
    }
    m_ui->findLineEdit->setFocus();
    m_ui->findLineEdit->selectAll();
}

void KelGuideWindow::closeFindLineOrWindow()
{
    if (m_ui->findLine->isHidden()) {
        close();
        return;
    }
    m_ui->findLine->hide();
    m_ui->pageBrowser->setFocus();
}

void KelGuideWindow::find(QTextDocument::FindFlags direction)
{
    const QString text = m_ui->findLineEdit->text();
    if (m_ui->findLine->isHidden())
        openFindLine();
    showWhetherFound(text.isEmpty() || m_ui->pageBrowser->findText(text, direction));
}

void KelGuideWindow::showWhetherFound(bool isFound)
{
    m_ui->findLineEdit->setSuffixText(isFound ? QString() : tr("not found"));
}
