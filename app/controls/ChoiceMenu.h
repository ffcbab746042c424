// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GrowString.h"

#include <QMenu>

/// A menu of which one entry is always chosen, for good: the choice is remembered between runs.
class ChoiceMenu : public QMenu {
    Q_OBJECT

public:
    /// `key` names the choice in the preferences, as "Group/Key"; it is stored as its place among the entries. Where
    /// none is stored the first one is chosen.
    ChoiceMenu(const QString& title, const lumora::GrowString& key, const QStringList& entries, QWidget* parent);

    int chosen() const; ///< its place, counted from 0
    QString chosenText() const; ///< as people read it
};
