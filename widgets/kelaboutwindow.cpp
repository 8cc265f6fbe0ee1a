// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "kelaboutwindow.h"

#include "kellatepages.h"
#include "kelmessagebox.h"
#include "osinfo.h"
#include "palette.h"
#include "ui_kelaboutwindow.h"

#include <QClipboard>
#include <QFile>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QSvgRenderer>
#include <QTextStream>

namespace {

/// The headings' color has too little contrast for small letters. Letters count as large from 14 pt
/// bold on, which are 18.7 px at the 96 dots per inch that style sheets are written for.
constexpr int kHeadingFontPixels = 19;
constexpr int kDriverTab = 1;

QLabel *createHeading(const QString &name)
{
    auto *label =
        new QLabel(QStringLiteral("<span style=\" font-weight:600;color: rgb(0, 142, 214);\">") +
                   name.toHtmlEscaped() + QStringLiteral("</span>"));
    label->setTextFormat(Qt::RichText);
    label->setStyleSheet(QStringLiteral("font-size: %1px").arg(kHeadingFontPixels));
    label->setAccessibleName(name);
    return label;
}

QLabel *createText(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// A fact that a person may want to mark and copy by itself.
QLabel *createValue(const QString &text)
{
    QLabel *label = createText(text);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

QString anchor(const QString &target, const QString &text, const QString &color)
{
    return QStringLiteral("<a href=\"%1\" style=\"color: %2\">%3</a>")
        .arg(target.toHtmlEscaped(), color, text.toHtmlEscaped());
}

QString productPage(const QString &applicationNote)
{
    return QStringLiteral(DEZIMO_PRODUCT_PAGE) + QLatin1Char('/') + applicationNote;
}

/// The body is not percent-encoded, on purpose: mail programs get it as it stands.
QString mailTarget(const QString &applicationNote, const QString &supportText)
{
    return QStringLiteral("mailto:" DEZIMO_SUPPORT_MAIL "?subject=Application Note ") +
           applicationNote +
           QStringLiteral("&body=<put your message here>\n\n"
                          "----------------------------------------\n") +
           supportText;
}

QPixmap renderLogo(ApplicationTheme theme, const QSize &size)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const qreal ratio = screen ? screen->devicePixelRatio() : 1.0;
    // Rounds each dimension to the nearest pixel.
    QPixmap pixmap(size * ratio);
    pixmap.fill(Qt::transparent);

    const QString path =
        QStringLiteral(":/Global/Icons_SVG/custom/Kelmark_48_%0.svg").arg(themeWord(theme));
    // Qt would log a warning about a missing file.
    if (QFile::exists(path)) {
        QSvgRenderer renderer(path);
        QPainter painter(&pixmap);
        renderer.render(&painter);
    }
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

/// The copy button comes below the facts.
void showSystem(const QVector<OSInfo::Section> &sections, QWidget *content, QPushButton *copyButton)
{
    auto *grid = new QGridLayout(content);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (const OSInfo::Section &section : sections) {
        grid->addWidget(createHeading(section.name), row++, 0, 1, 2);
        for (const OSInfo::Entry &entry : section.entries) {
            QLabel *value = createValue(entry.value);
            value->setAccessibleName(entry.key + QLatin1String(": ") + entry.value);
            grid->addWidget(createText(entry.key), row, 0, Qt::AlignTop);
            grid->addWidget(value, row++, 1);
        }
        grid->addWidget(new QLabel, row++, 0, 1, 2);
    }
    grid->addWidget(copyButton, row++, 0, 1, 2);
    grid->setRowStretch(row, 1);
}

QString supportText(const KelAboutWindow::Product &product,
                    const QVector<OSInfo::Section> &sections)
{
    QString text;
    QTextStream stream(&text);
    stream << "*** Global Setup ***\n"
           << "Product: " << product.name << "\nVersion: " << product.version
           << "\nDate: " << product.date << "\n\n";
    for (const OSInfo::Section &section : sections) {
        stream << "*** " << section.name << " ***\n";
        for (const OSInfo::Entry &entry : section.entries)
            stream << entry.key << ": " << entry.value << '\n';
        stream << '\n';
    }
    return text;
}

} // namespace

KelAboutWindow::KelAboutWindow(const QString &productName, const QString &subtitle,
                               const QString &version, const QString &date,
                               const QString &applicationNote, QWidget *parent)
    : KelAboutWindow({productName, subtitle, version, date, applicationNote}, createOsInfo(),
                     parent)
{}

KelAboutWindow::KelAboutWindow(const Product &product, std::unique_ptr<OSInfo> osInfo,
                               QWidget *parent)
    : QDialog(parent, Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      m_product(product),
      m_osInfo(std::move(osInfo)),
      m_ui(std::make_unique<Ui::AboutWindow>()),
      m_copyButton(new QPushButton(tr("copy support information to clipboard"), this))
{
    m_ui->setupUi(this);
    setWindowTitle(tr("Information about ") + m_product.name);
    setFixedSize(size());
    setAttribute(Qt::WA_DeleteOnClose);
    m_copyButton->setObjectName(QStringLiteral("copyButton"));
    // A default button would copy whenever Return is pressed anywhere in the window.
    m_copyButton->setAutoDefault(false);
    const auto areas = findChildren<QAbstractScrollArea *>();
    for (QAbstractScrollArea *area : areas)
        KelScrollBar::installOn(*area);
    connect(m_copyButton, &QPushButton::clicked, this, &KelAboutWindow::copy_clicked);

    showDrivers();
    const QVector<OSInfo::Section> system = m_osInfo->systemInformation();
    showSystem(system, m_ui->scroll_content, m_copyButton);
    showProduct();
    m_mailTarget = mailTarget(m_product.applicationNote, supportText(m_product, system));
    onThemeChanged(Bright);
    showLicense();
    setTabOrder(m_ui->scroll_system, m_copyButton);
}

KelAboutWindow::~KelAboutWindow() = default;

void KelAboutWindow::onThemeChanged(ApplicationTheme theme)
{
    m_ui->bg_image->setPixmap(renderLogo(theme, m_ui->bg_image->size()));
    showLinks(theme);
}

void KelAboutWindow::copy_clicked()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(supportText(m_product, m_osInfo->systemInformation()));
    KelMessageBox::ask(nullptr, tr("Support information copied to clipboard."),
                       tr("Support information copied to clipboard.\nUse <CTRL+V> to paste the "
                          "information in your mail program or text editor."),
                       QDialogButtonBox::Ok);
}

void KelAboutWindow::showDrivers()
{
    const QVector<OSInfo::Section> sections = m_osInfo->driverInformation();
    if (sections.isEmpty()) {
        m_ui->tabs->removeTab(kDriverTab);
        return;
    }
    auto *layout = new QVBoxLayout(m_ui->driver_content);
    for (const OSInfo::Section &section : sections) {
        layout->addWidget(createHeading(section.name));
        for (const OSInfo::Entry &entry : section.entries)
            layout->addWidget(createValue(entry.value));
        layout->addWidget(new QLabel);
    }
    layout->addStretch();
}

void KelAboutWindow::showProduct()
{
    QFont font = m_ui->title->font();
    font.setStyleStrategy(QFont::PreferAntialias);
    m_ui->title->setFont(font);
    m_ui->title->setText(m_product.name);
    m_ui->subtitle->setText(m_product.subtitle);
    m_ui->version->setText(
        QStringLiteral("Version %1 64 bit (%2)").arg(m_product.version, m_product.date));
}

/// Qt gives links the color of the system's palette, which may be unreadable in the theme.
void KelAboutWindow::showLinks(ApplicationTheme theme)
{
    const QLatin1String color(theme == Dark ? Palette::accentText.dark
                                            : Palette::accentText.bright);
    m_ui->product_page->setText(
        anchor(productPage(m_product.applicationNote), tr("Product page"), color));
    m_ui->mail->setText(anchor(m_mailTarget, tr("Support mail"), color));
}

void KelAboutWindow::showLicense()
{
    QFile file(QStringLiteral(":/Global/Html/License.html"));
    if (file.open(QIODevice::ReadOnly))
        m_ui->license_box->setHtml(QString::fromUtf8(file.readAll()));
}
