// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QSignalBlocker>

// Controls are made to show what is so, without acting on it as on a press.

inline void showSwitch(QAbstractButton& button, bool on)
{
    const QSignalBlocker shownOnly(button);
    button.setChecked(on);
}

inline void showValue(QAbstractSlider& slider, int value)
{
    const QSignalBlocker shownOnly(slider);
    slider.setValue(value);
}

inline void showItem(QComboBox& popUp, int index)
{
    const QSignalBlocker shownOnly(popUp);
    popUp.setCurrentIndex(index);
}
