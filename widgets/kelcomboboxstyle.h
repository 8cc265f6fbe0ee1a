// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef WIDGETS_KELCOMBOBOXSTYLE_H
#define WIDGETS_KELCOMBOBOXSTYLE_H

#include <QProxyStyle>

/**
 * The platform's style with one difference: a combo box opens an ordinary list below itself on
 * every platform, never a popup laid over the box.
 */
class KelComboBoxStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override
    {
        return hint == SH_ComboBox_Popup ? 0
                                         : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

#endif
