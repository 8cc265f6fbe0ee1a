// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELLINKLABEL_H
#define WIDGETS_KELLINKLABEL_H

#include <QLabel>

/**
 * A label that is one link and nothing else. The first press of the Tab key gives it the focus, the
 * second selects the link, and the third moves on. Shift and Tab do the same backwards.
 */
class KelLinkLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit KelLinkLabel(QWidget *parent = nullptr);

    /// The text of the link without its markup.
    QString linkText() const;
    void open() const;

protected:
    bool focusNextPrevChild(bool next) override;
};

#endif
