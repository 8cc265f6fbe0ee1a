// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELABOUTWINDOW_H
#define WIDGETS_KELABOUTWINDOW_H

#include "applicationtheme.h"

#include <QDialog>

#include <memory>

class OSInfo;
class QPushButton;

namespace Ui {
class AboutWindow;
}

/**
 * Tells what the program is, under which terms it is used, and on which host it runs. The facts
 * about the host can be copied as a text for support requests, which the support mail carries too.
 *
 * The window deletes itself when it is closed. It shows the host as it was when it was opened; the
 * copied text is collected anew every time.
 */
class KelAboutWindow final : public QDialog
{
    Q_OBJECT

public:
    /// What the window tells about the program. The application note is given by its number.
    struct Product
    {
        QString name;
        QString subtitle;
        QString version;
        QString date;
        QString applicationNote;
    };

    KelAboutWindow(const QString &productName, const QString &subtitle, const QString &version,
                   const QString &date, const QString &applicationNote, QWidget *parent = nullptr);
    /// Asks @p osInfo about the host in place of the platform's own provider.
    KelAboutWindow(const Product &product, std::unique_ptr<OSInfo> osInfo,
                   QWidget *parent = nullptr);
    ~KelAboutWindow() override;

public Q_SLOTS:
    void onThemeChanged(ApplicationTheme theme);

private Q_SLOTS:
    void copy_clicked();

private:
    void showDrivers();
    void showProduct();
    void showLinks(ApplicationTheme theme);
    void showLicense();

    const Product m_product;
    const std::unique_ptr<OSInfo> m_osInfo;
    const std::unique_ptr<Ui::AboutWindow> m_ui;
    QPushButton *const m_copyButton;
    QString m_mailTarget;
};

#endif
