// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/controls/RecentMenu.h"

#include "app/state/RecentPhotos.h"
#include "app/state/Rules.h"

#include <unistd.h>

namespace {

constexpr int widest = 400; ///< points; a longer name is shown without its middle

} // namespace

RecentMenu::RecentMenu(const QString& title, QWidget* parent)
    : QMenu(title, parent)
{
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
    fill();
}

void RecentMenu::fill()
{
    clear();
    for (const QByteArray& path : recentPhotos()) {
        QString name = fontMetrics().elidedText(shownName(fileNameOf(path)), Qt::ElideMiddle, widest);
        name.replace(u'&', QLatin1String("&&")); // which else marks a letter
        const int number = int(actions().size()) + 1;
        QAction* entry = addAction(QStringLiteral("&%1  %2").arg(QString::number(number), name));
        entry->setToolTip(shownName(path).toHtmlEscaped());
        entry->setEnabled(access(path.constData(), F_OK) == 0);
        connect(entry, &QAction::triggered, this, [this, path] { emit chosen(path); });
    }
    const bool isEmpty = actions().isEmpty();
    addSeparator();
    addAction(tr("&Clear the list"), this, [] { clearRecentPhotos(); })->setEnabled(!isEmpty);
}
