// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "animations.h"
#include "calculationfiles.h"
#include "checkedsettings.h"
#include "dbconverterwidget.h"
#include "dbmcalculatorwidget.h"
#include "identity.h"
#include "kelaboutwindow.h"
#include "kellatepages.h"
#include "mainprofile.h"
#include "stylesheets.h"
#include "takeoverslide.h"
#include "ui_mainwindow.h"
#include "unitconverterwidget.h"
#include "voltagecalculatorwidget.h"
#include "vswrconverterwidget.h"
#include "windowplacement.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMoveEvent>
#include <QResizeEvent>
#include <QScreen>
#include <QSettings>
#include <QShortcut>

#include <algorithm>

using namespace Dezimo;

namespace {

constexpr int kCompactListWidth = 40;
constexpr int kExpandedListWidth = 160;
constexpr int kHeaderHeight = 22;

/// Icons of the module list in row order; %1 is the theme's word.
constexpr std::array<const char *, 5> kModuleIcons = {
    ":/dbmcalc_16_%1.svg", ":/voltagecalc_16_%1.svg", ":/unitconv_16_%1.svg",
    ":/dbconv_16_%1.svg",  ":/vswrconv_16_%1.svg",
};

QVector<QRect> screenRects()
{
    QVector<QRect> rects;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        rects += screen->availableGeometry();
    return rects;
}

/// The smallest size in which every page has room: the converters need the width, the calculators
/// the height.
constexpr QSize kSmallestPage(560, 388);

/// Styles the page while it is empty, so that showing the window does not style the view, too.
template <typename View>
View *addView(KelLatePage *page, const char *name)
{
    page->setExpectedSize(kSmallestPage);
    page->ensurePolished();
    auto *view = new View(page);
    view->setObjectName(QLatin1String(name));
    page->layout()->addWidget(view);
    return view;
}

/// Such a key comes before the widget that has the focus, but waits while a menu, a list or a
/// dialog is open.
template <typename Action>
void onKey(MainWindow *window, const QString &key, const Action &action)
{
    const auto *shortcut = new QShortcut(QKeySequence::fromString(key), window);
    QObject::connect(shortcut, &QShortcut::activated, window, action);
}

} // namespace

/// A part of the window whose size depends on the list mode.
struct MainWindow::Extent
{
    QWidget *part;
    const char *property;
    int pixels;
};

/// The window gets its style sheet before its widgets, so that these are styled only once.
MainWindow::MainWindow(QWidget *parent)
    : KelMainWindow(parent),
      m_ui(std::make_unique<Ui::MainWindow>()),
      m_profile(MainProfile::instance())
{
    applyStyleSheet(Bright);
    m_ui->setupUi(this);
    addViews();
    m_ui->menuPlaceholder->hide();
    m_ui->headerWidget->hide();
    onThemeChanged(Bright);

    connect(&m_profile, &MainProfile::currentModuleChanged, this,
            &MainWindow::onCurrentModuleChanged);
    connect(m_ui->menuDecimal_Places, &QMenu::aboutToShow, this,
            &MainWindow::onDecimalPlacesMenuAboutToShow);
    CheckedSettings::readSettings(m_profile.storedGroups(),
                                  [this](QSettings &store) { m_profile.loadSettings(store); });

    onThemeChanged(Bright);
    applyWindowMode();
    restoreGeometryFromProfile();
    connect(&m_profile, &MainProfile::windowModeChanged, this, &MainWindow::onWindowModeChanged);
    connectKeyboard();
    onCurrentModuleChanged();
}

/// Hiding finishes an edit that is still open. The widgets are destroyed after the state is
/// written, so nothing that they do then is saved.
MainWindow::~MainWindow()
{
    hide();
    m_ui.reset();
    writeState();
}

/// Losing the focus finishes the edit of a field. A result that is sliding into the input arrives
/// at once, because the model's output is an error in the meantime.
void MainWindow::keepState()
{
    const QList<TakeOverSlide *> slides = findChildren<TakeOverSlide *>();
    for (TakeOverSlide *slide : slides)
        slide->finish();
    if (QWidget *field = QApplication::focusWidget()) {
        field->clearFocus();
        field->setFocus(Qt::OtherFocusReason);
    }
    writeState();
}

/// Qt closes dialogs before the windows below them. If one of them refuses, quit() ends its event
/// loop.
void MainWindow::endProgram()
{
    keepState();
    QApplication::closeAllWindows();
    QApplication::quit();
}

/// A guide without the program would keep nobody company.
void MainWindow::closeEvent(QCloseEvent *event)
{
    KelMainWindow::closeEvent(event);
    m_guide.close();
}

/// Nothing in the window has a use for F1, so it arrives here wherever it is pressed.
void MainWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier)
        m_guide.openAtModule(m_ui->menuItemsWidget->currentRow());
    else
        KelMainWindow::keyPressEvent(event);
}

