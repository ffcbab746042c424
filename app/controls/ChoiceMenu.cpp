// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/ChoiceMenu.h"

#include "app/state/Preferences.h"

#include <QActionGroup>
#include <QRegularExpression>
#include <algorithm>

ChoiceMenu::ChoiceMenu(const QString& title, const lumora::GrowString& key, const QStringList& entries, QWidget* parent)
    : QMenu(title, parent)
{
    auto* exclusive = new QActionGroup(this);
    for (const QString& entry : entries)
        exclusive->addAction(addAction(entry))->setCheckable(true);
    actions()[std::clamp(getPreferenceInt(key), 0, int(entries.size()) - 1)]->setChecked(true);
    connect(exclusive, &QActionGroup::triggered, this, [this, key] { setPreferenceInt(key, chosen()); });
}

int ChoiceMenu::chosen() const
{
    const QList<QAction*> entries = actions();
    return int(std::ranges::find_if(entries, &QAction::isChecked) - entries.begin());
}

QString ChoiceMenu::chosenText() const
{
    // Without its mark of a key, which stands in brackets where the letter is none of the text.
    static const QRegularExpression mark(QStringLiteral("\\(&.\\)|&"));
    return actions()[chosen()]->text().remove(mark);
}