void MainWindow::moveEvent(QMoveEvent *event)
{
    KelMainWindow::moveEvent(event);
    m_profile.setWindowPosition(event->pos());
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    KelMainWindow::resizeEvent(event);
    m_profile.setWindowSize(event->size());
}

void MainWindow::on_changeWindowModeButton_clicked()
{
    m_profile.setWindowMode(m_profile.windowMode() == 0 ? 1 : 0);
}

void MainWindow::onWindowModeChanged()
{
    updateModeButton(Bright);
    for (const auto &[part, property, pixels] : windowModeExtents()) {
        makeAnimation(part, property, part->property(property), pixels)
            ->start(QAbstractAnimation::DeleteWhenStopped);
    }
}

void MainWindow::onCurrentModuleChanged()
{
    m_ui->menuItemsWidget->setCurrentRow(m_profile.currentModule());
    updateWindowTitle();
    focusPage();
}

void MainWindow::on_actionLoad_Defaults_triggered()
{
    CalculationFiles::loadDefaults(m_profile);
}

void MainWindow::on_actionOpen_triggered()
{
    const QString fileName = CalculationFiles::askForFileToOpen(this);
    if (!fileName.isEmpty())
        CalculationFiles::open(m_profile, fileName);
}

void MainWindow::on_actionSave_triggered()
{
    const QString fileName = CalculationFiles::askForFileToSave(this);
    if (!fileName.isEmpty())
        CalculationFiles::save(m_profile, fileName);
}

/// Makes the entries anew each time, so that only the present number is checked.
void MainWindow::onDecimalPlacesMenuAboutToShow()
{
    m_ui->menuDecimal_Places->clear();
    for (int places = 0; places <= MainProfile::kMaximumDecimalPlaces; ++places) {
        QAction *action = m_ui->menuDecimal_Places->addAction(QString::number(places));
        action->setShortcut(QKeySequence());
        action->setCheckable(true);
        action->setChecked(places == m_profile.decimalPlaces());
        connect(action, &QAction::triggered, this,
                [this, places] { m_profile.setDecimalPlaces(places); });
    }
}

void MainWindow::on_menuItemsWidget_currentRowChanged(int currentRow)
{
    m_profile.setCurrentModule(currentRow);
}

void MainWindow::onThemeChanged(ApplicationTheme theme)
{
    applyStyleSheet(theme);
    updateModeButton(theme);
    if (theme != m_iconTheme)
        applyModuleIcons(theme);
    m_guide.setTheme(theme);
}

/// The About window deletes itself when it is closed.
void MainWindow::on_actionAbout_triggered()
{
    auto *about = new KelAboutWindow(
        Identity::productName(),
        tr("application for calculating with logarithmic and linear power and voltage values"),
        Identity::version(), QStringLiteral("2022"), QStringLiteral("7TK31"), this);
    about->show();
}

/// Each view is made in its page, because a widget that gets another parent is styled anew with all
/// that it holds. Every new widget also asks to be styled with the next events. These requests are
/// withdrawn: Qt styles a widget when it is shown, and nothing is shown yet.
void MainWindow::addViews()
{
    auto *powers = addView<DbmCalculatorWidget>(m_ui->page, "dbmCalculatorWidget");
    auto *voltages = addView<VoltageCalculatorWidget>(m_ui->page_2, "voltageCalculatorWidget");
    powers->takeKeysFrom(m_ui->menuItemsWidget);
    voltages->takeKeysFrom(m_ui->menuItemsWidget);
    addView<UnitConverterWidget>(m_ui->page_3, "unitConverterWidget");
    addView<DbConverterWidget>(m_ui->page_4, "dbConverterWidget");
    addView<VswrConverterWidget>(m_ui->page_5, "vswrConverterWidget");
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
}

void MainWindow::writeState()
{
    CheckedSettings::writeSettings([this](QSettings &store) {
        m_profile.saveSettings(store);
        m_guide.saveSettings(store);
    });
}

/// Setting the same sheet again would style every widget of the window once more for nothing.
void MainWindow::applyStyleSheet(ApplicationTheme theme)
{
    const auto style = StyleSheets::read(theme == Dark ? QStringLiteral(":/main_dark.qss")
                                                       : QStringLiteral(":/main_light.qss"));
    if (style && *style != styleSheet())
        setStyleSheet(*style);
}

void MainWindow::applyModuleIcons(ApplicationTheme theme)
{
    m_iconTheme = theme;
    for (int row = 0; row < int(kModuleIcons.size()); ++row) {
        const QString icon = QString::fromLatin1(kModuleIcons.at(size_t(row)));
        m_ui->menuItemsWidget->item(row)->setIcon(QIcon(icon.arg(themeWord(theme))));
    }
}

std::array<MainWindow::Extent, 3> MainWindow::windowModeExtents() const
{
    const int mode = m_profile.windowMode();
    return {{{m_ui->menuWidget, "minimumWidth", mode != 0 ? kExpandedListWidth : kCompactListWidth},
             {m_ui->headerWidget, "maximumHeight", mode != 0 ? 0 : kHeaderHeight},
             {m_ui->menuPlaceholder, "maximumHeight", mode > 0 ? kHeaderHeight : 0}}};
}

void MainWindow::applyWindowMode()
{
    for (const auto &[part, property, pixels] : windowModeExtents())
        part->setProperty(property, pixels);
    updateModeButton(Bright);
}

/// The stored position is that of the contents and places the frame, on purpose. If a screen is
/// gone and the window would lie on none, it is brought back. It keeps its size even if that is
/// larger than the screen, because the larger screen may be there again at the next start.
void MainWindow::restoreGeometryFromProfile()
{
    const QSize stored = m_profile.windowSize();
    const QSize restored = stored.isValid() ? stored : size();
    move(reachablePosition(m_profile.windowPosition(), restored, screenRects()));
    resize(restored);
}

/// Qt goes to the menus by Alt. F10 opens the first one, as in other programs on a desktop. The
/// texts of the menus mark no letter, so Alt with the first letter of a menu needs a key of its
/// own. Return goes from the list of modules into the page.
void MainWindow::connectKeyboard()
{
    onKey(this, QStringLiteral("F10"), [this] { showMenu(*m_ui->menuFile); });
    onKey(this, QStringLiteral("Alt+F"), [this] { showMenu(*m_ui->menuFile); });
    onKey(this, QStringLiteral("Alt+O"), [this] { showMenu(*m_ui->menuOptions); });
    onKey(this, QStringLiteral("Alt+H"), [this] { showMenu(*m_ui->menuHelp); });
    connectModuleKeys();
    connect(m_ui->menuItemsWidget, &QListWidget::itemClicked, this, &MainWindow::focusPage);
    connect(m_ui->menuItemsWidget, &QListWidget::itemActivated, this, &MainWindow::focusFirstField);
}

void MainWindow::connectModuleKeys()
{
    for (int row = 0; row < m_ui->menuItemsWidget->count(); ++row)
        onKey(this, QStringLiteral("Ctrl+%1").arg(row + 1), [this, row] { chooseModule(row); });
    onKey(this, QStringLiteral("Ctrl+PgUp"),
          [this] { chooseModule(m_ui->menuItemsWidget->currentRow() - 1); });
    onKey(this, QStringLiteral("Ctrl+PgDown"),
          [this] { chooseModule(m_ui->menuItemsWidget->currentRow() + 1); });
}

void MainWindow::showMenu(const QMenu &menu)
{
    m_ui->menubar->setActiveAction(menu.menuAction());
}

/// Does what a click on the row does. Beyond an end of the list there is no module.
void MainWindow::chooseModule(int row)
{
    m_ui->menuItemsWidget->setCurrentRow(qBound(0, row, m_ui->menuItemsWidget->count() - 1));
    focusPage();
}

/// After choosing a page the person can type on it at once. A list that has the focus keeps it, so
/// that the arrow keys walk through the modules.
void MainWindow::focusPage()
{
    if (!m_ui->menuItemsWidget->hasFocus())
        focusFirstField();
}

void MainWindow::focusFirstField()
{
    const QWidget *page = m_ui->stackedWidget->currentWidget();
    const QList<QLineEdit *> edits = page->findChildren<QLineEdit *>();
    const auto first = std::find_if(edits.begin(), edits.end(), [page](const QLineEdit *edit) {
        return edit->isVisibleTo(page) && edit->isEnabled() && !edit->isReadOnly();
    });
    if (first != edits.end())
        (*first)->setFocus();
}

void MainWindow::updateWindowTitle()
{
    const QListWidgetItem *module = m_ui->menuItemsWidget->currentItem();
    setWindowTitle(module ? QStringLiteral("%1 [%2]").arg(Identity::productName(), module->text())
                          : Identity::productName());
}

void MainWindow::updateModeButton(ApplicationTheme theme)
{
    const bool expanded = m_profile.windowMode() != 0;
    m_ui->changeWindowModeButton->setIcon(QIcon(
        QStringLiteral(":/Global/Icons_SVG/%1/Icon_%2_16_%1.svg")
            .arg(themeWord(theme), expanded ? QStringLiteral("Minus") : QStringLiteral("Add"))));
    const QString purpose = expanded ? tr("Hide module names") : tr("Show module names");
    m_ui->changeWindowModeButton->setAccessibleName(purpose);
    m_ui->changeWindowModeButton->setToolTip(purpose);
}
